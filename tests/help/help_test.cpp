// Help on a made-up bundle in a temporary folder; the alert and the URL opener are stand-ins that record.
#include "Common/help.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "Common/Language.h"
#include "Platform/Core/CFString.h"
#include "Platform/Ui/Alerts.h"
#include "Platform/Ui/Launch.h"
#include "tests/platform/temp_folder.h"

namespace {

struct Sheet {
  AlertType type;
  std::string message, explanation, button;
  bool movable, helpButton, cancel;
  WindowRef window;
  bool operator==(const Sheet&) const = default;
};

std::vector<Sheet> gSheets;
std::vector<std::string> gURLs;
WindowRef gURLWindow = nullptr;
bool gOpens = true;

}  // namespace

bool StandardSheet(AlertType type, CFStringRef message, CFStringRef explanation,
                   const AlertParameters& parameters, WindowRef window) {
  gSheets.push_back({type, CFStringGetUTF8(message), CFStringGetUTF8(explanation),
                     CFStringGetUTF8(parameters.defaultText), parameters.movable, parameters.helpButton,
                     parameters.cancelText != nullptr, window});
  return true;
}

bool ExecuteURL(WindowRef parent, const char* url) {
  gURLs.emplace_back(url);
  gURLWindow = parent;
  return gOpens;
}

namespace {

constexpr int32_t kContents = 900;

class HelpTest : public testing::Test {
 protected:
  HelpTest() {
    UseHost("");
    gSheets.clear();
    gURLs.clear();
    gOpens = true;
  }
  ~HelpTest() override { gLang = 0; }

  // Makes a host in that folder, with both start pages in "My Book".
  void UseHost(const std::string& folder) {
    for (const char* file : {"Gradix.bundle/Resources/x", "My Book/start.htm", "My Book/other.htm"}) {
      m_folder.Write(folder + file, "x");
    }
    m_bundle.Set(m_folder.Path(folder + "Gradix.bundle"));
  }

  static void Register(const char* group = "qzmanage", const char* page = "My Book:start.htm") {
    RegisterLumoHelp(page, kContents, "My Book:other.htm", 500, group, "more", "qzm");
  }

