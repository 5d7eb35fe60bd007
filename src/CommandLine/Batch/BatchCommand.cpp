#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <filesystem>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "CommandLine/Batch/BatchClass.h"
#include "CommandLine/Batch/BatchJson.h"
#include "CommandLine/Batch/BatchSummary.h"
#include "CommandLine/Batch/ProgressLine.h"
#include "CommandLine/ClassInput.h"
#include "CommandLine/Commands.h"
#include "CommandLine/TerminalText.h"
#include "Export/RunInParallel.h"

namespace {

constexpr size_t kMostConflicts = 20;

std::vector<ListedClass> _ListClasses(const ExportOptions& options) {
  for (const std::string& path : options.classFiles) {
    if (path == kStandardStream)
      throw CommandError(kExitUsage, "with --output-dir, classes are files or folders; - cannot be one");
  }
  ClassFileList list = ListClassFiles(options.classFiles, options.recursive);
  for (const std::string& folder : list.emptyFolders) {
    const char* hint = options.recursive ? "" : "; -r looks into its subfolders, too";
    const std::string text = "there is no class file (*.xml) in " + PrintableUtf8(folder) + hint;
    if (list.classes.empty()) throw CommandError(kExitUsage, text);
    Warn(text);
  }
  return std::move(list.classes);
}

std::string _ConflictText(const BatchConflict& conflict) {
  const std::string output = PrintableUtf8(conflict.outputPath);
  if (conflict.otherPath.empty())
    return output + " would replace the class " + PrintableUtf8(conflict.classPath);
  return PrintableUtf8(conflict.classPath) + " and " + PrintableUtf8(conflict.otherPath) +
         " would both be written to " + output;
}

void _RefuseConflicts(const std::vector<BatchConflict>& conflicts) {
  if (conflicts.empty()) return;
  std::vector<std::string> lines;
  for (size_t i = 0; i < std::min(conflicts.size(), kMostConflicts); ++i) {
    lines.push_back(_ConflictText(conflicts[i]));
  }
  if (conflicts.size() > lines.size()) {
    lines.push_back("and " + std::to_string(conflicts.size() - lines.size()) + " more");
  }
  throw CommandError(kExitUsage, Join(lines, "\n") +
                                     "\nNothing was exported; rename class files, or choose another folder.");
}

void _MakeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && !std::filesystem::is_directory(folder))
    error = std::make_error_code(std::errc::not_a_directory);
  if (!error) return;
  throw CommandError(kExitOutput, "cannot make the folder " + PrintableUtf8(folder) + ": " + error.message());
}

class Batch {
 public:
  Batch(const ExportOptions& options, const std::vector<BatchItem>& items)
      : m_options(options),
        m_items(items),
        m_results(items.size()),
        m_progress(items.size(), !options.json || isatty(STDOUT_FILENO) == 0) {
    if (options.json) m_json.emplace(options.choices);
  }

  // Throws what was in the way of telling the results, after all classes had their turn.
  BatchSummary Run() {
    const size_t jobs = m_options.jobs > 0 ? m_options.jobs : ProcessorCount();
    RunInParallel(m_items.size(), jobs, [this](size_t index) { Export(index); });
    if (m_error) std::rethrow_exception(m_error);
    if (m_json) m_json->Finish(m_summary);
    return std::move(m_summary);
  }

 private:
  void Export(size_t index) {
    BatchResult result = ExportBatchClass(m_items[index], m_options);
    const std::lock_guard lock(m_mutex);
    m_progress.Advance();
    m_results[index] = std::move(result);
    try {
      while (m_told < m_results.size() && m_results[m_told]) Tell(m_told++);
    } catch (...) {
      m_error = std::current_exception();
    }
  }

  void Tell(size_t index) {
    const BatchResult result = *std::exchange(m_results[index], std::nullopt);
    m_summary.Add(m_items[index].source.path, result);
    if (m_json) m_json->Add(result.json);
  }

  const ExportOptions& m_options;
  const std::vector<BatchItem>& m_items;
  std::mutex m_mutex;                                 // of all that follows
  std::vector<std::optional<BatchResult>> m_results;  // that were not told yet
  size_t m_told = 0;                                  // so many, in the order of the items
  ProgressLine m_progress;
  BatchSummary m_summary;
  std::optional<BatchJson> m_json;
  std::exception_ptr m_error;
};

}  // namespace

ExitStatus RunBatch(const ExportOptions& options) {
  const BatchPlan plan = PlanBatch(_ListClasses(options), options.outputFolder, *options.choices.format);
  _RefuseConflicts(plan.conflicts);
  _MakeFolder(options.outputFolder);
  const BatchSummary summary = Batch(options, plan.items).Run();
  if (!options.json) Say(summary.AsText(options.outputFolder));
  return summary.Status();
}
