#include <QBrush>
#include <QSignalSpy>

#include "Host/ClassView/AssignmentPanel.h"
#include "Host/ClassView/ClassTableModel.h"
#include "Host/ClassView/HistogramWidget.h"
#include "Host/ClassView/ReadFaultText.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

const QString kSecondary = QStringLiteral(SAMPLES "/secondary-school.xml");

class ClassTest : public HostTest {
 protected:
  ReadResult ReadText(const QByteArray& text) {
    WriteFile(PathOf("class.xml"), text);
    return ReadClass(PathOf("class.xml"));
  }

  // The row of the student, by full name; -1 when there is none.
  static int RowOf(const ClassTableModel& model, const char* name) {
    for (int row = 0; row < model.rowCount(); ++row) {
      if (model.index(row, 0).data().toString() == QLatin1String(name)) return row;
    }
    return -1;
  }
};

TEST_F(ClassTest, TableOfTheSampleClass) {
  const ReadResult result = ReadClass(kSecondary);
  ASSERT_NE(result.openClass, nullptr);
  EXPECT_EQ(result.openClass->name, QStringLiteral("Biology 9"));
  ClassTableModel model(nullptr);
  EXPECT_EQ(model.columnCount(), 0);
  model.SetClass(result.openClass);
  EXPECT_EQ(model.rowCount(), 30);
  EXPECT_EQ(model.columnCount(), 14);
  EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Inés Álvarez"));
  EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("204100"));
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Name"));
  EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Quiz 1: Cells"));
  const QString tip = model.headerData(2, Qt::Horizontal, Qt::ToolTipRole).toString();
  EXPECT_TRUE(tip.contains(QStringLiteral("Points possible: 6"))) << tip.toStdString();
  EXPECT_TRUE(tip.contains(QStringLiteral("Date: "))) << tip.toStdString();

  // Tom Young has 0 points in Quiz 4 and no results in Quiz 5.
  const int row = RowOf(model, "Tom Young");
  ASSERT_GE(row, 0);
  const QModelIndex zero = model.index(row, 6);
  const QModelIndex missing = model.index(row, 7);
  EXPECT_EQ(zero.data().toString(), QStringLiteral("0"));
  EXPECT_FALSE(zero.data(Qt::ToolTipRole).isValid());
  EXPECT_FALSE(zero.data(Qt::ForegroundRole).isValid());
  EXPECT_EQ(missing.data().toString(), QStringLiteral("–"));
  EXPECT_EQ(missing.data(Qt::ToolTipRole).toString(), QStringLiteral("No result"));
  EXPECT_EQ(missing.data(Qt::ForegroundRole).value<QBrush>(),
            QGuiApplication::palette().brush(QPalette::PlaceholderText));

  const QSignalSpy headers(&model, &QAbstractItemModel::headerDataChanged);
  SetCurrentLanguage(HostLanguage::kSpanish);
  model.Retranslate();
  EXPECT_EQ(headers.count(), 1);
  EXPECT_EQ(missing.data(Qt::ToolTipRole).toString(), QStringLiteral("Sin resultado"));
}

TEST_F(ClassTest, ShowsNamesAsTheyAre) {
  const ReadResult result = ReadText(
      "<class><student-list><student><first-name>Łukasz</first-name><last-name>\tŻak</last-name>"
      "<student-id>ż7</student-id></student></student-list><assignment-list><assignment>"
      "<assignment-name>Zażółć gęślą jaźń, 💡💡💡💡</assignment-name><assignment-date>Środa</assignment-date>"
      "</assignment></assignment-list></class>");
  ASSERT_NE(result.openClass, nullptr);
  ClassTableModel model(nullptr);
  model.SetClass(result.openClass);
  const auto header = [&model](int role) { return model.headerData(2, Qt::Horizontal, role).toString(); };
  EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Łukasz  Żak"));
  EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("ż7"));
  EXPECT_EQ(header(Qt::DisplayRole), QStringLiteral("Zażółć gęślą jaźń, 💡💡…"));
  EXPECT_TRUE(header(Qt::ToolTipRole).endsWith(QStringLiteral("Środa")));
  AssignmentPanel panel(nullptr, {});
  panel.SetClass(result.openClass);
  EXPECT_EQ(panel.findChild<QComboBox*>()->currentText(), QStringLiteral("Zażółć gęślą jaźń, 💡💡💡💡"));
}

