// Exports a class record for a test, as the bytes of the file.
#ifndef GRADIX_TESTS_EXPORTED_H
#define GRADIX_TESTS_EXPORTED_H

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"

inline std::unique_ptr<Session> NewSession(const FormatRow& format) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = format.index;
  return format.make(&begin);
}

inline qz::StudentRecord NewStudent(int32_t id, const char* first, const char* last, const char* number,
                                    const char* alias) {
  qz::StudentRecord student;
  student.id = id;
  student.firstName = first;
  student.lastName = last;
  student.studentID = number;
  student.alias = alias;
  return student;
}

inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Of a golden file, in the folder GRADIX_GOLDEN where one is given.
inline std::string GoldenPath(const std::string& name) {
  const char* folder = std::getenv("GRADIX_GOLDEN");
  return (folder != nullptr ? folder : GOLDEN) + ("/" + name + ".csv");
}

// Compares with a golden file. After a change that is meant to alter it, run the test with
// GRADIX_UPDATE_GOLDEN=1 and review the difference.
inline void ExpectGolden(const std::string& name, const std::string& bytes) {
  const std::string path = GoldenPath(name);
  if (std::getenv("GRADIX_UPDATE_GOLDEN") != nullptr) std::ofstream(path, std::ios::binary) << bytes;
  EXPECT_EQ(ReadFile(path), bytes) << name;
}

// A path in the test's own folder that no other running test uses.
inline std::filesystem::path TestPath(const std::string& name) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) /
      (std::string(test->test_suite_name()) + "." + test->name() + std::to_string(sizeof(void*) * 8));
  std::filesystem::create_directories(folder);
  return folder / name;
}

inline std::string Exported(Session* session) {
  const std::filesystem::path path = TestPath("export.csv");
  EXPECT_EQ(session->Export(path.string().c_str()), QZFILTER_SUCCESS);
  EXPECT_EQ(session->WriteError(), 0);
  std::string bytes = ReadFile(path);
  std::filesystem::remove(path);
  return bytes;
}

inline std::string Exported(const char* format, const qz::ClassRecord& record, bool useQuotes = true) {
  const std::unique_ptr<Session> session = NewSession(*FindFormat(format));
  *session->GetClass() = record;
  session->m_bUseQuotes = useQuotes;
  return Exported(session.get());
}

#endif  // GRADIX_TESTS_EXPORTED_H
