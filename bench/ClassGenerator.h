// Makes class files up, small ones for tests and large ones to measure with.
#ifndef GRADIX_CLASSGENERATOR_H
#define GRADIX_CLASSGENERATOR_H

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

struct NamedAssignment {
  int32_t id;
  std::string name;
};

struct ClassPlan {
  uint32_t students = 0;
  uint32_t assignments = 0;
  uint32_t questions = 0;  // of each assignment
  uint32_t seed = 1;
  std::vector<std::string> studentIDs;  // of the first students; the others get numbers of nine digits
  std::vector<NamedAssignment> named;   // the first assignments; the others are "Quiz n" with id n
};

// Every student takes every assignment and answers every question; ids count from 1. The texts are written as
// they are, without escaping. The same plan gives the same bytes on every platform: chance comes from the
// Mersenne Twister, whose sequence the C++ standard fixes, and from nothing of the library's distributions or
// `std::shuffle`.
void WriteClassFile(std::ostream& out, const ClassPlan& plan);

// A class of these students and assignments, with one question each.
std::string ClassXml(const std::vector<std::string>& studentIDs,
                     const std::vector<NamedAssignment>& assignments = {{7, "Quiz"}});

#endif  // GRADIX_CLASSGENERATOR_H
