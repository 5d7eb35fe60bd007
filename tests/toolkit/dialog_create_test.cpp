// Creating dialogs: what a damaged or disagreeing resource does, the message order, panes and combined
// dialogs.
#include <sstream>

#include "Platform/Ui/HelpTags.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/DLGRegister.h"
#include "Toolkit/Toolkit.h"
#include "ToolkitFixture.h"
#include "tests/platform/open_fork.h"

namespace {

std::string _DescriptionsOf(int16_t id) {
  const Handle resource = GetResource(FourCharCode("luDI"), id);
  return {*resource, GetHandleSize(resource)};
}

TestTypes _Descriptions(int16_t id, const std::string& data) {
  return {{"luDI", {{id, data}}}};
}

size_t _CountWindows() {
  size_t count = 0;
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) ++count;
  return count;
}

using Creation = ToolkitTest;

TEST_F(Creation, MissingResourcesAndUnregisteredTypes) {
  EXPECT_EQ(Open(9999), nullptr);
  EXPECT_EQ(Open(70000), nullptr) << "no resource id";
  EXPECT_EQ(Open(kUnregistered), nullptr);
  EXPECT_EQ(_CountWindows(), 0U);
}

TEST_F(Creation, DescriptionsThatAreCutOrCountWronglyFailCleanly) {
  const std::string whole = _DescriptionsOf(kFields);
  for (size_t length = 0; length < whole.size(); ++length) {
    const OpenFork changed(_Descriptions(kFields, whole.substr(0, length)));
    EXPECT_EQ(Open(kFields), nullptr) << "cut to " << length << " bytes";
  }
  for (const char count : {'\0', '\x7', '\x9', '\xFF'}) {
    std::string other = whole;
    other[3] = count;
    const OpenFork changed(_Descriptions(kFields, other));
    EXPECT_EQ(Open(kFields), nullptr) << int{count};
  }
  EXPECT_EQ(_CountWindows(), 0U);
  EXPECT_NE(Open(kFields), nullptr);
}

TEST_F(Creation, ADialogWithoutItemsIsEmpty) {
  TestTypes types = _Descriptions(kNoTabStops, std::string(4, '\0'));
  types.push_back({"DITL", {{kNoTabStops, "\xFF\xFF"}}});
  const OpenFork changed(types);
  const DLGRecord* dialog = Open(kNoTabStops);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->itemCount, 0);
}

TEST_F(Creation, EveryTypeIsCreatedAndDisposed) {
  DLGRecord* dialog = Open(kEveryType);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->itemCount, numRegisterItems);
  for (int32_t item = 1; item <= dialog->itemCount; ++item) {
    const int32_t type = GetItemType(dialog, item);
    EXPECT_EQ(SendDLGItemMessage(dialog, item, kDLGGetControl),
              reinterpret_cast<intptr_t>(DLGGetChildControl(dialog, item)))
        << type;
    const bool hasBehaviour = type >= 1 && type <= 8 && type != 6;
    for (int32_t message = 1; message <= 50 && !hasBehaviour; ++message) {
      if (message == kDLGGetControl) continue;
      EXPECT_EQ(SendDLGItemMessage(dialog, item, message), 0) << type << " " << message;
    }
    SetText(dialog, item, "Text", true);
    GetText(dialog, item);
    Key(dialog, kTabChar);
    EnableDLGItem(dialog, item, false);
  }
  ASSERT_TRUE(MyCloseDialog(dialog));
  EXPECT_FALSE(DialogIsValid(dialog));
}

TEST_F(Creation, TheHeader) {
  DLGRecord* parent = Open(kFields, kDLGModeless);
  DLGRecord* dialog =
      GetDialogResource(parent->window, kDLGModal, nullptr, kDemoDialog, 77, nullptr, nullptr, nullptr);
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(IsWindowVisible(dialog->window));
  EXPECT_EQ(dialog->parent, parent->window);
  EXPECT_EQ(parent->parent, nullptr);
  EXPECT_EQ(dialog->userValue, 77);
  EXPECT_EQ(dialog->marker, 165);
  EXPECT_EQ(dialog->flags, kDLGNew);
  EXPECT_EQ(dialog->itemCapacity, 22);
  EXPECT_EQ(GetWRefCon(dialog->window), DLGInstance());
  DisposeDLG(dialog);
}

TEST_F(Creation, AHelpTagIsInstalled) {
  DLGRecord* dialog = Open(kDemoDialog);
  EXPECT_EQ(Widget(dialog, kDemoEdit)->toolTip(), "Up to 64 characters.");
  EXPECT_EQ(Widget(dialog, kDemoSelectAll)->toolTip(), "");
}

// An item type of the tests' own: writes down what it is sent.
std::vector<std::string>& _Log() {
  static std::vector<std::string> log;
  return log;
}
int32_t gFailingItem = 0;

