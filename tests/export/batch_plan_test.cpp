// Many classes: which files they are, where each goes, and that every one has its turn.
#include "Export/BatchPlan.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Export/RunInParallel.h"

namespace {

namespace fs = std::filesystem;

class Batch : public ::testing::Test {
 protected:
  Batch() {
    std::string name = fs::temp_directory_path() / "batch-XXXXXX";
    m_folder = mkdtemp(name.data());
    fs::current_path(m_folder);
    for (const char* folder : {"a/deep", "a/.hidden", "empty", "x.xml", "out"})
      fs::create_directories(folder);
    for (const char* file : {"a/2.xml", "a/1.XML", "a/notes.txt", "a/.xml", "a/._1.xml", "a/deep/3.xml",
                             "a/.hidden/4.xml", "b.xml", "out/c-canvas.csv"}) {
      std::ofstream(file) << file;
    }
    fs::create_symlink("nowhere", "a/broken.xml");
    fs::create_directory_symlink("../a", "a/loop");
    fs::create_symlink("a/2.xml", "2.xml");
    fs::create_symlink("one.csv", "out/p-canvas.csv");
    fs::create_symlink("one.csv", "out/q-canvas.csv");
  }
  ~Batch() override {
    fs::current_path("/");
    fs::remove_all(m_folder);
  }

 private:
  fs::path m_folder;
};

std::string _Listed(const std::vector<std::string>& paths, bool recursive) {
  const ClassFileList list = ListClassFiles(paths, recursive);
  std::string text;
  for (const ListedClass& row : list.classes) text += row.path + (row.folderError != 0 ? "! " : " ");
  for (const std::string& folder : list.emptyFolders) text += "(" + folder + ") ";
  return text;
}

TEST_F(Batch, FoldersStandForTheirClassFiles) {
  EXPECT_EQ(_Listed({"b.xml", "a", "missing", "empty", "x.xml"}, false),
            "b.xml a/1.XML a/2.xml a/broken.xml missing (empty) (x.xml) ");
  EXPECT_EQ(_Listed({"a"}, true), "a/1.XML a/2.xml a/broken.xml a/deep/3.xml ");
}

std::string _Planned(const std::vector<std::string>& paths) {
  const std::string folder = "out";
  const BatchPlan plan = PlanBatch(ListClassFiles(paths, false).classes, folder, *FindFormat("canvas"));
  std::string text;
  for (const BatchItem& item : plan.items) text += item.source.path + ">" + item.outputPath + " ";
  for (const BatchConflict& conflict : plan.conflicts) {
    text += conflict.classPath + "+" + conflict.otherPath + ">" + conflict.outputPath + " ";
  }
  return text;
}

TEST_F(Batch, EveryClassHasItsOwnFile) {
  const struct {
    std::vector<std::string> paths;
    std::string planned;
  } rows[] = {
      {{"b.xml", "b.txt"}, "b.xml>out/b-canvas.csv b.txt>out/b.txt-canvas.csv "},
      {{"b.xml", "a/2.xml", "./b.xml", "2.xml"}, "b.xml>out/b-canvas.csv a/2.xml>out/2-canvas.csv "},
      {{"b.xml", "no/b.xml"}, "b.xml>out/b-canvas.csv b.xml+no/b.xml>out/b-canvas.csv "},
      {{"\u00C4.xml", "no/\u00E4.xml"},
       "\u00C4.xml>out/\u00C4-canvas.csv \u00C4.xml+no/\u00E4.xml>out/\u00E4-canvas.csv "},
      {{"p", "q"}, "p>out/p-canvas.csv p+q>out/q-canvas.csv "},
      {{"out/c-canvas.csv", "c"},
       "out/c-canvas.csv>out/c-canvas.csv-canvas.csv c>out/c-canvas.csv out/c-canvas.csv+>out/c-canvas.csv "},
  };
  for (const auto& row : rows) EXPECT_EQ(_Planned(row.paths), row.planned);
}

TEST(RunInParallel, GivesEveryIndexOneTurn) {
  for (const size_t count : {0U, 1U, 3U, 1000U}) {
    for (const size_t jobs : {0U, 1U, 4U, 5000U}) {
      std::vector<std::atomic<int>> turns(count);
      std::atomic<size_t> running = 0;
      std::atomic<size_t> most = 0;
      RunInParallel(count, jobs, [&](size_t index) {
        const size_t now = ++running;
        for (size_t old = most; old < now && !most.compare_exchange_weak(old, now);) continue;
        ++turns[index];
        --running;
      });
      for (const std::atomic<int>& turn : turns) ASSERT_EQ(turn, 1) << count << " by " << jobs;
      EXPECT_LE(most, std::max<size_t>(jobs, 1));
    }
  }
}

}  // namespace
