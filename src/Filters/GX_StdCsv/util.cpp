#include "Filters/GX_StdCsv/util.h"

#include "Common/QZData/QZString.h"

char* StripSpaces(char* text, bool leading, bool trailing) {
  return qz::StripSpaces(text, leading, trailing);
}
