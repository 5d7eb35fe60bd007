#include "Platform/Ui/Menus.h"

#include <QComboBox>
#include <algorithm>

#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"

namespace {

// A menu's reference is that of its control.
QComboBox* _ComboOf(MenuRef menu) {
  const ui::ControlRecord* const control = ui::FindControl(reinterpret_cast<ControlRef>(menu));
  return control == nullptr ? nullptr : qobject_cast<QComboBox*>(control->widget.data());
}

QString _RowText(const std::string& text) {
  constexpr size_t kLongest = 255;
  return ui::FromMacRoman(std::string_view(text).substr(0, kLongest));
}

}  // namespace

MenuRef GetControlPopupMenuHandle(ControlRef control) {
  const auto menu = reinterpret_cast<MenuRef>(control);
  return _ComboOf(menu) == nullptr ? nullptr : menu;
}

int32_t CountMenuItems(MenuRef menu) {
  const QComboBox* const combo = _ComboOf(menu);
  return combo == nullptr ? 0 : combo->count();
}

namespace {

// The selection is a row's number, whatever happens to the rows.
void _SelectNumber(QComboBox* combo, int index) {
  combo->setCurrentIndex(index < combo->count() ? index : -1);
}

}  // namespace

void InsertMenuItem(MenuRef menu, const std::string& text, int32_t after) {
  QComboBox* const combo = _ComboOf(menu);
  if (combo == nullptr) return;
  const ui::Quiet quiet;
  const int selected = combo->currentIndex();
  combo->insertItem(std::clamp(after, 0, combo->count()), _RowText(text));
  _SelectNumber(combo, selected);
}

void SetMenuItemText(MenuRef menu, int32_t row, const std::string& text) {
  QComboBox* const combo = _ComboOf(menu);
  if (combo != nullptr && row >= 1 && row <= combo->count()) combo->setItemText(row - 1, _RowText(text));
}

std::string GetMenuItemText(MenuRef menu, int32_t row) {
  const QComboBox* const combo = _ComboOf(menu);
  if (combo == nullptr || row < 1 || row > combo->count()) return {};
  return ui::ToMacRoman(combo->itemText(row - 1));
}
