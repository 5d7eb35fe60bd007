// What the fake filter records and how it answers. A test finds it as the symbol "gFake".
#ifndef GRADIX_FAKE_FILTER_H
#define GRADIX_FAKE_FILTER_H

#include "gradix/QZFilter.h"

struct FakeFilter {
  // answers
  uint32_t formatCount = 2;
  uint32_t failingFormat = 99;
  uint32_t beginStatus = QZFILTER_SUCCESS;
  uint32_t fileStatus = 1;
  QZEXPORTOUTCOME outcome{};
  void (*showDialog)() = nullptr;  // called by ExportFile unless null

  // records
  int attached = 0;
  int begins = 0;
  int files = 0;
  int ends = 0;
  unsigned long endedID = 0;
  unsigned long askedID = 0;
  QZEXPORTBEGIN begin{};
  QZEXPORTFILE file{};
  int16_t languageOfFile = -1;
  void* hostWindow = nullptr;
  void* module = nullptr;
};

#endif  // GRADIX_FAKE_FILTER_H
