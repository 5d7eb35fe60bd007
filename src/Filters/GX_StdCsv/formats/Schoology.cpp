#include "Filters/GX_StdCsv/formats/Schoology.h"

void SessionSchoology::WriteHeader(std::FILE* file, const Columns& columns) {
  WriteText(file, "User Unique ID");
  WriteAssignmentNames(file, columns);
  WriteText(file, "\n");
}
