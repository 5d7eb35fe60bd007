// From a file on disk to a class: what is read, what is told of a file that is none, and what happens to the
// file later.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QPushButton>
#include <QStatusBar>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <optional>
#include <thread>
#include <vector>

#include "Host/ClassView/ClassLoader.h"
#include "Host/ClassView/ReadFaultText.h"
#include "Host/Window/ClassWatcher.h"
#include "Host/Window/MainWindow.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

constexpr int kPatience = 30000;  // milliseconds

class LoaderTest : public HostTest {
 protected:
  QString Write(const char* name, const QByteArray& bytes) const {
    WriteFile(PathOf(name), bytes);
    return PathOf(name);
  }
};

QByteArray Utf16(const char* ascii) {
  QByteArray wide("\xFF\xFE");
  for (; *ascii != '\0'; ++ascii) wide.append(*ascii).append('\0');
  return wide;
}

TEST_F(LoaderTest, TellsWhatAFileIsThatIsNoClass) {
  using Code = ClassFaultCode;
  using Kind = FileKind;
  const QByteArray officeHead = QByteArray("PK\x03\x04", 4) + QByteArray(26, 'x');
  const QByteArray download = ReadFile(QStringLiteral(SAMPLES "/village-school-canvas.csv"));
  const struct {
    const char* name;
    QByteArray bytes;
    Kind kind;
    Code code;
    const char* advice;  // a part of it
  } rows[] = {
      {"photo.xml", "\x89PNG\r\n\x1A\n....", Kind::kPicture, Code::kNotAClass, "like a picture."},
      {"drawing.svg", "<svg><g/></svg>", Kind::kPicture, Code::kNotAClass, "like a picture."},
      {"letter.pdf", "%PDF-1.7\n", Kind::kPdf, Code::kNotAClass, "a PDF document."},
      {"a.xlsx", officeHead + "[Content_Types].xml", Kind::kOfficeDocument, Code::kNotAClass,
       "office program"},
      {"a.zip", officeHead + "class.xml", Kind::kArchive, Code::kNotAClass, "unpack it first"},
      {"page.xml", "\n<!DOCTYPE html><br>", Kind::kWebPage, Code::kNotAClass, "a web page."},
      {"gradebook.xml", download, Kind::kDownload, Code::kNotAClass, "Open your class first"},
      {"list.csv", "Name,Points\nMia,3\n", Kind::kTable, Code::kNotAClass, "a table (CSV)."},
      {"list.txt", "Dear class,\n", Kind::kOther, Code::kNotAClass, "Choose a file"},
      {"noise.csv", "\x01\x02", Kind::kOther, Code::kNotAClass, "Choose a file"},
      {"wide.txt", Utf16("a;b"), Kind::kOther, Code::kNotAClass, "Choose a file"},
      {"wide.xml", Utf16("<class/>"), Kind::kClass, Code::kUnsupportedEncoding, "UTF-8"},
      {"other.xml", "<school/>", Kind::kClass, Code::kNotAClass, "Choose a file"},
      {"cut.xml", "\xEF\xBB\xBF <class><", Kind::kClass, Code::kDamaged, "Save the class again"},
      {"empty.xml", "", Kind::kEmpty, Code::kDamaged, "Save the class again"},
      {"marked.xml", "\xEF\xBB\xBF<class/>", Kind::kClass, Code::kNone, ""},
      {"latin.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><class><a>\xE9</a></class>", Kind::kClass,
       Code::kNone, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const ReadResult result = ReadClass(Write(row.name, row.bytes));
    EXPECT_EQ(result.fault.code, row.code);
    EXPECT_EQ(result.openClass != nullptr, row.code == Code::kNone);
    EXPECT_EQ(result.kind, row.kind);
    EXPECT_EQ(KindOfFile(PathOf(row.name)), row.kind);
    if (row.code == Code::kNone) continue;
    const QString advice = TextOfFault(result).advice;
    EXPECT_TRUE(advice.contains(QLatin1String(row.advice))) << advice.toStdString();
  }
  EXPECT_EQ(KindOfFile(m_folder.path()), FileKind::kUnreadable);
}

// What is read of a class in the window is what every other program reads.
TEST_F(LoaderTest, ReadsAsEveryProgramDoes) {
  const QString paths[] = {QStringLiteral(SAMPLES "/college-lecture.xml"),
                           Write("cut.xml", "<class>\n<a></class>"), PathOf("missing.xml"),
                           QStringLiteral("/proc/self/mem")};
  for (const QString& path : paths) {
    SCOPED_TRACE(path.toStdString());
    const ClassFile file = ReadClassFile(path.toStdString());
    const ReadResult result = ReadClass(path);
    EXPECT_EQ(result.fault.code, file.fault.code);
    EXPECT_EQ(result.fault.reason, file.fault.reason);
    EXPECT_EQ(result.fault.line, file.fault.line);
    EXPECT_EQ(result.fault.column, file.fault.column);
    EXPECT_EQ(result.openClass != nullptr ? result.openClass->record.students.size() : 0,
              file.record.students.size());
  }
  EXPECT_EQ(ReadClass(QStringLiteral("/proc/self/mem")).fault.code, ClassFaultCode::kCannotRead);
}

TEST_F(LoaderTest, ReadsOneFileAtATimeAndTellsItsBytes) {
  QByteArray text = "<class>";
  while (text.size() < qsizetype{32} * 1024 * 1024) text += "<a><b/></a><a><b/></a><a><b/></a><a><b/></a>\n";
  const QString path = Write("large.xml", text + "</class>");
  ClassLoader loader(nullptr);
  std::optional<ReadResult> result;
  bool inMainThread = false;
  std::vector<qint64> reads;
  const auto done = [&](const ReadResult& read) {
    result = read;
    inMainThread = QThread::currentThread() == qApp->thread();
  };
  ASSERT_TRUE(loader.Load(path, done, [&](qint64 read, qint64 size) {
    reads.push_back(read);
    EXPECT_EQ(size, QFileInfo(path).size());
  }));
  EXPECT_FALSE(loader.Load(path, [](const ReadResult&) { FAIL(); }));
  ASSERT_TRUE(QTest::qWaitFor([&loader] { return !loader.IsLoading(); }, kPatience));
  EXPECT_TRUE(inMainThread);
  ASSERT_TRUE(result && result->openClass != nullptr);
  EXPECT_FALSE(reads.empty());
  EXPECT_TRUE(std::is_sorted(reads.begin(), reads.end()));
  loader.Cancel();  // nothing
  EXPECT_TRUE(loader.Load(PathOf("missing"), done));
  EXPECT_TRUE(QTest::qWaitFor([&loader] { return !loader.IsLoading(); }, kPatience));
  EXPECT_EQ(result->fault.code, ClassFaultCode::kCannotOpen);
}

// A class without end comes through a pipe; before that, nobody has opened the pipe's other end.
TEST_F(LoaderTest, CancelsSoon) {
  std::signal(SIGPIPE, SIG_IGN);
  const QByteArray pipe = QFile::encodeName(PathOf("pipe"));
  ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
  for (const bool isFed : {false, true}) {
    SCOPED_TRACE(isFed);
    std::optional<ReadResult> result;
    qint64 progress = 0;
    ClassLoader loader(nullptr);
    ASSERT_TRUE(loader.Load(
        PathOf("pipe"), [&](const ReadResult& read) { result = read; },
        [&](qint64 read, qint64 size) {
          progress = read;
          EXPECT_EQ(size, -1);
        }));
    std::thread writer;
    if (isFed) {
      const int descriptor = ::open(pipe.constData(), O_WRONLY);
      writer = std::thread([descriptor] {
        const std::string text = "<a>" + std::string(1000, ' ') + "</a>";
        ssize_t written = ::write(descriptor, "<class>", 7);
        while (written > 0) written = ::write(descriptor, text.data(), text.size());
        ::close(descriptor);
      });
      EXPECT_TRUE(QTest::qWaitFor([&progress] { return progress > 100000; }, kPatience));
    }
    QElapsedTimer clock;
    clock.start();
    loader.Cancel();
    EXPECT_TRUE(QTest::qWaitFor([&result] { return result.has_value(); }, kPatience));
    EXPECT_LT(clock.elapsed(), 1000);
    if (writer.joinable()) writer.join();
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->cancelled);
    EXPECT_EQ(result->openClass, nullptr);
    EXPECT_EQ(result->fault.code, ClassFaultCode::kNone);
  }
  QElapsedTimer clock;
  clock.start();
  {
    ClassLoader loader(nullptr);
    ASSERT_TRUE(loader.Load(PathOf("pipe"), [](const ReadResult&) { FAIL(); }));
  }
  QApplication::processEvents();
  EXPECT_LT(clock.elapsed(), 1000);
}

