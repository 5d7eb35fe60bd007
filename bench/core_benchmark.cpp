// Cost per student of reading a class, of writing it in each format, and of checking its identifiers, at
// 1,000, 10,000 and 100,000 students; with the floors of reading (expat with empty handlers) and of writing
// (fwrite of the same bytes).

#include <benchmark/benchmark.h>
#include <expat.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Common/QZXMLParse/QZClassParse.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"
#include "bench/ClassGenerator.h"

namespace {

constexpr uint32_t kAssignments = 4;
constexpr uint32_t kQuestions = 5;

const std::string& _ClassFile(int64_t students) {
  static std::map<int64_t, std::string> files;
  const auto [entry, isNew] = files.try_emplace(students);
  if (isNew) {
    std::ostringstream out;
    WriteClassFile(out, {static_cast<uint32_t>(students), kAssignments, kQuestions, 1, {}, {}});
    entry->second = out.str();
  }
  return entry->second;
}

const qz::ClassRecord& _Class(int64_t students) {
  static std::map<int64_t, qz::ClassRecord> records;
  const auto [entry, isNew] = records.try_emplace(students);
  if (isNew) {
    std::istringstream stream(_ClassFile(students));
    QZClassParse(&entry->second, stream);
    for (qz::AssignmentRecord& assignment : entry->second.assignments) assignment.selected = true;
    entry->second.optionValue = 7;
    entry->second.options.fill(true);
  }
  return entry->second;
}

void _ReportPerStudent(benchmark::State& state) {
  state.counters["time/student"] =
      benchmark::Counter(static_cast<double>(state.range(0)) * static_cast<double>(state.iterations()),
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_ReadFloor(benchmark::State& state) {
  const std::string& file = _ClassFile(state.range(0));
  for (auto _ : state) {
    XML_Parser parser = XML_ParserCreateNS(nullptr, '#');
    XML_SetElementHandler(
        parser, [](void*, const char*, const char**) {}, [](void*, const char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const char*, int) {});
    for (size_t done = 0; done < file.size();) {
      const size_t length = std::min<size_t>(4095, file.size() - done);
      std::copy_n(file.data() + done, length, static_cast<char*>(XML_GetBuffer(parser, 4096)));
      done += length;
      XML_ParseBuffer(parser, static_cast<int>(length), done == file.size() ? XML_TRUE : XML_FALSE);
    }
    XML_ParserFree(parser);
  }
  _ReportPerStudent(state);
}

void BM_Read(benchmark::State& state) {
  const std::string& file = _ClassFile(state.range(0));
  for (auto _ : state) {
    std::istringstream stream(file);
    qz::ClassRecord record;
    if (!QZClassParse(&record, stream)) state.SkipWithError("does not parse");
    benchmark::DoNotOptimize(record.students.data());
  }
  _ReportPerStudent(state);
}

std::unique_ptr<Session> _NewSession(const FormatRow& format, int64_t students) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = format.index;
  std::unique_ptr<Session> session = format.make(&begin);
  *session->GetClass() = _Class(students);
  return session;
}

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// Both benchmarks write to a real file, over and over.
void BM_Write(benchmark::State& state, const FormatRow* format) {
  const std::unique_ptr<Session> session = _NewSession(*format, state.range(0));
  const File file(std::tmpfile());
  for (auto _ : state) {
    session->ExportTo(file.get());
    std::rewind(file.get());
  }
  _ReportPerStudent(state);
}

void BM_WriteFloor(benchmark::State& state, const FormatRow* format) {
  const File file(std::tmpfile());
  _NewSession(*format, state.range(0))->ExportTo(file.get());
  std::string bytes(static_cast<size_t>(std::ftell(file.get())), '\0');
  std::rewind(file.get());
  if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
    state.SkipWithError("cannot read");
  for (auto _ : state) {
    std::rewind(file.get());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::fflush(file.get());
  }
  state.counters["bytes"] = static_cast<double>(bytes.size());
  _ReportPerStudent(state);
}

void BM_CheckIdentifiers(benchmark::State& state) {
  const qz::ClassRecord& record = _Class(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(CheckIdentifiers(record, qz::kUserIDStudentID));
  _ReportPerStudent(state);
}

void _Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool kRegistered = [] {
  benchmark::RegisterBenchmark("read_floor", BM_ReadFloor)->Apply(_Sizes);
  benchmark::RegisterBenchmark("read", BM_Read)->Apply(_Sizes);
  benchmark::RegisterBenchmark("check_identifiers", BM_CheckIdentifiers)->Apply(_Sizes);
  for (const FormatRow& format : FormatTable()) {
    const std::string key = format.key;
    benchmark::RegisterBenchmark(("write_" + key).c_str(), BM_Write, &format)->Apply(_Sizes);
    benchmark::RegisterBenchmark(("write_floor_" + key).c_str(), BM_WriteFloor, &format)->Apply(_Sizes);
  }
  return true;
}();

}  // namespace
