// What a drawing procedure draws with.
#ifndef GRADIX_QTDRAWING_H
#define GRADIX_QTDRAWING_H

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QWidget>

#include "Platform/Core/MacTypes.h"

struct DrawContext {
  QPainter* painter;
  const QStyleOptionViewItem* option;  // of the row
  const QWidget* widget;               // the list
  bool isCut = false;                  // a text was shortened
};

namespace ui {

QRect ToQRect(const Rect& rect);
Rect ToRect(const QRect& rect);

}  // namespace ui

#endif  // GRADIX_QTDRAWING_H
