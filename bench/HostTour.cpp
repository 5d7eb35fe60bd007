#include "bench/HostTour.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <ctime>
#include <fstream>
#include <memory>
#include <utility>

#include "Export/ClassFile.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Host/ClassView/AssignmentPanel.h"
#include "Host/ClassView/ClassLoader.h"
#include "Host/ClassView/ClassTable.h"
#include "Host/Fill/FillWindow.h"
#include "Host/Findings/FieldsPanel.h"
#include "Host/Findings/ReadinessPanel.h"
#include "Host/Preview/ExportWindow.h"
#include "Host/Window/MainWindow.h"
#include "Systems/LearningSystem.h"
#include "bench/ClassGenerator.h"

namespace {

using host::OpenClass;

double _ThreadSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// Between two ticks of a timer, the thread looks after other events.
class GapMeter {
 public:
  GapMeter() {
    constexpr int kInterval = 5;  // milliseconds
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kInterval);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Tick(); });
    m_clock.start();
    m_thread = _ThreadSeconds();
    m_timer.start();
  }

  const Gap& Longest() const { return m_longest; }

 private:
  void Tick() {
    const double thread = _ThreadSeconds();
    m_longest.wall = std::max(m_longest.wall, static_cast<double>(m_clock.nsecsElapsed()) / 1e9);
    m_longest.thread = std::max(m_longest.thread, thread - m_thread);
    m_thread = thread;
    m_clock.restart();
  }

  QTimer m_timer;
  QElapsedTimer m_clock;
  double m_thread = 0;
  Gap m_longest;
};

