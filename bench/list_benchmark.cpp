// A dialog with a check list of many rows, against a bare Qt list widget with the same rows.
//
// Needs the resources of the demo dialog in DEMO_RESOURCES.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QListWidget>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "Platform/Core/Files.h"
#include "Platform/Core/Resources.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"
#include "Toolkit/StartUp.h"

namespace {

constexpr int32_t kDialog = 500;
constexpr int32_t kChecks = 8;

std::vector<std::string> _Rows(int64_t count) {
  std::vector<std::string> rows;
  for (int64_t i = 0; i < count; ++i) rows.push_back("Assignment " + std::to_string(i) + "\t2026-11-21");
  return rows;
}

// Opens the dialog, appends the rows, shows them, and closes.
void BM_CheckList(benchmark::State& state) {
  const std::vector<std::string> rows = _Rows(state.range(0));
  for (auto _ : state) {
    DLGRecord* dialog = GetDialogResource(nullptr, kDLGModal, nullptr, kDialog, 0, nullptr, nullptr, nullptr);
    for (const std::string& row : rows) {
      LBSetCheck(dialog, kChecks, LBInsertItem(dialog, kChecks, row.c_str(), kRowLast), true);
    }
    ShowDLG(dialog);
    RunEventPass(0);
    DisposeDLG(dialog);
    RunEventPass(0);
  }
  state.SetComplexityN(state.range(0));
}

// The floor: a window with nothing but the widget, at its fastest: rows of one height, without check marks.
void BM_ListWidget(benchmark::State& state) {
  const std::vector<std::string> rows = _Rows(state.range(0));
  for (auto _ : state) {
    QListWidget widget;
    widget.setUniformItemSizes(true);
    widget.resize(230, 82);
    for (const std::string& row : rows) widget.addItem(QString::fromStdString(row));
    widget.show();
    RunEventPass(0);
  }
  state.SetComplexityN(state.range(0));
}

void _Sizes(benchmark::internal::Benchmark* benchmark) {
  for (const int64_t rows : {1000, 5000, 10000, 20000, 40000}) benchmark->Arg(rows);
  benchmark->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(BM_CheckList)->Apply(_Sizes);
BENCHMARK(BM_ListWidget)->Apply(_Sizes);

bool _OpenResources() {
  const char* path = std::getenv("DEMO_RESOURCES");
  FSRef file;
  ResFileRefNum refNum = 0;
  return path != nullptr && FSPathMakeRef(path, &file, nullptr) == noErr &&
         FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &refNum) == noErr;
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (!_OpenResources() || _InitLumoLibrary(nullptr) != 1) {
    std::cerr << "list_benchmark: no resources in DEMO_RESOURCES" << std::endl;
    return 2;
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
