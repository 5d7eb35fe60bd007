#include <QComboBox>
#include <QLabel>

#include "Host/App/Choices.h"
#include "Host/Findings/ExportPicker.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

std::string _Names(const QComboBox* combo) {
  QStringList names;
  for (int i = 0; i < combo->count(); ++i) names.append(combo->itemText(i));
  return names.join(u'|').toStdString();
}

class ExportPickerTest : public HostTest {
 protected:
  // As after a start of the program.
  void Make() {
    m_picker = std::make_unique<ExportPicker>(nullptr, [this] { ++m_changes; });
    m_picker->SetClass(std::make_shared<OpenClass>());
    m_picker->show();
    m_changes = 0;
  }

  QComboBox* Combo(const char* name) { return m_picker->findChild<QComboBox*>(QLatin1String(name)); }

  // From the box's open list.
  void Choose(const char* name, const char* text, Input input = Input::keys) {
    QComboBox* const combo = Combo(name);
    ASSERT_TRUE(combo->isVisible()) << name;
    const int row = combo->findText(QString::fromUtf8(text));
    combo->showPopup();
    gestures::ChooseFromOpenPopup(combo->currentIndex(), row, input);
    ASSERT_EQ(combo->currentIndex(), row) << text;
  }

  std::unique_ptr<ExportPicker> m_picker;
  int m_changes = 0;
};

TEST_F(ExportPickerTest, OffersWhatWasUsedLastFirstAndRemembersItsField) {
  Make();
  EXPECT_EQ(_Names(Combo("format")),
            "Canvas|Moodle 3.1.2|Blackboard Learn 9.1|Brightspace by D2L|Schoology|Sakai||"
            "Blackboard 8.0 - 9.0|Blackboard 6.0 - 7.0|ANGEL|WebCT Vista");
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDStudentID);
  Choose("format", "Blackboard 6.0 - 7.0", Input::mouse);
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDAlias);
  Choose("field", "Last name");
  Choose("format", "Sakai", Input::mouse);
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDStudentID);
  m_picker->ChooseFormat(*FindFormat("blackboard6"));
  EXPECT_EQ(m_changes, 4);

  Make();
  EXPECT_EQ(_Names(Combo("format")).rfind("Blackboard 6.0 - 7.0|Canvas|", 0), 0U);
  EXPECT_EQ(m_picker->Format().key, std::string("blackboard6"));
  EXPECT_EQ(Combo("field")->currentText(), QStringLiteral("Last name"));

  SetLastFormat(*FindFormat("detailed"));  // which is not offered here, but in the menu
  EXPECT_EQ(FormatsInTeachersOrder().inUse.front()->key, std::string("detailed"));
  Make();
  EXPECT_EQ(m_picker->Format().key, std::string("canvas"));
}

TEST_F(ExportPickerTest, OffersOnlyFilesThatThereAre) {
  const struct {
    const char *format, *dialect;
    char delimiter;  // when semicolons were chosen; 0: there is no choice
  } rows[] = {{"canvas", "Classic file", 0},
              {"canvas", "Current file", ';'},
              {"brightspace", "Current file", 0},
              {"angel", nullptr, 0}};
  Make();
  for (const auto& row : rows) {
    m_picker->ChooseFormat(*FindFormat(row.format));
    EXPECT_EQ(Combo("dialect")->isVisible(), row.dialect != nullptr) << row.format;
    if (row.dialect != nullptr) Choose("dialect", row.dialect);
    EXPECT_EQ(Combo("delimiter")->isVisible(), row.delimiter != 0) << row.format;
    if (row.delimiter != 0) Choose("delimiter", "Semicolons");
    const ExportSubject subject = m_picker->Subject({});
    EXPECT_EQ(subject.delimiter, row.delimiter == 0 ? ',' : row.delimiter) << row.format;
    const bool isClassic = row.dialect == nullptr || row.dialect == std::string("Classic file");
    EXPECT_EQ(subject.dialect, isClassic ? Dialect::kClassic : Dialect::kCurrent) << row.format;
    EXPECT_EQ(subject.throughDialog, isClassic) << row.format;
  }
}

}  // namespace

}  // namespace host
