// Numbers as the language writes them.
#ifndef GRADIX_NUMBERS_H
#define GRADIX_NUMBERS_H

#include <QString>
#include <cstddef>

namespace host {

// With at most two decimals: 7, 7.5, 7.33.
QString NumberText(double number);

// How many there are.
QString CountText(size_t count);

}  // namespace host

#endif  // GRADIX_NUMBERS_H