TEST_F(LoaderTest, ACancelledReadGivesNoClassEvenIfItCameInTime) {
  std::optional<ReadResult> result;
  ClassLoader loader(nullptr);
  ASSERT_TRUE(loader.Load(QStringLiteral(SAMPLES "/village-school.xml"),
                          [&](const ReadResult& read) { result = read; }));
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  loader.Cancel();
  EXPECT_TRUE(QTest::qWaitFor([&result] { return result.has_value(); }, kPatience));
  EXPECT_TRUE(result && result->cancelled && result->openClass == nullptr);
}

// Of a pipe without a writer there is never anything to read.
TEST_F(LoaderTest, EscapeOrTheButtonCancelsInTheWindow) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
  MainWindow window;
  window.show();
  auto* const cancel = window.findChild<QPushButton*>(QStringLiteral("cancelReading"));
  for (const Input input : {Input::keys, Input::mouse}) {
    window.OpenFile(PathOf("pipe"));
    ASSERT_TRUE(QTest::qWaitFor([cancel] { return cancel->isVisible(); }));
    if (input == Input::keys) {
      QTest::keyClick(&window, Qt::Key_Escape);
    } else {
      gestures::Click(cancel);
    }
    EXPECT_TRUE(QTest::qWaitFor([cancel] { return !cancel->isVisible(); }));
    EXPECT_EQ(window.statusBar()->currentMessage(), QStringLiteral("Nothing was opened"));
    EXPECT_EQ(FindWindow("message"), nullptr);
  }
}

