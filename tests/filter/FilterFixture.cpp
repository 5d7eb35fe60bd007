#include "tests/filter/FilterFixture.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

int32_t _ChooseFile(void* dialog, int32_t reserved, char* path, int32_t size, uintptr_t value) {
  auto& chooser = *reinterpret_cast<FileChooser*>(value);
  chooser.calls.push_back({dialog, reserved, size});
  const size_t length = std::min(chooser.path.size() + 1, static_cast<size_t>(size));
  std::memcpy(path, chooser.path.c_str(), length);
  if (chooser.meanwhile) chooser.meanwhile();
  return chooser.answer;
}

}  // namespace

LoadedFilter& FilterTest::Module() {
  static LoadedFilter module;
  if (module.handle == nullptr) module.Load();
  return module;
}

void FilterTest::SetUp() {
  setenv("GRADIX_BUNDLE", BUNDLE, 1);
  ASSERT_NE(Module().language, nullptr);
  *Module().language = 0;
  chooser.path = PathOf("export.csv");
}

void FilterTest::TearDown() {
  Module().dllMain(Module().handle, 0, nullptr);
  RunEvents();
  EXPECT_TRUE(Dialogs().empty());
}

unsigned long FilterTest::Begin(uint32_t format, bool withChooser) {
  QZEXPORTBEGIN begin{};
  begin.formatIndex = format;
  begin.chooseFileValue = reinterpret_cast<uintptr_t>(&chooser);
  begin.chooseFile = withChooser ? _ChooseFile : nullptr;
  unsigned long session = 0;
  EXPECT_EQ(Module().begin(nullptr, &begin, &session), QZFILTER_SUCCESS);
  return session;
}

uint32_t FilterTest::ExportFile(unsigned long session, const std::string& classFile, int32_t assignment,
                                void* hostWindow) {
  QZEXPORTFILE file{};
  file.assignmentID = assignment;
  file.classFile = QZFilter_MakeFSRef(classFile.c_str());
  const uint32_t status = Module().exportFile(hostWindow, session, &file, Module().handle);
  RunEvents();
  return status;
}

QPointer<QWidget> FilterTest::Open(uint32_t format, const std::string& classFile, int32_t assignment,
                                   bool spanish) {
  const std::vector<QWidget*> before = Dialogs();
  const unsigned long session = Begin(format);
  *Module().language = spanish ? 6 : 0;
  EXPECT_EQ(ExportFile(session, classFile, assignment), 1U);
  for (QWidget* dialog : Dialogs()) {
    if (std::find(before.begin(), before.end(), dialog) == before.end()) return dialog;
  }
  throw std::runtime_error("no dialog appeared");
}

std::vector<QWidget*> FilterTest::Dialogs() {
  std::vector<QWidget*> dialogs;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !gestures::IsMessageBox(*window) &&
        window->windowTitle().startsWith("Export")) {
      dialogs.push_back(window);
    }
  }
  return dialogs;
}

void FilterTest::RunEvents() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

QWidget* FilterTest::Item(QWidget* dialog, int item) {
  QWidget* const widget = gestures::Item(dialog, item);
  if (widget == nullptr) throw std::out_of_range("no item " + std::to_string(item));
  return widget;
}

void FilterTest::Click(QWidget* dialog, int item) {
  gestures::Click(Item(dialog, item));
  RunEvents();
}

void FilterTest::Key(QWidget* dialog, int key, Qt::KeyboardModifiers modifiers) {
  gestures::Type(dialog, key, modifiers);
  RunEvents();
}

void FilterTest::FocusByTab(QWidget* dialog, int item) {
  constexpr int kMostItems = 20;
  for (int i = 0; i < kMostItems && dialog->focusWidget() != Item(dialog, item); ++i)
    Key(dialog, Qt::Key_Tab);
  EXPECT_EQ(dialog->focusWidget(), Item(dialog, item)) << item;
}

void FilterTest::Press(QWidget* dialog, int item, Input input) {
  if (input == Input::mouse) return Click(dialog, item);
  FocusByTab(dialog, item);
  Key(dialog, Qt::Key_Space);
}

void FilterTest::ChooseRow(QWidget* dialog, int popup, int row, Input input) {
  const int from = SelectedRow(dialog, popup);
  Press(dialog, popup, input);
  gestures::ChooseFromOpenPopup(from, row, input);
  RunEvents();
  EXPECT_EQ(SelectedRow(dialog, popup), row);
}

void FilterTest::ToggleRow(QWidget* dialog, int list, int row, Input input) {
  constexpr int kInCheckMark = 6;  // from the left edge
  if (input == Input::mouse) {
    gestures::ClickRow(qobject_cast<QAbstractItemView*>(Item(dialog, list)), row, {}, kInCheckMark);
    return RunEvents();
  }
  FocusByTab(dialog, list);
  Key(dialog, Qt::Key_Home);
  for (int i = 0; i < row; ++i) Key(dialog, Qt::Key_Down);
  Key(dialog, Qt::Key_Space);
}

int FilterTest::SelectedRow(QWidget* dialog, int popup) {
  return qobject_cast<QComboBox*>(Item(dialog, popup))->currentIndex();
}

std::vector<int> FilterTest::CheckedRows(QWidget* dialog, int list) {
  const QAbstractItemModel* const model = qobject_cast<QAbstractItemView*>(Item(dialog, list))->model();
  std::vector<int> rows;
  for (int row = 0; row < model->rowCount(); ++row) {
    if (model->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked) rows.push_back(row);
  }
  return rows;
}

bool FilterTest::IsChecked(QWidget* dialog, int box) {
  return qobject_cast<QAbstractButton*>(Item(dialog, box))->isChecked();
}

std::string FilterTest::TextOf(QWidget* dialog, int item) {
  QWidget* const widget = Item(dialog, item);
  if (const auto* const button = qobject_cast<QAbstractButton*>(widget))
    return button->accessibleName().toStdString();
  return qobject_cast<QLabel*>(widget)->text().toStdString();
}

std::string FilterTest::Finish(const QPointer<QWidget>& dialog, uint32_t format, Input input) {
  alerts.Take();
  const size_t calls = chooser.calls.size();
  if (input == Input::mouse) {
    Click(dialog, OKItem(format));
  } else {
    Key(dialog, Qt::Key_Enter, Qt::KeypadModifier);
  }
  EXPECT_EQ(chooser.calls.size(), calls + 1);
  EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{SavedText(chooser.path)});
  EXPECT_TRUE(IsGone(dialog));
  return Bytes(chooser.path);
}

std::string FilterTest::Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
