#include "Host/Fill/GradebookLoader.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace host {

namespace {

// Any thread.
void _Read(GradebookRead* read) {
  const std::string path = QFile::encodeName(read->path).toStdString();
  const auto gradebook = std::make_shared<Gradebook>();
  read->fault = ReadGradebook(path, read->system, gradebook.get());
  if (!read->fault.IsFault()) {
    read->gradebook = gradebook;
    return;
  }
  read->kind = KindOfFile(read->path);
  const bool isOfAnother = read->fault.foreign && read->system != nullptr;
  if (isOfAnother && !ReadGradebook(path, nullptr, gradebook.get()).IsFault())
    read->other = gradebook->system;
}

}  // namespace

GradebookLoader::GradebookLoader(QObject* parent, Done done) : QObject(parent), m_done(std::move(done)) {}

GradebookLoader::~GradebookLoader() {
  if (m_thread.joinable()) m_thread.join();
}

void GradebookLoader::Load(const QString& path, const LearningSystem* system) {
  const GradebookRead wanted{.path = QFileInfo(path).absoluteFilePath(), .system = system};
  if (m_thread.joinable()) {
    m_next = wanted;
  } else {
    Start(wanted);
  }
}

void GradebookLoader::Start(const GradebookRead& wanted) {
  m_read = wanted;
  m_thread = std::thread([this] {
    _Read(&m_read);
    // Posted, so a destroyed loader drops it.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  });
}

void GradebookLoader::customEvent(QEvent* /*event*/) {
  m_thread.join();
  const GradebookRead read = std::exchange(m_read, {});
  const std::optional<GradebookRead> next = std::exchange(m_next, std::nullopt);
  if (next) {
    Start(*next);
  } else {
    m_done(read);
  }
}

}  // namespace host
