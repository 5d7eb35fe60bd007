// The main window: the open class and what can be done with it.
#ifndef GRADIX_MAINWINDOW_H
#define GRADIX_MAINWINDOW_H

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "Host/ClassView/ClassLoader.h"
#include "Host/ClassView/ClassTableModel.h"
#include "Host/Export/ExportController.h"
#include "Host/Window/MainActions.h"
#include "Systems/Finding.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QTableView;

namespace host {

class AssignmentPanel;
class CheckWindow;

class MainWindow : public QMainWindow {
 public:
  MainWindow();

  // Loads the export filter; to be called once, when the window is shown.
  void LoadFilter();

  // Starts reading a class file, which then takes the place of the open one.
  void OpenClassFile(const QString& path);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* MakeEmptyPage();
  QWidget* MakeClassPage();
  void AddProgress();

  void AskForClassFile();
  void OpenRecentFile(const QString& path);
  void ClassRead(const ReadResult& result);
  void ShowClass(std::shared_ptr<const OpenClass> openClass);
  void FitColumns(int count);  // the first ones, to their contents
  void SelectColumn(int column);
  void SelectPlace(const FindingPlace& place);
  void ExportAs(const ExportFormat& format);
  void ShowCheck();
  void ExportStateChanged(const QString& status);
  void SetLanguage(HostLanguage language);
  void ShowAbout();
  void UpdateActions();
  void Retranslate();

  std::shared_ptr<const OpenClass> m_class;
  ClassTableModel m_model;
  ClassLoader m_loader;
  ExportController m_export;
  MainActions m_actions;
  QStackedWidget* m_pages;
  QLabel* m_emptyHint = nullptr;
  QPushButton* m_emptyButton = nullptr;
  QSplitter* m_splitter = nullptr;
  QTableView* m_table = nullptr;
  AssignmentPanel* m_panel = nullptr;
  QPointer<CheckWindow> m_check;
  QLabel* m_summary;
  QProgressBar* m_progress;
  QTimer m_progressDelay;
  QString m_readingName;
  QTimer m_quitPatience;  // while it runs, the end of the export closes the window
};

}  // namespace host

#endif  // GRADIX_MAINWINDOW_H
