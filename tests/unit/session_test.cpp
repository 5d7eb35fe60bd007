#include "Filters/GX_StdCsv/Session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <limits>
#include <random>
#include <string>

#include "Filters/GX_StdCsv/CommaSeparatedLine.h"
#include "Filters/GX_StdCsv/FilterState.h"
#include "Filters/GX_StdCsv/ResultsJoin.h"
#include "Filters/GX_StdCsv/SessionMgr.h"
#include "Filters/GX_StdCsv/formats/Canvas.h"
#include "tests/support/Exported.h"

namespace {

TEST(CommaSeparatedLine, SeparatesTheItemsThatAreOn) {
  const std::string path = TestPath("line").string();
  std::FILE* file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  CommaSeparatedLine line(file, 0x6);
  line.InsertMaskedItem("off", 1);
  line.InsertMaskedItem("on", 2);
  line.InsertMaskedItem("half on", 3);
  line.InsertMaskedItem("", 4);
  line.InsertMaskedItem(nullptr, 4);
  line.InsertMaskedItem("no \"mask\"", 0);
  line.InsertNewLine();
  line.InsertMaskedItem("", 2);
  line.InsertComma();
  line.InsertNewLine();
  std::fclose(file);
  EXPECT_EQ(ReadFile(path), "\"on\",,,\"no 'mask'\"\n,\n");
}

TEST(SessionMgr, NumbersSessionsUntilTheyEnd) {
  SessionMgr manager;
  QZEXPORTBEGIN begin{};
  begin.formatIndex = QZFilter_GetNumExportFormatsA();
  EXPECT_EQ(begin.formatIndex, 11U) << "no other test knows the number";
  EXPECT_THROW(manager.CreateSession(&begin), const char*);
  begin.formatIndex = 6;
  begin.host8[1] = 42;
  begin.chooseFileValue = 99;
  const unsigned long first = manager.CreateSession(&begin);
  EXPECT_EQ(first, 0xFAA00000UL) << "a failed creation takes no number";
  EXPECT_EQ(manager.CreateSession(&begin), 0xFAA00001UL);

  Session* session = manager.GetSession(first);
  ASSERT_NE(dynamic_cast<SessionCanvas*>(session), nullptr);
  EXPECT_EQ(session->GetExportInfo().host8[1], 42U);
  EXPECT_EQ(session->GetExportInfo().chooseFileValue, 99U);
  EXPECT_EQ(session->GetClass()->customLabels[2], "Custom 3");
  EXPECT_EQ(session->GetClass()->userIDField, qz::kUserIDAlias);

  manager.EndSession(first);
  manager.EndSession(first);
  manager.EndSession(12345);
  EXPECT_EQ(manager.GetSession(first), nullptr);
  EXPECT_NE(manager.GetSession(0xFAA00001UL), nullptr);
}

TEST(EntryPoints, KeepAnOutcomeUntilTheNextSession) {
  const auto stateOf = [](unsigned long id) {
    QZEXPORTOUTCOME outcome{};
    outcome.size = sizeof outcome;
    outcome.state = 99;
    return QZFilter_GetExportOutcome(id, &outcome) == QZFILTER_SUCCESS ? outcome.state : 98;
  };
  QZEXPORTBEGIN begin{};
  unsigned long first = 0;
  unsigned long second = 0;
  unsigned long third = 0;
  EXPECT_EQ(QZFilter_ExportBeginA(nullptr, &begin, nullptr), QZFILTER_FAILED);
  EXPECT_EQ(QZFilter_ExportBeginA(nullptr, nullptr, &first), QZFILTER_FAILED);
  ASSERT_EQ(QZFilter_ExportBeginA(nullptr, &begin, &first), QZFILTER_SUCCESS);
  ASSERT_EQ(QZFilter_ExportBeginA(nullptr, &begin, &second), QZFILTER_SUCCESS);
  EXPECT_EQ(QZFilter_ExportEnd(first), QZFILTER_SUCCESS);
  EXPECT_EQ(stateOf(first), QZFILTER_PENDING) << "the options dialog ends the session, not the host";
  EXPECT_EQ(QZFilter_ExportEnd(12345), QZFILTER_SUCCESS);
  g_sessionMgr.EndSession(first);
  begin.formatIndex = QZFilter_GetNumExportFormatsA();
  EXPECT_EQ(QZFilter_ExportBeginA(nullptr, &begin, &third), QZFILTER_FAILED);
  EXPECT_EQ(third, 0UL);
  EXPECT_EQ(stateOf(first), QZFILTER_CANCELLED) << "no session has begun";
  begin.formatIndex = 6;
  ASSERT_EQ(QZFilter_ExportBeginA(nullptr, &begin, &third), QZFILTER_SUCCESS);
  EXPECT_EQ(stateOf(first), 98U);
  EXPECT_EQ(stateOf(second), QZFILTER_PENDING);

  EXPECT_EQ(QZFilter_GetExportOutcome(third, nullptr), QZFILTER_FAILED);
  g_sessionMgr.EndSession(second);
  g_sessionMgr.EndSession(third);
}

TEST(EntryPoints, TellAHostWhatItsRecordHasRoomFor) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = 6;
  unsigned long id = 0;
  ASSERT_EQ(QZFilter_ExportBeginA(nullptr, &begin, &id), QZFILTER_SUCCESS);
  const uint32_t chosen[] = {3};
  QZEXPORTOUTCOME& kept = g_sessionMgr.FindOutcome(id)->told;
  kept.chosenAssignments = chosen;
  kept.students = 30;
  std::memcpy(kept.path + QZFILTER_PATH_SIZE, "end", sizeof "end");

