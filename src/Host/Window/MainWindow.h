// The main window: the open class and what can be done with it.
#ifndef GRADIX_MAINWINDOW_H
#define GRADIX_MAINWINDOW_H

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "Host/ClassView/ClassLoader.h"
#include "Host/Window/ClassWatcher.h"
#include "Host/Window/ExportWays.h"
#include "Host/Window/MainActions.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace host {

class ClassPage;
class NoticeBar;
class ReadingProgress;

class MainWindow : public QMainWindow {
 public:
  MainWindow();

  // Loads the export filter; to be called once, when the window is shown.
  void LoadFilter();

  // Starts reading a class file, which then takes the place of the open one. A downloaded gradebook is
  // offered to be filled in.
  void OpenFile(const QString& path);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  ActionHandlers MakeHandlers();
  QWidget* MakeEmptyPage();
  void SetFirstSize();

  void AskForClassFile();
  void OpenRecentFile(const QString& path);
  void Reload(std::function<void()> afterwards);
  void FileRead(const ReadResult& result);
  void ShowClass(std::shared_ptr<const OpenClass> openClass);
  void ClassChangedOnDisk(ClassWatcher::Change change);

  // Runs it with the class as it is on the disk, after asking where it has changed.
  void WithPresentClass(QWidget* window, std::function<void()> act);
  void ThroughDialog(const ExportFormat& format);
  void FillIn(const FormatRow* format, const QString& gradebookPath);

  void ExportStateChanged(const QString& status);
  void SetLanguage(HostLanguage language);
  void ShowAbout();
  void ChoicesChanged();
  void UpdateActions();
  void Retranslate();

  std::shared_ptr<const OpenClass> m_class;
  ClassLoader m_loader;
  ClassWatcher m_watcher;
  ExportWays m_exports;
  MainActions m_actions;
  QStackedWidget* m_pages;
  QLabel* m_emptyHint = nullptr;
  QPushButton* m_emptyButton = nullptr;
  NoticeBar* m_notice;
  ClassPage* m_classPage;
  ReadingProgress* m_reading;
  std::function<void()> m_afterReading;
  QTimer m_quitPatience;  // while it runs, the end of the export closes the window
};

}  // namespace host

#endif  // GRADIX_MAINWINDOW_H
