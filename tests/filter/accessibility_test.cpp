// The options dialogs as assistive technology finds them.
#include <QAccessible>
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
    for (int item = 1; item <= (format == kDetailed ? 17 : 20); ++item) {
      if (IsDecoration(Item(dialog, item))) continue;
      EXPECT_NE(NameOf(Item(dialog, item)), "") << format << " " << item;
      ++named;
    }
    EXPECT_EQ(named, 16);
    Key(dialog, Qt::Key_Escape);
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
