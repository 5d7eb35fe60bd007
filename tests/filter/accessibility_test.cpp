// The options dialogs as assistive technology finds them.
#include <QAccessible>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>

#include "tests/filter/FilterFixture.h"

namespace {

class AccessibilityTest : public FilterTest {
 protected:
  static bool IsDecoration(const QWidget* widget) {
    const auto* const frame = qobject_cast<const QFrame*>(widget);
    return qobject_cast<const QGroupBox*>(widget) != nullptr ||
           (frame != nullptr && frame->frameShape() == QFrame::HLine);
  }

  static std::string NameOf(QObject* object) {
    QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(object);
    return found == nullptr ? std::string() : found->text(QAccessible::Name).toStdString();
  }
};

TEST_F(AccessibilityTest, EveryControlHasAName) {
  for (uint32_t format = 0; format < Module().formatCount(); ++format) {
    const QPointer<QWidget> dialog = Open(format, kSampleClass, 301);
    EXPECT_EQ(NameOf(dialog), dialog->windowTitle().toStdString());
    int named = 0;
    for (int item = 1; item <= (format == kDetailed ? 17 : 21); ++item) {
      if (IsDecoration(Item(dialog, item))) continue;
      EXPECT_NE(NameOf(Item(dialog, item)), "") << format << " " << item;
      ++named;
    }
    EXPECT_EQ(named, format == kDetailed ? 16 : 17);
    Key(dialog, Qt::Key_Escape);
  }
}

TEST_F(AccessibilityTest, PopupsAndListsHaveTheirTextAsLabel) {
  const struct {
    uint32_t format;
    int item, label;
  } rows[] = {{kCanvas, kFieldPopup, kPopupLabel},
              {kCanvas, kAssignments, kAssignmentsLabel},
              {kDetailed, kReportAssignment, 3},
              {kDetailed, kReportColumns, 4},
              {kDetailed, kReportFields, 11}};
  for (const auto& row : rows) {
    const QPointer<QWidget> dialog = Open(row.format, kSampleClass, 301);
    ASSERT_FALSE(dialog.isNull());
    QWidget* const item = Item(dialog, row.item);
    if (qobject_cast<QComboBox*>(item) != nullptr) {  // its name is its value
      const auto relations = QAccessible::queryAccessibleInterface(item)->relations(QAccessible::Label);
      ASSERT_EQ(relations.size(), 1) << row.item;
      EXPECT_EQ(relations.front().first->object(), Item(dialog, row.label)) << row.item;
    } else {
      EXPECT_EQ(NameOf(item) + ":", TextOf(dialog, row.label));
    }
    Key(dialog, Qt::Key_Escape);
  }
}

TEST_F(AccessibilityTest, AltAndTheUnderlinedLetterPressButtons) {
  for (const bool spanish : {false, true}) {
    for (const uint32_t format : {kCanvas, kDetailed}) {
      SCOPED_TRACE(format + (spanish ? 100 : 0));
      const QPointer<QWidget> dialog = Open(format, kSampleClass, 0, spanish);
      const int list = format == kDetailed ? static_cast<int>(kReportFields) : static_cast<int>(kAssignments);
      Key(dialog, spanish ? Qt::Key_M : Qt::Key_S, Qt::AltModifier);
      EXPECT_EQ(CheckedRows(dialog, list).size(), 12U);
      Key(dialog, spanish ? Qt::Key_D : Qt::Key_L, Qt::AltModifier | Qt::ShiftModifier);
      EXPECT_EQ(CheckedRows(dialog, list).size(), 0U);
      EXPECT_FALSE(IsGone(dialog));
      Key(dialog, Qt::Key_C, Qt::AltModifier);
      EXPECT_TRUE(IsGone(dialog));
    }
  }
}

TEST_F(AccessibilityTest, RowsHaveNamesAndChecks) {
  const QPointer<QWidget> dialog = Open(kCanvas, kSampleClass, 302);
  QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(Item(dialog, kAssignments));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->childCount(), 12);
  EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Quiz 2: Membranes, 2023-09-15");
  EXPECT_TRUE(list->child(1)->state().checked);
  EXPECT_FALSE(list->child(2)->state().checked);
}

}  // namespace