void _WaitFor(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// Canvas's, of users who are named as the class's aliases, with a score here and there.
void _WriteDownload(const OpenClass& openClass, const std::string& path) {
  std::ofstream out(path);
  out << "Student,ID,SIS Login ID,Section";
  const size_t count = openClass.record.assignments.size();
  for (size_t i = 0; i < count; ++i) {
    out << ",\"" << openClass.Texts().AssignmentName(i) << " (" << 100 + i << ")\"";
  }
  out << "\n    Points Possible,,,";
  for (size_t i = 0; i < count; ++i) out << ",1";
  for (size_t student = 0; student < openClass.record.students.size(); ++student) {
    out << "\n\"" << openClass.Texts().StudentName(student) << "\"," << student << ','
        << openClass.record.students[student].alias << ",A";
    for (size_t i = 0; i < count; ++i) out << ((student + i) % 7 == 0 ? ",0.25" : ",");
  }
  out << '\n';
}

class Tour {
 public:
  using Tell = std::function<void(const std::string& step, const Gap& gap)>;

  Tour(QString path, QString download, const Tell& tell)
      : m_path(std::move(path)), m_download(std::move(download)), m_tell(tell) {}

  bool Run() {
    OpenInMainWindow();
    Cancel();
    m_class = host::ReadClass(m_path).openClass;
    if (m_class == nullptr) return false;
    _WriteDownload(*m_class, QFile::encodeName(m_download).toStdString());
    UsePanel();
    UseTable();
    UseReadiness();
    OpenWindows();
    return m_wentWell;
  }

 private:
  // Does it in the event loop, and waits until `isDone`, which may be null, and a little longer.
  void Step(const std::string& name, const std::function<void()>& action,
            const std::function<bool()>& isDone = nullptr) {
    constexpr int kRest = 120;         // milliseconds
    constexpr int kPatience = 60'000;  // milliseconds
    GapMeter meter;
    QTimer::singleShot(0, qApp, action);
    QElapsedTimer clock;
    clock.start();
    do _WaitFor(kRest);
    while (isDone != nullptr && !isDone() && clock.elapsed() < kPatience);
    m_wentWell = m_wentWell && (isDone == nullptr || isDone());
    m_tell(name, meter.Longest());
  }

  void OpenInMainWindow() {
    host::MainWindow window;
    window.show();
    const QString title = window.windowTitle();
    Step(
        "main window: open the class", [&] { window.OpenFile(m_path); },
        [&] { return window.windowTitle() != title; });
    Step("main window: make it large", [&window] { window.resize(1800, 1000); });
  }

  void Cancel() {
    host::ClassLoader loader(nullptr);
    bool isCancelled = false;
    const auto done = [&isCancelled](const host::ReadResult& result) { isCancelled = result.cancelled; };
    Step(
        "read and cancel",
        [&] {
          loader.Load(m_path, done, [](qint64, qint64) {});
          loader.Cancel();
        },
        [&loader] { return !loader.IsLoading(); });
    m_wentWell = m_wentWell && isCancelled;
  }

  void UsePanel() {
    host::AssignmentPanel panel(nullptr, [](int) {});
    panel.show();
    Step("statistics: show the class", [&] { panel.SetClass(m_class); });
    Step("statistics: another assignment", [&] { panel.Select(LastAssignment()); });
  }

  void UseTable() {
    host::ClassTable table(nullptr, [](int) {});
    table.resize(1000, 700);
    table.show();
    Step("table: show the class", [&] { table.SetClass(m_class); });
    Step("table: go to the last column", [&] { table.SelectAssignment(LastAssignment()); });
    Step("table: sort", [&] { table.SortByCurrentColumn(); });
    Step("table: sort again", [&] { table.SortByCurrentColumn(); });
    Step("table: find", [&] { table.Find(); });
    std::vector<FindingPlace> places;
    for (size_t i = 0; i < m_class->record.students.size(); ++i) places.push_back({.student = i});
    Step("table: select all students", [&] { table.SelectPlaces(places); });
    host::ReadinessPanel panel(nullptr, {[] {}, [](const std::vector<FindingPlace>&) {}});
    panel.SetClass(m_class);
    Step("table: mark the problems", [&] { table.SetMarks(panel.Marks()); });
  }

  void UseReadiness() {
    host::ReadinessPanel panel(nullptr, {[] {}, [](const std::vector<FindingPlace>&) {}});
    panel.resize(400, 700);
    panel.show();
    Step("readiness: show the class", [&] { panel.SetClass(m_class); });
    for (const FormatRow& format : FormatTable()) {
      Step(std::string("readiness: ") + format.key, [&] { panel.ChooseFormat(format); });
    }
    Step("readiness: collect the marks", [&] { panel.Marks(); });
    host::FieldsPanel fields(nullptr, {[](qz::UserIDField) {}, [](const std::vector<FindingPlace>&) {}});
    fields.resize(400, 300);
    fields.show();
    Step("id fields: show the class",
         [&] { fields.Show(m_class, *FindFormat("canvas"), qz::kUserIDStudentID); });
  }

  void OpenWindows() {
    QWidget parent;
    const host::ExportStart start{.format = FindFormat("canvas"), .assignments = {}};
    host::ExportWindow* exporter = nullptr;
    Step("export window: open", [&] {
      exporter = new host::ExportWindow(&parent, m_class, start, {[](const auto&) {}, [](const auto&) {}});
      exporter->show();
    });
    Step("export window: the class again", [&] { exporter->SetClass(m_class); });
    host::FillWindow* filler = nullptr;
    Step("fill window: open", [&] {
      filler = new host::FillWindow(&parent, m_class, nullptr, qz::kUserIDAlias,
                                    {[](const auto&) {}, [](const auto&) {}});
      filler->show();
    });
    Step("fill window: read the gradebook", [&] { filler->OpenGradebook(m_download); });
    Step("fill window: the class again", [&] { filler->SetClass(m_class); });
  }

  int LastAssignment() const { return static_cast<int>(m_class->record.assignments.size()) - 1; }

  QString m_path;
  QString m_download;
  const Tell& m_tell;
  std::shared_ptr<const OpenClass> m_class;
  bool m_wentWell = true;
};

}  // namespace

bool TourHost(const ClassPlan& plan, const QString& folder,
              const std::function<void(const std::string& step, const Gap& gap)>& tell) {
  const QString path = folder + QStringLiteral("/class.xml");
  std::ofstream out(QFile::encodeName(path).constData());
  WriteClassFile(out, plan);
  out.close();
  return out && Tour(path, folder + QStringLiteral("/gradebook.csv"), tell).Run();
}

ClassPlan TroubledClass(unsigned students, unsigned assignments) {
  ClassPlan plan{
      .students = students, .assignments = assignments, .questions = 1, .studentIDs = {}, .named = {}};
  for (unsigned i = 0; i < students; ++i) {
    const std::string id = std::to_string(1000 + i / 2);
    plan.studentIDs.push_back(i % 9 == 0 ? "" : i % 9 == 1 ? "0" + id : id);
  }
  for (unsigned i = 0; i < assignments; i += 2) {
    plan.named.push_back({static_cast<int32_t>(i + 1), "Chapter " + std::to_string(i) + ", again"});
  }
  return plan;
}
