// Two lists of what was not matched, side by side, where one of each side can be joined by hand.
#ifndef GRADIX_JOINPANEL_H
#define GRADIX_JOINPANEL_H

#include <QString>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace host {

struct JoinEntry {
  size_t position;  // whose, the caller knows
  QString text;
  bool isJoined = false;  // by hand; only of ours, which come first
};

// What the panel says; each with its mnemonic.
struct JoinTexts {
  QString ours, theirs, join, undo;
};

class JoinPanel : public QWidget {
 public:
  struct Handlers {
    std::function<void(size_t ours, size_t theirs)> join;
    std::function<void(size_t ours)> undo;
  };

  // The widgets' names begin with `name`.
  JoinPanel(QWidget* parent, const QString& name, Handlers handlers);

  void Show(const std::vector<JoinEntry>& ours, const std::vector<JoinEntry>& theirs, const JoinTexts& texts);

 private:
  void Join();
  void Undo();
  void UpdateButtons();

  Handlers m_handlers;
  QLabel* m_oursLabel;
  QLabel* m_theirsLabel;
  QListWidget* m_ours;
  QListWidget* m_theirs;
  QPushButton* m_join;
  QPushButton* m_undo;
};

}  // namespace host

#endif  // GRADIX_JOINPANEL_H
