// Students and assignments named in a sentence: a handful, the others counted.
#ifndef GRADIX_NAMELIST_H
#define GRADIX_NAMELIST_H

#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

#include "Common/QZData/ClassTexts.h"

namespace host {

// "Mia Becker, Noah Carter and 3 more", in the current language.
QString NameList(const QStringList& names);

// The same of students at these positions; whoever has no name by the number of the row.
QString StudentNames(const std::vector<size_t>& students, const qz::ClassTexts& texts);

}  // namespace host

#endif  // GRADIX_NAMELIST_H
