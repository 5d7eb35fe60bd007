// List Manager: the rows of a list box control. Rows count from 0; texts are Mac OS Roman of any length.
//
// Every call accepts null and a list whose control is gone.
#ifndef GRADIX_LISTS_H
#define GRADIX_LISTS_H

#include <string>
#include <string_view>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Controls.h"
#include "Platform/Ui/Drawing.h"

struct OpaqueList;
using ListRef = OpaqueList*;

// How the lists of one definition id ('ldes') look and, with checks, where their check marks are kept. All
// procedures may be null.
struct ListDefinition {
  // Draws one row. `hasFocus`: the list has the keyboard.
  void (*draw)(DrawContext* context, ListRef list, int32_t row, const Rect& bounds, bool selected,
               bool hasFocus) = nullptr;
  bool hasChecks = false;
  // The check state of a row, for assistive technology.
  bool (*isChecked)(ListRef list, int32_t row) = nullptr;
  // Assistive technology wants the row's check state to be `on`.
  void (*setChecked)(ListRef list, int32_t row, bool on) = nullptr;
};

// Replaces an earlier definition of that id. Lists find theirs by id whenever they draw.
void RegisterListDefinition(int16_t id, const ListDefinition& definition);
const ListDefinition* FindListDefinition(int16_t id);  // null when not registered

ListRef GetControlList(ControlRef control);  // null when the control is no list box
ControlRef GetListControl(ListRef list);
int16_t GetListDefinitionID(ListRef list);
void SetListRefCon(ListRef list, intptr_t value);
intptr_t GetListRefCon(ListRef list);

int32_t LGetCount(ListRef list);
// Inserts an empty row before `row` (clamped to 0..count); gives its index, -1 on failure. The selection
// stays with its rows.
int32_t LAddRow(ListRef list, int32_t row);
void LSetCell(ListRef list, int32_t row, std::string_view text);
std::string LGetCell(ListRef list, int32_t row);  // empty when there is no such row

// One selected row at most, or any number.
void LSetMultipleSelection(ListRef list, bool on);
void LSetSelect(ListRef list, int32_t row, bool on);  // others stay; reports nothing
// Selects the rows first..last and no others, in one step; none when last < first. Reports nothing.
void LSelectRange(ListRef list, int32_t first, int32_t last);
bool LIsSelected(ListRef list, int32_t row);
int32_t LNextSelected(ListRef list, int32_t from);  // the first selected row at or after `from`, or -1
void LClearSelection(ListRef list);

void LSetDrawingMode(ListRef list, bool on);  // off: changes do not show until it is on again
void LDraw(ListRef list, int32_t row);        // one row again; -1: all
void LScrollTo(ListRef list, int32_t row);    // as far as needed for the row to show
// Of the widest text behind that many tabs in any row; 0 when there is none.
int32_t LGetColumnWidth(ListRef list, int32_t column);
int32_t LGetTopRow(ListRef list);
int32_t LGetVisibleRowCount(ListRef list);      // whole rows that fit; at least 1
int32_t LRowAt(ListRef list, Point where);      // window co-ordinates; -1: below the rows or outside
Rect LGetRowBounds(ListRef list, int32_t row);  // window co-ordinates, as scrolled
bool LIsInScrollBar(ListRef list, Point where);
void LSetScrollBarVisible(ListRef list, bool on);

#endif  // GRADIX_LISTS_H