TEST_F(ClassTest, PanelFollowsTheSelection) {
  std::vector<int> selected;
  AssignmentPanel panel(nullptr, [&selected](int assignment) { selected.push_back(assignment); });
  EXPECT_EQ(panel.Selected(), -1);
  panel.SetClass(ReadClass(kSecondary).openClass);
  EXPECT_EQ(panel.Selected(), 0);
  panel.Select(11);
  panel.Select(12);
  EXPECT_EQ(panel.Selected(), 11);
  EXPECT_EQ(selected, (std::vector<int>{-1, 0, 11}));
  panel.SetClass(nullptr);
  EXPECT_EQ(panel.Selected(), -1);
}

// Light or dark, bars and labels differ from their ground.
TEST_F(ClassTest, HistogramIsDrawnInThePalette) {
  HistogramWidget widget(nullptr);
  const Scores scores = {1.0, 9.5, 9.5};
  widget.ShowScores(ComputeStatistics(scores), ComputeHistogram(scores, 10));
  EXPECT_TRUE(widget.accessibleDescription().contains(QStringLiteral("9 to 10: 2")));
  widget.resize(widget.sizeHint());
  for (const QColor& base : {QColor(Qt::white), QColor(Qt::black)}) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, base == QColor(Qt::white) ? Qt::black : Qt::white);
    palette.setColor(QPalette::Highlight, Qt::blue);
    widget.setPalette(palette);
    const QImage image = widget.grab().toImage();
    int bars = 0;
    int ground = 0;
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, image.height() / 2);
      bars += color == QColor(Qt::blue) ? 1 : 0;
      ground += color == base ? 1 : 0;
    }
    EXPECT_GT(bars, 5);
    EXPECT_GT(ground, image.width() / 2);
  }
}

TEST_F(ClassTest, AClassWithoutANameHasItsFiles) {
  const ReadResult result = ReadText("<class><preferences><class-name>x</class-name></preferences></class>");
  ASSERT_NE(result.openClass, nullptr);
  EXPECT_EQ(result.openClass->name, QStringLiteral("class"));
}

TEST_F(ClassTest, FaultsAreToldInWords) {
  const struct {
    const char* text;  // null: no file
    const char* what;
    const char* advice;  // a part of it
  } rows[] = {
      {"<school/>", "“%1” is not a class file.", "class manager saved"},
      {"<?xml version='1.0' encoding='windows-1252'?><class/>",
       "The class file “%1” is written in an encoding that cannot be read.", "windows-1252"},
      {nullptr, "The class file “%1” could not be opened.", "No such file"},
  };
  for (const auto& row : rows) {
    QFile::remove(PathOf("class.xml"));
    const ReadResult result = row.text != nullptr ? ReadText(row.text) : ReadClass(PathOf("class.xml"));
    EXPECT_EQ(result.openClass, nullptr);
    const FaultText told = TextOfFault(result);
    EXPECT_EQ(told.what, QString::fromUtf8(row.what).arg(QStringLiteral("class.xml")));
    EXPECT_TRUE(told.advice.contains(QLatin1String(row.advice))) << told.advice.toStdString();
  }
  EXPECT_EQ(
      TextOfFault(ReadClass(m_folder.path())).what,
      QStringLiteral("The class file “%1” could not be opened.").arg(QFileInfo(m_folder.path()).fileName()));

  const ReadResult malformed = ReadText("<class>\n  <student-list>\n</class>");
  EXPECT_EQ(malformed.openClass, nullptr);
  EXPECT_EQ(TextOfFault(malformed).what,
            QStringLiteral("The class file “class.xml” is damaged: line 3, column %1.")
                .arg(malformed.fault.column));
  EXPECT_GT(malformed.fault.column, 0U);
  EXPECT_TRUE(TextOfFault(malformed).advice.contains(QStringLiteral("Save the class again")));
  SetCurrentLanguage(HostLanguage::kSpanish);
  EXPECT_TRUE(TextOfFault(malformed).what.contains(QStringLiteral("línea 3")));
  EXPECT_TRUE(TextOfFault(ReadText("")).what.contains(QStringLiteral("dañado")));
}

}  // namespace

}  // namespace host
