// Creating dialogs: what a damaged or disagreeing resource does, the message order, panes and combined
// dialogs.
#include <QtTest/QTest>
#include <fstream>
#include <iterator>
#include <sstream>

#include "Platform/Core/ResourceFork.h"
#include "Platform/Ui/HelpTags.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/DLGRegister.h"
#include "Toolkit/Toolkit.h"
#include "ToolkitFixture.h"
#include "tests/platform/fork_builder.h"
#include "tests/platform/temp_folder.h"

namespace {

constexpr int32_t kFields = 501, kNoTabStops = 502, kUnregistered = 503, kFloatingDialog = 504,
                  kPaneItems = 505, kEveryType = 506;

std::string _ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The test dialogs' resources, to be changed and opened in front of the originals.
class ChangedResources {
 public:
  ChangedResources() : m_fork(_ReadFile(std::string(TOOLKIT_RESOURCES).append("/cases.rsrc"))) {
    const auto entries = ReadResourceFork(m_fork);
    if (!entries) throw std::runtime_error("the test resources are damaged");
    for (const ResourceEntry& entry : *entries) {
      m_resources.emplace_back(entry.type,
                               TestResource{entry.id, std::string(entry.data.begin(), entry.data.end())});
    }
  }
  ChangedResources(const ChangedResources&) = delete;
  ChangedResources& operator=(const ChangedResources&) = delete;
  ~ChangedResources() { Close(); }

  std::string& Data(const char (&type)[5], int16_t id) {
    for (auto& [code, resource] : m_resources) {
      if (code == FourCharCode(type) && resource.id == id) return resource.data;
    }
    ADD_FAILURE() << "no resource " << type << " " << id;
    return m_fork;
  }

  void Open() {
    Close();
    TestTypes types;
    for (const auto& [code, resource] : m_resources) {
      const std::string type = BigEndian(code, 4);
      if (types.empty() || types.back().first != type) types.push_back({type, {}});
      types.back().second.push_back(resource);
    }
    FSRef file;
    const std::string path =
        m_folder.Write("changed" + std::to_string(m_opened++) + ".rsrc", BuildFork(types));
    ASSERT_EQ(FSPathMakeRef(path.c_str(), &file, nullptr), noErr);
    ASSERT_EQ(FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &m_refNum), noErr);
    std::filesystem::remove(path);
  }

  void Close() {
    if (m_refNum > 0) CloseResFile(m_refNum);
    m_refNum = 0;
  }

 private:
  TempFolder m_folder;
  std::string m_fork;
  std::vector<std::pair<ResType, TestResource>> m_resources;
  ResFileRefNum m_refNum = 0;
  int m_opened = 0;
};

size_t _CountWindows() {
  size_t count = 0;
  for (WindowRef window = GetWindowList(); window != nullptr; window = GetNextWindow(window)) ++count;
  return count;
}

class Creation : public ToolkitTest {};

TEST_F(Creation, MissingResourcesAndUnregisteredTypes) {
  EXPECT_EQ(Open(9999), nullptr);
  EXPECT_EQ(Open(70000), nullptr) << "no resource id";
  EXPECT_EQ(Open(kUnregistered), nullptr);
  EXPECT_EQ(_CountWindows(), 0U);
}

TEST_F(Creation, EveryTruncatedDescriptionFailsCleanly) {
  ChangedResources changed;
  std::string& descriptions = changed.Data("luDI", kFields);
  const std::string whole = descriptions;
  for (size_t length = 0; length < whole.size(); ++length) {
    descriptions = whole.substr(0, length);
    changed.Open();
    EXPECT_EQ(Open(kFields), nullptr) << "cut to " << length << " bytes";
  }
  EXPECT_EQ(_CountWindows(), 0U);
  descriptions = whole;
  changed.Open();
  EXPECT_NE(Open(kFields), nullptr);
}

TEST_F(Creation, CountsThatDisagree) {
  ChangedResources changed;
  std::string& descriptions = changed.Data("luDI", kFields);
  for (const char count : {'\0', '\x7', '\x9', '\xFF'}) {
    descriptions[3] = count;
    changed.Open();
    EXPECT_EQ(Open(kFields), nullptr);
  }
}

TEST_F(Creation, ADialogWithoutItemsIsEmpty) {
  ChangedResources changed;
  changed.Data("luDI", kNoTabStops) = std::string(4, '\0');
  changed.Data("DITL", kNoTabStops) = "\xFF\xFF";
  changed.Open();
  const DLGRecord* dialog = Open(kNoTabStops);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->itemCount, 0);
}

TEST_F(Creation, EveryTypeIsCreatedAndDisposed) {
  DLGRecord* dialog = Open(kEveryType);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->itemCount, numRegisterItems);
  for (int32_t item = 1; item <= dialog->itemCount; ++item) {
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
  EXPECT_EQ(dialog->kind, kDLGModal);
  EXPECT_EQ(dialog->resourceID, kDemoDialog);
  EXPECT_EQ(dialog->userValue, 77);
  EXPECT_EQ(dialog->marker, 165);
  EXPECT_EQ(dialog->flags, kDLGNew);
  EXPECT_EQ(dialog->itemCount, 22);
  EXPECT_EQ(dialog->itemCapacity, 22);
  EXPECT_EQ(dialog->focusItem, -1);
  EXPECT_EQ(dialog->trackingItem, -1);
  EXPECT_EQ(dialog->defaultButton, kDemoOK);
  EXPECT_EQ(dialog->cancelItem, kDemoCancel);
  EXPECT_EQ(DLGFromHwnd(dialog->window), dialog);
  EXPECT_EQ(GetWRefCon(dialog->window), DLGInstance());
  EXPECT_TRUE(DLGIsOpen(kDemoDialog));
  DisposeDLG(dialog);
  EXPECT_FALSE(DLGIsOpen(kDemoDialog));
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
    std::string& descriptions = m_changed.Data("luDI", kNoTabStops);
    const std::string item = BigEndian(kType, 4) + BigEndian(kDLGEnabled | kDLGVisible, 4);
    descriptions = BigEndian(2, 4) + item + item;
    m_changed.Open();
  }

  ChangedResources m_changed;
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

TEST_F(Creation, FloatingDialogsLieAboveOthers) {
  DLGRecord* fields = Open(kFields, kDLGModeless);
  DLGRecord* floating = Open(kFloatingDialog, kDLGFloating);
  EXPECT_EQ(FrontWindow(), floating->window);
  EXPECT_EQ(FrontNonFloatingWindow(), fields->window);
}

}  // namespace
