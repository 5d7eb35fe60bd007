// The bar below the table where a search is typed.
#ifndef GRADIX_FINDBAR_H
#define GRADIX_FINDBAR_H

#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace host {

class FindBar : public QWidget {
 public:
  struct Actions {
    std::function<void()> changed;  // the text
    std::function<void(bool backwards)> next;
    std::function<void()> close;
  };

  FindBar(QWidget* parent, Actions actions);

  QString Text() const;

  // Shows the bar and goes to its field.
  void Open();

  // The which-th of so many, from 1; nothing while no text is typed.
  void ShowResult(size_t which, size_t count);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Retranslate();

  Actions m_actions;
  QLabel* m_label;
  QLineEdit* m_field;
  QPushButton* m_previous;
  QPushButton* m_next;
  QLabel* m_result;
  QToolButton* m_close;
  size_t m_which = 0;
  size_t m_count = 0;
};

}  // namespace host

#endif  // GRADIX_FINDBAR_H
