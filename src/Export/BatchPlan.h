// Which file each of many classes goes to.
#ifndef GRADIX_EXPORT_BATCHPLAN_H
#define GRADIX_EXPORT_BATCHPLAN_H

#include <string>
#include <vector>

#include "Export/ClassFileList.h"
#include "Filters/GX_StdCsv/FormatTable.h"

struct BatchItem {
  ListedClass source;
  std::string outputPath;  // empty: the source is a folder that could not be read
};

// Why the batch cannot begin.
struct BatchConflict {
  std::string classPath;
  std::string otherPath;  // of the class that would be written to the same file; empty: a class file is there
  std::string outputPath;
};

struct BatchPlan {
  std::vector<BatchItem> items;
  std::vector<BatchConflict> conflicts;
};

// Each class goes to CLASS-FORMAT.csv in the folder, which need not exist. A file that is named twice is one
// class. Names that differ in letter case only are one file, as they are on some disks, and so are links to
// one file.
BatchPlan PlanBatch(const std::vector<ListedClass>& classes, const std::string& folder,
                    const FormatRow& format);

#endif  // GRADIX_EXPORT_BATCHPLAN_H
