// How far a long run is, on one line of the terminal that is gone in the end.
#ifndef GRADIX_PROGRESSLINE_H
#define GRADIX_PROGRESSLINE_H

#include <chrono>
#include <cstddef>

class ProgressLine {
 public:
  // Shows nothing unless it is `allowed`, and where standard error is no terminal, or one that cannot move
  // the cursor.
  ProgressLine(size_t total, bool allowed);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // One more is done.
  void Advance();

 private:
  size_t m_total;
  size_t m_done = 0;
  bool m_isShown;
  bool m_isDrawn = false;
  std::chrono::steady_clock::time_point m_next;  // when it may be drawn again
};

#endif  // GRADIX_PROGRESSLINE_H
