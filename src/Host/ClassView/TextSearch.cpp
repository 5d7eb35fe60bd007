#include "Host/ClassView/TextSearch.h"

#include <QAbstractItemModel>

#include "Host/ClassView/ClassTableModel.h"

namespace host {

namespace {

// Letters with a stroke, which no decomposition takes off.
QChar _WithoutStroke(QChar letter) {
  switch (letter.unicode()) {
    case u'ł': return u'l';
    case u'ø': return u'o';
    case u'đ': return u'd';
    case u'ı': return u'i';
    default: return letter;
  }
}

}  // namespace

QString FoldedText(const QString& text) {
  QString folded;
  for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
    if (letter.category() != QChar::Mark_NonSpacing) folded += _WithoutStroke(letter);
  }
  return folded;
}

std::vector<TablePlace> FindInTable(const QAbstractItemModel& model, int columns, const QString& text) {
  std::vector<TablePlace> found;
  const QString wanted = FoldedText(text);
  if (wanted.isEmpty()) return found;
  const auto look = [&](TablePlace place, const QVariant& value) {
    if (FoldedText(value.toString()).contains(wanted)) found.push_back(place);
  };
  for (int column = 0; column < model.columnCount(); ++column) {
    look({.column = column}, model.headerData(column, Qt::Horizontal, ClassTableModel::kValueRole));
  }
  for (int row = 0; row < model.rowCount(); ++row) {
    for (int column = 0; column < columns; ++column) {
      look({row, column}, model.index(row, column).data(ClassTableModel::kValueRole));
    }
  }
  return found;
}

}  // namespace host
