// The gradebook file of Schoology: Moodle's layout under another title.
#ifndef GRADIX_FORMATS_SCHOOLOGY_H
#define GRADIX_FORMATS_SCHOOLOGY_H

#include "Filters/GX_StdCsv/formats/Moodle.h"

// A Moodle file but for its first cell.
class SessionSchoology : public SessionMoodle {
 public:
  using SessionMoodle::SessionMoodle;

 private:
  void WriteHeader(std::FILE* file, const Columns& columns) override;
};

#endif  // GRADIX_FORMATS_SCHOOLOGY_H
