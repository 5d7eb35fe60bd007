// The Export menu: the systems in the order a teacher expects, each with the ways to get results into it.
#ifndef GRADIX_EXPORTMENU_H
#define GRADIX_EXPORTMENU_H

#include <QList>
#include <functional>
#include <optional>
#include <vector>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Host/Export/FilterModule.h"

class QAction;
class QMenu;

namespace host {

struct ExportHandlers {
  std::function<void(const ExportFormat& format)> throughDialog;
  std::function<void(const FormatRow& format)>
      ownExport;  // the current file; the classic one where there is none
  std::function<void(const FormatRow& format)> fill;
};

// Fills a menu, which owns what is put into it and outlives this.
class ExportMenu {
 public:
  ExportMenu(QMenu* menu, ExportHandlers handlers);
  ExportMenu(const ExportMenu&) = delete;
  ExportMenu& operator=(const ExportMenu&) = delete;

  // Those of the filter; without a filter none.
  void SetFormats(std::vector<ExportFormat> formats);

  void SetEnabled(bool throughDialog, bool fromHere);

  // Another system was used last. May be called while the menu is at work.
  void OrderChanged();

  // Told of a change of the language.
  void Retranslate() { Fill(); }

 private:
  struct Way {
    QAction* action;
    bool throughDialog;
  };

  void Fill();
  void AddSystem(const FormatRow* row, const ExportFormat* format, bool isFirst, QString* usedLetters);
  void AddWay(QMenu* menu, const QString& text, const char* name, int shortcut, bool throughDialog,
              std::function<void()> act);
  const ExportFormat* FormatOf(const FormatRow& row) const;

  QMenu* m_menu;
  ExportHandlers m_handlers;
  std::vector<ExportFormat> m_formats;
  const FormatRow* m_first = nullptr;
  std::vector<Way> m_ways;
  bool m_throughDialog = false;
  bool m_fromHere = false;
};

}  // namespace host

#endif  // GRADIX_EXPORTMENU_H
