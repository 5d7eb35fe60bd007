// The widget of a list box: a list view over plain rows.
#ifndef GRADIX_QTLISTVIEW_H
#define GRADIX_QTLISTVIEW_H

#include <QAbstractListModel>
#include <QListView>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Ui/Lists.h"

namespace ui {

class ListRows : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void SetControl(ControlRef control) { m_control = control; }
  int Count() const { return static_cast<int>(m_rows.size()); }
  void Insert(int row);
  void SetText(int row, std::string_view text);
  const std::string& Text(int row) const { return m_rows[static_cast<size_t>(row)].text; }
  void Redraw(int row);
  void NoteCut(int row, bool isCut) { m_rows[static_cast<size_t>(row)].isCut = isCut; }
  int ColumnWidth(int column, const QFont& font);  // of the widest text behind that many tabs

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    std::string text;           // Mac OS Roman
    mutable bool read = false;  // somebody may know the text
    bool isCut = false;         // is drawn shortened
  };

  const ListDefinition* Definition() const;
  ListRef Ref() const { return reinterpret_cast<ListRef>(m_control); }

  std::deque<Row> m_rows;
  ControlRef m_control = nullptr;
  QFont m_measuredFont;
  std::map<int, int> m_columnWidths;  // those measured since a text changed
};

class QtListView : public QListView {
 public:
  explicit QtListView(QWidget* parent);

  void SetControl(ControlRef control);
  ListRows& rows() { return m_rows; }
  int RowHeight() const;
  int VisibleRowCount() const;
  void Select(int row);                 // as well as, or instead of, what is selected
  const std::vector<bool>& Selected();  // for each row
  void Settle();                        // lays the rows out now, even while the window is hidden

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  ListRows m_rows;
  std::vector<bool> m_selected;
  bool m_selectedIsValid = false;
};

// The list view of a list's control, null when that is gone or none.
QtListView* ListViewOf(ListRef list);

}  // namespace ui

#endif  // GRADIX_QTLISTVIEW_H