class WatcherTest : public LoaderTest {
 protected:
  using Change = ClassWatcher::Change;

  void SetUp() override {
    LoaderTest::SetUp();
    m_path = Write("class.xml", kText);
    const ReadResult read = ReadClass(m_path);
    ASSERT_NE(read.openClass, nullptr);
    m_watcher.Watch(m_path, read.openClass->stamp);
    Wait(Change::kNone);
  }

  // Lets the file be quiet for a moment, and expects these changes to have been told since the last wait.
  template <typename... Changes>
  void Wait(Change now, Changes... told) {
    const std::vector<Change> expected{told...};
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_told.size() >= expected.size(); }, kPatience));
    QTest::qWait(400);
    EXPECT_EQ(m_told, expected);
    EXPECT_EQ(m_watcher.Look(), now);
    m_told.clear();
  }

  void Touch() const {
    const timespec times[] = {{0, UTIME_OMIT}, {1'000'000'000 + ++gSeconds, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(m_path).constData(), times, 0), 0);
  }

  static constexpr const char* kText = "<class><a>1</a></class>";
  static constexpr const char* kOther = "<class><a>2</a></class>";
  static inline time_t gSeconds = 0;
  QString m_path;
  std::vector<Change> m_told;
  ClassWatcher m_watcher{nullptr, [this](Change change) { m_told.push_back(change); }};
};

TEST_F(WatcherTest, TellsEachChangeOnce) {
  Touch();
  Wait(Change::kNone);
  WriteFile(PathOf("neighbour.xml"), "x");
  Wait(Change::kNone);
  WriteFile(m_path, kOther);  // in place, as long as before
  Wait(Change::kChanged, Change::kChanged);
  WriteFile(m_path, kText);
  Wait(Change::kNone, Change::kNone);

  // Replaced while somebody still holds the old file; then the new one is written.
  QFile old(m_path);
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  const QByteArray other = QFile::encodeName(Write("new.xml", "<class/>"));
  ASSERT_EQ(std::rename(other.constData(), QFile::encodeName(m_path).constData()), 0);
  Wait(Change::kChanged, Change::kChanged);
  WriteFile(m_path, "<class> </class>");
  Wait(Change::kChanged, Change::kChanged);

  ASSERT_TRUE(QFile::remove(m_path));
  Wait(Change::kGone, Change::kGone);
  WriteFile(m_path, kText);
  Wait(Change::kNone, Change::kNone);

  ASSERT_TRUE(QFile::remove(m_path));  // and back within the moment
  WriteFile(m_path, kOther);
  Wait(Change::kChanged, Change::kChanged);
}

TEST_F(WatcherTest, ComparesWithWhatWasRead) {
  const FileStamp read = ReadClass(m_path).openClass->stamp;
  m_watcher.Watch({}, {});
  WriteFile(m_path, kOther);
  Wait(Change::kNone);
  m_watcher.Watch(m_path, read);  // too late to see it happen
  Wait(Change::kChanged, Change::kChanged);
  m_watcher.Watch(m_path, ReadClass(m_path).openClass->stamp);
  Wait(Change::kNone);
}

}  // namespace

}  // namespace host
