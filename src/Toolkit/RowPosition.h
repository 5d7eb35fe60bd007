// Where a new row goes in a list box or a combo box.
#ifndef GRADIX_ROWPOSITION_H
#define GRADIX_ROWPOSITION_H

#include <cstdint>
#include <string>

// Positions with a meaning of their own; any other is a row index.
enum RowPosition : int32_t {
  kRowTop = -1,
  kRowLast = -2,
  kRowSorted = -3,  // before the first row that is greater, without regard to ASCII case
};

// The row index, 0..count, that a position stands for in `count` rows whose texts `textOf` gives; an index
// outside of them is the nearer end. `textOf` is asked for kRowSorted only.
int32_t ResolveRowPosition(int32_t position, const char* text, int32_t count,
                           std::string (*textOf)(void* rows, int32_t row), void* rows);

#endif  // GRADIX_ROWPOSITION_H
