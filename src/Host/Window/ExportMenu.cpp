#include "Host/Window/ExportMenu.h"

#include <QAction>
#include <QMenu>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "Host/App/Choices.h"
#include "Host/App/Mnemonics.h"
#include "Host/App/Texts.h"
#include "Host/Export/FileNames.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

// The text with the first of its letters as mnemonic that no earlier text has.
QString _WithMnemonic(const QString& text, QString* usedLetters) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar letter = text[i].toLower();
    if (!letter.isLetter() || usedLetters->contains(letter)) continue;
    usedLetters->append(letter);
    return EscapeMnemonics(text.left(i)) + u'&' + EscapeMnemonics(text.mid(i));
  }
  return EscapeMnemonics(text);
}

}  // namespace

ExportMenu::ExportMenu(QMenu* menu, ExportHandlers handlers)
    : m_menu(menu), m_handlers(std::move(handlers)) {}

void ExportMenu::SetFormats(std::vector<ExportFormat> formats) {
  m_formats = std::move(formats);
  Fill();
}

void ExportMenu::SetEnabled(bool throughDialog, bool fromHere) {
  m_throughDialog = throughDialog;
  m_fromHere = fromHere;
  for (const Way& way : m_ways) way.action->setEnabled(way.throughDialog ? throughDialog : fromHere);
}

void ExportMenu::OrderChanged() {
  if (m_first == FormatsInTeachersOrder().inUse.front()) return;
  QTimer::singleShot(0, m_menu, [this] { Fill(); });
}

const ExportFormat* ExportMenu::FormatOf(const FormatRow& row) const {
  const auto found =
      std::ranges::find_if(m_formats, [&](const ExportFormat& each) { return RowOf(each) == &row; });
  return found != m_formats.end() ? &*found : nullptr;
}

// What the filter offers and this program does not know comes last: its dialog is all there is.
void ExportMenu::Fill() {
  m_menu->clear();
  qDeleteAll(m_menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
  m_ways.clear();
  QString usedLetters;
  const FormatOrder order = FormatsInTeachersOrder();
  m_first = order.inUse.front();
  for (const FormatRow* row : order.inUse) AddSystem(row, FormatOf(*row), row == m_first, &usedLetters);
  m_menu->addSeparator();
  for (const FormatRow* row : order.retired) AddSystem(row, FormatOf(*row), false, &usedLetters);
  for (const ExportFormat& format : m_formats) {
    if (RowOf(format) == nullptr) AddSystem(nullptr, &format, false, &usedLetters);
  }
  SetEnabled(m_throughDialog, m_fromHere);
}

void ExportMenu::AddSystem(const FormatRow* row, const ExportFormat* format, bool isFirst,
                           QString* usedLetters) {
  const QString title = row != nullptr ? FormatTitle(*row) : ShortFormatName(format->name);
  QMenu* const menu = m_menu->addMenu(_WithMnemonic(title, usedLetters));
  menu->setObjectName(row != nullptr ? QString::fromLatin1(row->key) : title);
  menu->setToolTipsVisible(true);
  if (format != nullptr) {
    AddWay(menu, Texts::tr("With the &Export Window…"), "throughDialog",
           isFirst ? int{Qt::CTRL} | int{Qt::Key_E} : 0, true,
           [this, format = *format] { m_handlers.throughDialog(format); });
  }
  if (row == nullptr) return;
  const bool hasCurrent = FindCurrentFile(*row) != nullptr;
  AddWay(menu, hasCurrent ? Texts::tr("&Current File…") : Texts::tr("&Classic File…"), "ownExport",
         isFirst ? int{Qt::CTRL} | int{Qt::SHIFT} | int{Qt::Key_E} : 0, false,
         [this, row] { m_handlers.ownExport(*row); });
  if (SystemOf(*row).download == nullptr) return;
  AddWay(menu, Texts::tr("Fill In a &Downloaded Gradebook…"), "fill",
         isFirst ? int{Qt::CTRL} | int{Qt::Key_D} : 0, false, [this, row] { m_handlers.fill(*row); });
}

void ExportMenu::AddWay(QMenu* menu, const QString& text, const char* name, int shortcut, bool throughDialog,
                        std::function<void()> act) {
  QAction* const action = menu->addAction(text, menu, std::move(act));
  action->setObjectName(QString::fromLatin1(name));
  if (shortcut != 0) action->setShortcut(QKeySequence(shortcut));
  m_ways.push_back({action, throughDialog});
}

}  // namespace host