intptr_t _LoggingProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t) {
  std::ostringstream line;
  line << item << ":" << message;
  if (message == kDLGCreate) line << "(" << DLGDataLeft(dialog, reinterpret_cast<const char*>(param1)) << ")";
  _Log().push_back(line.str());
  return message == kDLGCreate && item == gFailingItem ? -1 : 0;
}

class MessageOrder : public Creation {
 protected:
  static constexpr int32_t kType = 4000;

  void SetUp() override {
    Creation::SetUp();
    DLGRegisterItem(kType, _LoggingProc);
    _Log().clear();
    gFailingItem = 0;
    const std::string item = BigEndian(kType, 4) + BigEndian(kDLGEnabled | kDLGVisible, 4);
    m_changed.emplace(_Descriptions(kNoTabStops, BigEndian(2, 4) + item + item));
  }

  std::optional<OpenFork> m_changed;
};

TEST_F(MessageOrder, CreationAndDisposal) {
  DLGRecord* dialog =
      GetDialogResource(nullptr, kDLGModeless, nullptr, kNoTabStops, 0, nullptr, nullptr, nullptr);
  ASSERT_NE(dialog, nullptr);
  DisposeDLG(dialog);
  EXPECT_EQ(_Log(), (std::vector<std::string>{"1:1(8)", "2:1(0)", "1:3", "2:3", "1:2", "2:2"}));
}

TEST_F(MessageOrder, AnItemThatFailsTakesTheDialogWithIt) {
  gFailingItem = 2;
  EXPECT_EQ(GetDialogResource(nullptr, kDLGModeless, nullptr, kNoTabStops, 0, nullptr, nullptr, nullptr),
            nullptr);
  EXPECT_EQ(_Log(), (std::vector<std::string>{"1:1(8)", "2:1(0)", "1:2", "2:2"}));
  EXPECT_EQ(_CountWindows(), 0U);
}

TEST_F(Creation, CombinedDialog) {
  const int32_t ids[] = {kFields, kPaneItems};
  DLGRecord* dialog =
      GetCombinedDialogResource(nullptr, kDLGModeless, nullptr, ids, 0, nullptr, nullptr, nullptr);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->itemCount, 10);
  EXPECT_EQ(dialog->resourceID, kFields);
  EXPECT_EQ(GetItemType(dialog, 9), 4);
  CKSetCheck(dialog, 9, 1, 0, false);
  EXPECT_EQ(CKGetCheck(dialog, 9), 1);
  EXPECT_EQ(RectHeight(GetWindowPortBounds(dialog->window)), 250) << "the first template's size";
  DisposeDLG(dialog);
  const int32_t missing[] = {kFields, 9999};
  EXPECT_EQ(GetCombinedDialogResource(nullptr, kDLGModeless, nullptr, missing, 0, nullptr, nullptr, nullptr),
            nullptr);
  EXPECT_EQ(_CountWindows(), 0U);
}

TEST_F(Creation, APaneTakesOverTheRecordAndLeavesAnEmptyOne) {
  DLGRecord* dialog = Open(kFields, kDLGModeless);
  const WindowRef window = dialog->window;
  for (int round = 0; round < 2; ++round) {
    ASSERT_EQ(Open(kPaneItems, kDLGPane, window), dialog);
    EXPECT_EQ(dialog->itemCount, 10);
    EXPECT_EQ(dialog->itemCapacity, DLGRecord::kPaneCapacity);
    EXPECT_EQ(GetItemType(dialog, 10), 4);
    EXPECT_EQ(Open(kUnregistered, kDLGPane, window), nullptr);
    EXPECT_EQ(dialog->itemCount, 10) << "a pane that fails leaves what was there";
    EXPECT_EQ(CountDITL(dialog->dialog), 10);

    DisposeDLG(dialog);
    EXPECT_TRUE(DialogIsValid(dialog));
    EXPECT_EQ(DLGFromHwnd(window), dialog);
    EXPECT_EQ(dialog->itemCount, 0);
    EXPECT_EQ(dialog->resourceID, 0);
    EXPECT_EQ(CountDITL(dialog->dialog), 8);
  }
  DisposeDLG(dialog);
  EXPECT_FALSE(DialogIsValid(dialog));
  EXPECT_FALSE(IsValidWindow(window));
}

TEST_F(Creation, AnOwnedDialogStaysUntilItsOwnerEndsIt) {
  DLGRecord* dialog = GetDialogResource(nullptr, kDLGOwned, nullptr, kFields, 0, nullptr, nullptr, nullptr);
  const WindowRef window = dialog->window;
  DisposeDLG(dialog);
  EXPECT_TRUE(IsValidWindow(window));
  DLGReleaseOwned(dialog);
  EXPECT_FALSE(IsValidWindow(window));
  EXPECT_FALSE(DialogIsValid(dialog));
}

}  // namespace
