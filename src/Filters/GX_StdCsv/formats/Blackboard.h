// The gradebook files of the three generations of Blackboard.
#ifndef GRADIX_FORMATS_BLACKBOARD_H
#define GRADIX_FORMATS_BLACKBOARD_H

#include "Filters/GX_StdCsv/GradebookSession.h"

// As Blackboard writes it itself.
inline constexpr GradebookColumn kBlackboardScore = {
    .title = "{name} [Pts: {points-possible} Weight:: 0% Category:: Quiz]",
    .cell = "{points}",
    .quotes = Quotes::kBoth};
inline constexpr GradebookColumn kBlackboardTotal = {
    .title = "Running Total [Pts: {points-possible}]", .cell = "{running-total}", .quotes = Quotes::kBoth};

// This generation wants no student id behind the bar.
inline constexpr GradebookColumn kBlackboardStudent[] = {{
    .title = "Last Name, First Name (User Name) | Student Id",
    .cell = "{last-name}, {first-name} ({identifier}) | ",
    .quotes = Quotes::kBoth,
}};
inline constexpr GradebookColumn kBlackboardTotals[] = {
    kBlackboardTotal,
    {.title = "Running Weighted Total", .cell = "Not Applicable", .quotes = Quotes::kBoth},
};

inline constexpr GradebookLayout kBlackboard = {
    .leading = kBlackboardStudent,
    .score = kBlackboardScore,
    .noScore = "-",
    .trailing = kBlackboardTotals,
};

inline constexpr GradebookColumn kBlackboard9Student[] = {
    {.title = "Last Name", .cell = "{last-name}", .quotes = Quotes::kBoth},
    {.title = "First Name", .cell = "{first-name}", .quotes = Quotes::kBoth},
    {.title = "Username", .cell = "{identifier}", .quotes = Quotes::kBoth},
    {.title = "Student ID", .cell = "{student-id}", .quotes = Quotes::kBoth},
    {.title = "Last Access", .cell = "", .quotes = Quotes::kBoth},
    {.title = "Availability", .cell = "Yes", .quotes = Quotes::kBoth},
    {.title = "Weighted Total", .cell = "Not Applicable", .quotes = Quotes::kBoth},
};
inline constexpr GradebookColumn kBlackboard9Totals[] = {kBlackboardTotal};

inline constexpr GradebookLayout kBlackboard9 = {
    .leading = kBlackboard9Student,
    .score = kBlackboardScore,
    .noScore = "-",
    .trailing = kBlackboard9Totals,
    .quotesAreOptional = true,
};

// 6.0 - 7.0.
class SessionBlackboard final : public LayoutSession<kBlackboard> {
  using LayoutSession::LayoutSession;
};

// 8.0 - 9.0.
class SessionBlackboard9 final : public LayoutSession<kBlackboard9> {
  using LayoutSession::LayoutSession;
};

// Learn 9.1: the same file under a name of its own.
class SessionBlackboard91 final : public LayoutSession<kBlackboard9> {
  using LayoutSession::LayoutSession;
};

#endif  // GRADIX_FORMATS_BLACKBOARD_H