  WindowRef const m_window = reinterpret_cast<WindowRef>(&gOpens);  // never looked into
  TempFolder m_folder;
  ScopedEnvironment m_bundle{"GRADIX_BUNDLE", ""};
};

TEST_F(HelpTest, OpensTheTopicsPage) {
  const std::string book = "file://" + m_folder.Path() + "/My%20Book/";
  const struct {
    const char *name, *group;
    int32_t command, topic;
    std::string url;
  } rows[] = {
      {"topic", "qzmanage", 1, 223, "start.htm#qzmanage/qzm_223.htm"},
      {"padded", "qzmanage", 1, 7, "start.htm#qzmanage/qzm_007.htm"},
      {"any other command", "qzmanage", -5, 1, "start.htm#qzmanage/qzm_001.htm"},
      {"last of the normal ones", "qzmanage", 1, 499, "start.htm#qzmanage/qzm_499.htm"},
      {"alternate", "qzmanage", 1, 500, "other.htm#more/qzm_500.htm"},
      {"four digits", "qzmanage", 1, 1234, "other.htm#more/qzm_1234.htm"},
      {"no group", "", 1, 223, "start.htm#qzm_223.htm"},
      {"contents", "qzmanage", kContents, 223, "start.htm"},
      {"alternate contents", "qzmanage", kContents, 501, "other.htm"},
      {"topic 0", "qzmanage", 1, 0, "start.htm"},
      {"negative topic", "qzmanage", 1, -3, "start.htm"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Register(row.group);
    gURLs.clear();
    EXPECT_TRUE(Help(m_window, row.command, row.topic));
    EXPECT_EQ(gURLs, std::vector<std::string>{book + row.url});
    EXPECT_EQ(gURLWindow, m_window);
  }
  EXPECT_TRUE(gSheets.empty());
}

TEST_F(HelpTest, CommandZeroShowsNothing) {
  Register("qzmanage", "missing.htm");
  EXPECT_TRUE(Help(m_window, 0, 223));
  UnregisterLumoHelp(1);
  EXPECT_TRUE(gURLs.empty());
  EXPECT_TRUE(gSheets.empty());
}

TEST_F(HelpTest, WhatCannotBeShownBecomesASheet) {
  const struct {
    const char *name, *page;
    bool host, opens;
    int16_t language = 0;
  } rows[] = {
      {"missing page", "My Book:missing.htm", true, true},
      {"the same in Spanish", "My Book:missing.htm", true, true, kLanguageSpanish},
      {"no page", "", true, true},
      {"no host", "My Book:start.htm", false, true},
      {"not taken", "My Book:start.htm", true, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    m_bundle.Set(m_folder.Path(row.host ? "Gradix.bundle" : "None.bundle"));
    Register("qzmanage", row.page);
    gLang = row.language;
    gOpens = row.opens;
    gURLs.clear();
    gSheets.clear();
    EXPECT_FALSE(Help(m_window, 1, 223));
    const bool spanish = row.language != 0;
    const Sheet expected = {
        kAlertNoteAlert,
        spanish ? "No se pudo mostrar el tema de ayuda." : "Could not display help topic.",
        spanish ? "Falta el archivo de ayuda." : "Help file is missing.",
        spanish ? "Acceptar" : "OK",
        true,
        false,
        false,
        m_window};
    EXPECT_EQ(gSheets, std::vector<Sheet>{expected});
    EXPECT_EQ(gURLs.empty(), row.opens);
  }
}

// The start page's URL has 256 bytes, then one more.
TEST_F(HelpTest, LengthOfTheURL) {
  const std::string rest = "/My%20Book/start.htm";
  const size_t fixed = ("file://" + m_folder.Path() + "/").size() + rest.size();
  for (const size_t length : {size_t{256}, size_t{257}}) {
    UseHost(std::string(length - fixed, 'f') + "/");
    Register();
    gURLs.clear();
    EXPECT_EQ(Help(m_window, 1, 223), length == 256);
    EXPECT_EQ(gURLs.empty(), length > 256);
    for (const std::string& url : gURLs) EXPECT_EQ(url.size(), length + std::strlen("#qzmanage/qzm_223.htm"));
  }
}

TEST_F(HelpTest, RegisteredTextsAreCut) {
  const std::string longText(400, 'g');
  RegisterLumoHelp("My Book:start.htm", kContents, "", 500, longText.c_str(), nullptr, longText.c_str());
  EXPECT_TRUE(Help(m_window, 1, 223));
  ASSERT_EQ(gURLs.size(), 1U);
  const std::string cut = longText.substr(0, 150);
  EXPECT_EQ(gURLs[0].substr(gURLs[0].find('#')), "#" + cut + "/" + cut + "_223.htm");
}

TEST_F(HelpTest, WebSite) {
  const struct {
    int32_t command, topic;
    bool opens, result;
    size_t opened;
  } rows[] = {{2, 0, true, true, 1},  {1, 1, true, true, 1},  {1, 0, true, false, 0},
              {0, 5, true, false, 0}, {3, 5, true, false, 0}, {2, 5, false, false, 1}};
  for (const auto& row : rows) {
    gOpens = row.opens;
    gURLs.clear();
    EXPECT_EQ(qz::Help(m_window, row.command, "file", row.topic), row.result);
    EXPECT_EQ(gURLs, std::vector<std::string>(row.opened, kHelpWebSite));
  }
  gOpens = true;
  gURLs.clear();
  EXPECT_TRUE(HelpWebSite(m_window, "https://a.example/?b"));
  gOpens = false;
  EXPECT_FALSE(HelpWebSite(m_window, "c"));
  EXPECT_EQ(gURLs, (std::vector<std::string>{"https://a.example/?b", "c"}));
  EXPECT_TRUE(gSheets.empty());
}

}  // namespace
