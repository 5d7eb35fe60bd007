// Writes a large class file to standard output, to measure readers and writers with.
//
//   generate_class STUDENTS ASSIGNMENTS QUESTIONS [SEED]
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>
#include <system_error>

#include "bench/ClassGenerator.h"

namespace {

constexpr uint32_t kMaxCount = 10'000'000;
constexpr const char* kUsage =
    "usage: generate_class STUDENTS ASSIGNMENTS QUESTIONS [SEED]\n"
    "Writes a class file to standard output. The counts go from 0 to 10000000; SEED is 1 if not given.\n";

std::optional<uint32_t> _ParseNumber(std::string_view text, uint32_t limit) {
  uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number > limit) return std::nullopt;
  return number;
}

std::optional<ClassPlan> _ParseArguments(int argc, char** argv) {
  if (argc != 4 && argc != 5) return std::nullopt;
  const auto students = _ParseNumber(argv[1], kMaxCount);
  const auto assignments = _ParseNumber(argv[2], kMaxCount);
  const auto questions = _ParseNumber(argv[3], kMaxCount);
  const auto seed = argc == 5 ? _ParseNumber(argv[4], UINT32_MAX) : 1U;
  if (!students || !assignments || !questions || !seed) return std::nullopt;
  return ClassPlan{*students, *assignments, *questions, *seed, {}, {}};
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<ClassPlan> plan = _ParseArguments(argc, argv);
  if (!plan) {
    std::cerr << kUsage;
    return 2;
  }
  std::ios::sync_with_stdio(false);
  static std::array<char, 1 << 20> buffer;  // std::cout outlives this function
  std::cout.rdbuf()->pubsetbuf(buffer.data(), buffer.size());
  WriteClassFile(std::cout, *plan);
  if (std::cout.flush()) return EXIT_SUCCESS;
  std::cerr << "generate_class: cannot write\n";
  return EXIT_FAILURE;
}
