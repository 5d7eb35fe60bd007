// One export at a time: from the beginning of a session until its options dialog has closed.
#ifndef GRADIX_EXPORTRUN_H
#define GRADIX_EXPORTRUN_H

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "Host/Export/FilterModule.h"

namespace host {

struct ExportRequest {
  uint32_t formatIndex = 0;
  int32_t assignmentID = 0;
  QString classPath;  // absolute
  bool spanish = false;
};

enum class StartResult {
  kStarted,
  kBusy,            // another export is under way
  kBeginFailed,     // the filter does not know the format
  kFileFailed,      // the class file or the filter's resource file could not be read
  kSessionUnknown,  // the filter lost the session
};

// What a run came to once its dialog has closed, as the filter tells it.
enum class RunOutcome {
  kCanceled,
  kWritten,
  kNotWritten,
  kUnknown,  // a file was chosen, and the filter does not tell
};

struct RunResult {
  RunOutcome outcome = RunOutcome::kCanceled;
  QString path;             // of the file that was chosen last; empty: none
  int error = 0;            // why it was not written, an errno value; 0: unknown
  bool incomplete = false;  // not written, and a part of it stands where the earlier file was
  uint32_t replacedCharacters = 0;
  uint32_t studentsWithoutIdentifier = 0;
  uint32_t assignmentCount = 0;
  int32_t userIDField = 0;  // as in QZEXPORTOUTCOME

  // A filter older than these tells none of them.
  std::vector<size_t> assignments;  // the chosen ones' positions in the class
  bool useQuotes = true;
  uint32_t studentCount = 0;
};

// Main thread only. Must outlive a run's dialog, which asks it for the file.
class ExportRun : public QObject {
 public:
  // Asks for the output file in front of the dialog (null when the filter named none).
  using Choose = std::function<std::optional<QString>(QWidget* dialog)>;
  // Called after the dialog has closed.
  using Finished = std::function<void(const RunResult& result)>;

  ExportRun(QObject* parent, Choose choose, Finished finished);

  // Shows the options dialog of `filter`, which has to outlive the run. `Finished` follows after kStarted
  // only.
  StartResult Start(const FilterModule& filter, const ExportRequest& request, QWidget* hostWindow);

  bool IsRunning() const { return m_running; }

  // The dialog of the run under way, or null.
  QWidget* Dialog() const { return m_dialog; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static int32_t ChooseFile(void* dialog, int32_t reserved, char* path, int32_t size, uintptr_t value);

  StartResult Run(const FilterModule& filter, const ExportRequest& request, QWidget* hostWindow);
  bool StorePath(QWidget* dialog, char* path, int32_t size);
  void FindDialog();
  void FinishUnlessVisible();
  void Finish();
  RunResult Result() const;

  Choose m_choose;
  Finished m_finished;
  bool m_running = false;
  QList<QPointer<QWidget>> m_windowsBefore;
  QPointer<QWidget> m_dialog;
  QTimer m_search;  // for a dialog that is not there at once
  int m_triesLeft = 0;
  QTimer m_hidden;  // the dialog was hidden
  QTimer m_end;     // the run has ended
  const FilterModule* m_filter = nullptr;
  unsigned long m_session = 0;
  QByteArray m_classPath;  // the filter keeps a pointer to it
  QString m_chosenPath;
};

}  // namespace host

#endif  // GRADIX_EXPORTRUN_H
