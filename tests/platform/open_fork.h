// A resource file that is current while the object lives.
#ifndef GRADIX_OPEN_FORK_H
#define GRADIX_OPEN_FORK_H

#include "Platform/Core/Files.h"
#include "Platform/Core/Resources.h"
#include "tests/platform/fork_builder.h"
#include "tests/platform/temp_folder.h"

class OpenFork {
 public:
  explicit OpenFork(const TestTypes& types) {
    FSRef file;
    const std::string path = m_folder.Write("Test.rsrc", BuildFork(types));
    EXPECT_EQ(FSPathMakeRef(path.c_str(), &file, nullptr), noErr);
    EXPECT_EQ(FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &m_file), noErr);
  }
  ~OpenFork() { CloseResFile(m_file); }
  OpenFork(const OpenFork&) = delete;
  OpenFork& operator=(const OpenFork&) = delete;

 private:
  TempFolder m_folder;
  ResFileRefNum m_file = 0;
};

#endif  // GRADIX_OPEN_FORK_H