  constexpr uint32_t kNow = sizeof(QZEXPORTOUTCOME);
  const struct {
    const char* name;
    uint32_t size, known;
  } rows[] = {{"none", 295, 0},
              {"the first", 296, 296},
              {"between versions, where a pointer would be half there", 300, 296},
              {"this one", kNow, kNow},
              {"a later one", kNow + 8, kNow}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    constexpr char kBeyond = 'Z';
    std::string record(kNow + 16, kBeyond);
    std::memcpy(record.data(), &row.size, sizeof row.size);
    std::string expected = record;
    if (row.known != 0) expected.replace(0, row.size, row.size, '\0');
    QZEXPORTOUTCOME told = kept;
    told.size = row.size;
    std::memcpy(expected.data(), &told, std::max<size_t>(row.known, sizeof told.size));
    EXPECT_EQ(QZFilter_GetExportOutcome(id, reinterpret_cast<QZEXPORTOUTCOME*>(record.data())),
              row.known == 0 ? QZFILTER_FAILED : QZFILTER_SUCCESS);
    EXPECT_EQ(record, expected);
  }
  g_sessionMgr.EndSession(id);
}

TEST(Session, TellsWhyItsFileIsNotThere) {
  const auto session = NewSession(*FindFormat("canvas"));
  EXPECT_EQ(session->Export(TestPath("no-such-folder/x.csv").string().c_str()), QZFILTER_FILE_NOT_CREATED);
  EXPECT_EQ(session->WriteError(), ENOENT);
  EXPECT_EQ(session->Export("/dev/full"), QZFILTER_SUCCESS) << "the host is told no more";
  EXPECT_EQ(session->WriteError(), ENOSPC);
  Exported(session.get());  // and the next export starts afresh
}

// The join has to give the answers of the linear search, repeated ids and all.
TEST(ResultsJoin, AnswersAsTheLinearSearchDoes) {
  std::mt19937 random(1);
  std::uniform_int_distribution<int32_t> ids(-3, 12);
  for (int round = 0; round < 200; ++round) {
    std::vector<qz::StudentRecord> students(static_cast<size_t>(round % 20));
    for (qz::StudentRecord& student : students) student.id = ids(random);
    std::vector<qz::AssignmentRecord> assignments(3);
    double points = 0.0;
    for (qz::AssignmentRecord& assignment : assignments) {
      assignment.results.resize(static_cast<size_t>(ids(random)) + 3);
      for (qz::ResultsRecord& results : assignment.results) {
        results.studentID = ids(random);
        results.responses.push_back({0, 0, "", ++points});
      }
    }
    const ScoreTable scores(students, {&assignments[0], &assignments[1], &assignments[2]});
    for (size_t a = 0; a < assignments.size(); ++a) {
      const auto found = RosterIndex(students).FindResults(assignments[a]);
      ASSERT_EQ(found.size(), students.size());
      for (size_t i = 0; i < students.size(); ++i) {
        const qz::ResultsRecord* expected = assignments[a].FindResultsForStudent(students[i].id);
        EXPECT_EQ(found[i], expected);
        EXPECT_EQ(scores.Find(i, a),
                  expected == nullptr ? std::nullopt : std::optional(expected->GetTotalPoints()));
      }
    }
  }
}

// Which of two NaNs a sum has is the processor's choice, so the sum itself keeps the first: files show its
// sign.
TEST(TotalPoints, KeepTheFirstOfTwoNaNs) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double first : {nan, -nan}) {
    qz::ResultsRecord results;
    for (const double points : {1.0, first, -first, 2.0}) results.responses.push_back({0, 0, "", points});
    EXPECT_TRUE(std::isnan(results.GetTotalPoints()));
    EXPECT_EQ(std::signbit(results.GetTotalPoints()), std::signbit(first));
  }
}

}  // namespace
