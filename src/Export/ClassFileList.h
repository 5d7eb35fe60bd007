// The class files that somebody named, some of them by their folders.
#ifndef GRADIX_EXPORT_CLASSFILELIST_H
#define GRADIX_EXPORT_CLASSFILELIST_H

#include <string>
#include <vector>

struct ListedClass {
  std::string path;
  int folderError = 0;  // an errno value: it is a folder, and why its class files are unknown
};

struct ClassFileList {
  std::vector<ListedClass> classes;       // as they were named, those of a folder by name
  std::vector<std::string> emptyFolders;  // without a class file
};

// A folder stands for its files whose names end in .xml, in any letter case, and, with `recursive`, for those
// of its subfolders. Hidden files and folders do not count, and links to folders are not followed. Every
// other path stands for itself, whether there is such a file or not.
ClassFileList ListClassFiles(const std::vector<std::string>& paths, bool recursive);

// The file's name without its folder and without .xml.
std::string ClassBaseName(const std::string& path);

#endif  // GRADIX_EXPORT_CLASSFILELIST_H
