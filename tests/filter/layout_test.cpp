// Whether the options dialogs have room for their texts, whatever the desktop's font is.
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <ostream>

#include "tests/filter/FilterFixture.h"

namespace {

class Layout : public FilterTest, public testing::WithParamInterface<std::tuple<const char*, int>> {
 protected:
  static QFont Font() { return {QString::fromLatin1(std::get<0>(GetParam())), std::get<1>(GetParam())}; }

  void SetUp() override {
    FilterTest::SetUp();
    m_font = QApplication::font();
    QApplication::setFont(Font());
    ASSERT_EQ(QFontInfo(Font()).family(), Font().family()) << "is not installed";
  }

  void TearDown() override {
    QApplication::setFont(m_font);
    FilterTest::TearDown();
  }

 private:
  QFont m_font;
};

// The size without which the widget cuts its text.
QSize _Needed(const QWidget& widget) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    // The line below the field popup may be cut, but two lines of it show.
    if (gestures::Item(label->window(), kFieldLine) == label)
      return {0, 2 * label->fontMetrics().lineSpacing()};
    const QRect text =
        label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 0), Qt::TextWordWrap, label->text());
    return {text.width(), std::max(text.height(), label->heightForWidth(label->width()))};
  }
  if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = false;
    const QRect field =
        combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
    int width = 0;
    for (int row = 0; row < combo->count(); ++row) {
      width = std::max(width, combo->fontMetrics().horizontalAdvance(combo->itemText(row)));
    }
    return {width + combo->width() - field.width(), combo->fontMetrics().height() + 4};
  }
  if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) return group->minimumSizeHint();
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) return widget.sizeHint();
  return {};
}

bool _MayHold(const QWidget& outer, const QWidget& inner) {
  const auto* const group = qobject_cast<const QGroupBox*>(&outer);
  return group != nullptr && group->contentsRect().translated(group->pos()).contains(inner.geometry());
}

std::vector<QWidget*> _VisibleItems(const QWidget& dialog) {
  std::vector<QWidget*> items;
  for (QWidget* const item : dialog.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (item->isVisible() && item->objectName().startsWith("item")) items.push_back(item);
  }
  return items;
}

std::string _NameOf(const QWidget& item) {
  return item.objectName().toStdString() + " \"" + item.accessibleName().toStdString() + "\"";
}

void _ExpectRoomForAll(const QWidget& dialog) {
  const std::vector<QWidget*> items = _VisibleItems(dialog);
  EXPECT_GE(items.size(), 15U);
  for (size_t i = 0; i < items.size(); ++i) {
    const QWidget& item = *items[i];
    EXPECT_LE(_Needed(item).width(), item.width()) << _NameOf(item);
    EXPECT_LE(_Needed(item).height(), item.height()) << _NameOf(item);
    EXPECT_TRUE(dialog.rect().contains(item.geometry())) << _NameOf(item);
    for (size_t j = 0; j < i; ++j) {
      const QWidget& other = *items[j];
      if (_MayHold(item, other) || _MayHold(other, item)) continue;
      EXPECT_FALSE(item.geometry().intersects(other.geometry())) << _NameOf(item) << ", " << _NameOf(other);
    }
  }
}

TEST_P(Layout, HasRoomForItsTexts) {
  for (const bool spanish : {false, true}) {
    for (uint32_t format = 0; format < Module().formatCount(); ++format) {
      SCOPED_TRACE((spanish ? "Spanish, " : "English, ") + std::to_string(format));
      const QPointer<QWidget> dialog = Open(format, kSampleClass, 306, spanish);
      _ExpectRoomForAll(*dialog);
      if (Font().pointSize() <= 11) {
        constexpr int kTitleBar = 40;
        EXPECT_LE(dialog->width(), 1024);
        EXPECT_LE(dialog->height(), 600 - kTitleBar);
        const QPoint middle = dialog->screen()->availableGeometry().center();
        EXPECT_LE((dialog->geometry().center() - middle).manhattanLength(), 4);
      }
      QApplication::setFont(QFont(Font().family(), 24));  // the desktop's, while the dialog is open
      RunEvents();
      _ExpectRoomForAll(*dialog);
      QApplication::setFont(Font());
      Key(dialog, Qt::Key_Escape);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Fonts, Layout,
                         testing::Combine(testing::Values("DejaVu Sans", "Noto Sans", "Cantarell"),
                                          testing::Values(9, 10, 11, 14, 18)),
                         [](const auto& param) {
                           QString name = QString::fromLatin1(std::get<0>(param.param)).section(' ', 0, 0);
                           return name.append(QString::number(std::get<1>(param.param))).toStdString();
                         });

}  // namespace
