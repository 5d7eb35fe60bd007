#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTreeView>

#include "Host/Findings/CheckWindow.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

// Students by first name and alias, each with a result in both assignments.
std::shared_ptr<OpenClass> _Class(const std::vector<std::pair<std::string, std::string>>& students) {
  auto made = std::make_shared<OpenClass>();
  made->record.assignments.resize(2);
  for (const auto& [name, alias] : students) {
    qz::StudentRecord student;
    student.id = static_cast<int32_t>(made->record.students.size()) + 1;
    student.firstName = name;
    student.lastName = "Vega";
    student.alias = alias;
    student.studentID = alias;
    made->record.students.push_back(student);
  }
  int32_t id = 0;
  for (qz::AssignmentRecord& assignment : made->record.assignments) {
    assignment.id = ++id;
    assignment.name = "Quiz " + std::to_string(id);
    assignment.pointsPossible = 10;
    for (const qz::StudentRecord& student : made->record.students) {
      assignment.results.push_back({.studentID = student.id, .responses = {{1, 0, "", 5}}});
    }
  }
  return made;
}

std::shared_ptr<OpenClass> _WithAccent() {
  return _Class({{"Ana", "ana"}, {"Jos\x8E", "jose"}});
}

class CheckTest : public HostTest {
 protected:
  void Show(std::shared_ptr<const OpenClass> openClass) {
    m_window = std::make_unique<CheckWindow>(nullptr, std::move(openClass),
                                             [this](const FindingPlace& place) { m_chosen = place; });
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    m_tree = Find<QTreeView>("findings");
  }

  template <typename Widget>
  Widget* Find(const char* name) {
    return m_window->findChild<Widget*>(QLatin1String(name));
  }

  void Choose(const char* combo, const char* text) {
    auto* const box = Find<QComboBox>(combo);
    box->setCurrentIndex(box->findText(QString::fromUtf8(text)));
    ASSERT_GE(box->currentIndex(), 0) << text;
  }

  QModelIndex Row(int finding) { return m_tree->model()->index(finding, 0); }
  std::string TextOf(const QModelIndex& index) { return index.data().toString().toStdString(); }
  std::string Summary() { return Find<QLabel>("findingsSummary")->text().toStdString(); }

  std::unique_ptr<CheckWindow> m_window;
  QTreeView* m_tree = nullptr;
  FindingPlace m_chosen;
};

TEST_F(CheckTest, SaysWhatWillHappenInBothLanguages) {
  const struct {
    HostLanguage language;
    const char *refused, *advice, *summary, *nothing;
  } rows[] = {
      {HostLanguage::kEnglish, "The file will be refused\nCanvas refuses",
       "What to do: Make the current file instead", "Problems: 1", "will arrive in Canvas"},
      {HostLanguage::kSpanish, "El archivo será rechazado\nCanvas rechaza",
       "Qué hacer: Cree el archivo actual", "Problemas: 1", "llegarán a Canvas"},
  };
  Show(_WithAccent());
  for (const auto& row : rows) {
    SetCurrentLanguage(row.language);
    QCoreApplication::processEvents();
    Choose("format", "Canvas");
    Find<QComboBox>("dialect")->setCurrentIndex(0);
    EXPECT_EQ(TextOf(Row(0)).rfind(row.refused, 0), 0U) << TextOf(Row(0));
    EXPECT_NE(TextOf(Row(0)).find(row.advice), std::string::npos) << TextOf(Row(0));
    EXPECT_FALSE(Row(0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(m_tree->isExpanded(Row(0)));
    EXPECT_EQ(TextOf(m_tree->model()->index(0, 0, Row(0))), "José Vega (jose)");
    EXPECT_EQ(Summary().rfind(row.summary, 0), 0U) << Summary();

    Find<QComboBox>("dialect")->setCurrentIndex(1);
    EXPECT_EQ(m_tree->model()->rowCount(), 0) << TextOf(Row(0));
    const auto* const nothing = Find<QLabel>("nothingFound");
    EXPECT_TRUE(nothing->isVisible());
    EXPECT_NE(nothing->text().toStdString().find(row.nothing), std::string::npos);
  }
}

TEST_F(CheckTest, FollowsEveryChoice) {
  Show(_WithAccent());
  Choose("format", "Sakai");  // which takes the letters of a name
  EXPECT_EQ(Summary().rfind("No problems", 0), 0U) << Summary();
  Choose("format", "Blackboard 6.0 - 7.0");
  EXPECT_FALSE(Find<QComboBox>("dialect")->isVisible());
  Choose("field", "Custom 1");  // which nobody has
  EXPECT_NE(TextOf(Row(0)).find("Custom 1"), std::string::npos) << TextOf(Row(0));
  Choose("format", "Canvas");  // with the field that its dialog proposes
  EXPECT_NE(Find<QComboBox>("field")->currentText(), QStringLiteral("Custom 1"));

  Choose("dialect", "Current file");
  auto* const all = Find<QCheckBox>("allAssignments");
  QListWidgetItem* const first = Find<QListWidget>("assignments")->item(0);
  first->setCheckState(Qt::Unchecked);
  EXPECT_EQ(all->checkState(), Qt::PartiallyChecked);
  EXPECT_EQ(m_tree->model()->rowCount(), 0);
  all->click();
  EXPECT_EQ(all->checkState(), Qt::Checked);
  all->click();
  EXPECT_EQ(first->checkState(), Qt::Unchecked);
  EXPECT_NE(TextOf(Row(0)).find("No assignment is selected"), std::string::npos) << TextOf(Row(0));

  // The Export menu's dialog writes the classic file, and cannot with a title of this length.
  const auto openClass = _Class({{"Ana", "ana"}});
  openClass->record.assignments[1].name.assign(30, 'x');
  m_window->SetClass(openClass);
  EXPECT_EQ(m_tree->model()->rowCount(), 0) << TextOf(Row(0));
  Choose("dialect", "Classic file");
  EXPECT_EQ(TextOf(Row(0)).rfind("The file will be refused", 0), 0U) << TextOf(Row(0));
}

TEST_F(CheckTest, ListsTheFirstTwentyAndLeadsToThem) {
  Show(_Class(std::vector<std::pair<std::string, std::string>>(25, {"Ana", ""})));
  Choose("format", "Moodle 3.1.2");
  ASSERT_EQ(m_tree->model()->rowCount(Row(0)), 21);
  EXPECT_EQ(TextOf(m_tree->model()->index(20, 0, Row(0))), "and 5 more");
  gestures::ClickRow(m_tree, 0);
  EXPECT_EQ(m_chosen.student, 0U);
  m_tree->setFocus();
  for (int i = 0; i < 3; ++i) QTest::keyClick(m_tree, Qt::Key_Down);
  QTest::keyClick(m_tree, Qt::Key_Return);
  EXPECT_EQ(m_chosen.student, 2U);
}

// No sentence is cut off, however narrow the window.
TEST_F(CheckTest, GrowsWithItsSentences) {
  Show(_WithAccent());
  const auto height = [this](int width) {
    m_window->resize(width, 600);
    QCoreApplication::processEvents();
    return m_tree->visualRect(Row(0)).height();
  };
  EXPECT_GT(height(600), height(1400) + m_tree->fontMetrics().height());
  EXPECT_GE(height(1400), 3 * m_tree->fontMetrics().height());
}

}  // namespace

}  // namespace host
