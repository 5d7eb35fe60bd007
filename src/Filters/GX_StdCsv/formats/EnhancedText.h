// Detailed results as text: one assignment, question by question. Its columns and lines are chosen by the
// class record's optionValue and options.
#ifndef GRADIX_FORMATS_ENHANCEDTEXT_H
#define GRADIX_FORMATS_ENHANCEDTEXT_H

#include "Filters/GX_StdCsv/Session.h"

class SessionEnhancedText : public Session {
 public:
  using Session::Session;

  // Returns QZFILTER_FAILED, and creates no file, when no assignment is selected.
  uint32_t Export(const char* path) override;

 private:
  void Write(std::FILE* file) override;
};

#endif  // GRADIX_FORMATS_ENHANCEDTEXT_H
