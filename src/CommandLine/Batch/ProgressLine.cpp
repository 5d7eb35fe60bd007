#include "CommandLine/Batch/ProgressLine.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr auto kInterval = std::chrono::milliseconds(100);
constexpr const char* kClearLine = "\r\x1b[K";

bool _IsTerminal() {
  const char* kind = std::getenv("TERM");
  return isatty(STDERR_FILENO) != 0 && kind != nullptr && std::string_view(kind) != "dumb";
}

}  // namespace

ProgressLine::ProgressLine(size_t total, bool allowed)
    : m_total(total),
      m_isShown(allowed && _IsTerminal()),
      m_next(std::chrono::steady_clock::now() + kInterval) {}

ProgressLine::~ProgressLine() {
  if (m_isDrawn) std::fputs(kClearLine, stderr);
}

void ProgressLine::Advance() {
  ++m_done;
  if (!m_isShown) return;
  const auto now = std::chrono::steady_clock::now();
  if (now < m_next) return;
  m_next = now + kInterval;
  m_isDrawn = true;
  std::fprintf(stderr, "%s%zu of %zu classes", kClearLine, m_done, m_total);
}
