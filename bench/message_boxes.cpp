// What a message box of Qt leaves in Qt's cache of pictures, by itself: 0 bytes each under Qt 6.4.2, 11,340
// under Qt 6.8.2, until the cache's limit of 10 MB is reached. Clearing the cache gives them back.
#include <malloc.h>

#include <QApplication>
#include <QMessageBox>
#include <QPixmapCache>
#include <QTimer>
#include <cstdio>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  size_t before = 0;
  for (int i = 0; i < 600; ++i) {
    if (i == 100) before = mallinfo2().uordblks;
    QMessageBox box(QMessageBox::Information, "Title", "Text");
    QTimer::singleShot(0, &box, &QDialog::accept);
    box.exec();
  }
  std::printf("Qt %s: %zd bytes each, ", qVersion(),
              static_cast<ssize_t>(mallinfo2().uordblks - before) / 500);
  QPixmapCache::clear();
  std::printf("%zd without the cache\n", static_cast<ssize_t>(mallinfo2().uordblks - before) / 500);
}
