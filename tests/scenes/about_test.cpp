// The dialogs about the program and its maker.
#include <gtest/gtest.h>

#include "base/text.h"
#include "resources/control_ids.h"
#include "tests/rig/http_server.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

using namespace rig;

class About : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    root().settings().SetText(L"Settings\\Details", L"Web Address", server_.address());
    server_.Answer("Thanks\nfrom the maker\x01\x7f");
    ASSERT_TRUE(program().Start());
    ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  }
  HWND Open(const wchar_t* command, const wchar_t* form) {
    EXPECT_TRUE(ChooseShared(program(), command));
    return WaitForForm(program(), form);
  }

  HttpServer server_;
};

TEST_F(About, TellsTheVersionGivesAReportAndShowsTheLicences) {
  HWND about = Open(L"mnuDCABOUT", L"frmABOUT");
  ASSERT_TRUE(about);
  const std::wstring report = Text(Control(about, txtABOUT));
  EXPECT_TRUE(report.starts_with(L"Widget Varnel 1.00\r\nBuild: 64-bit")) << report;
  EXPECT_NE(report.find(L"\r\nSystem: Windows "), std::wstring::npos) << report;
  EXPECT_NE(report.find(L"\r\nScreen: 1280 x 800 at 100 %"), std::wstring::npos) << report;
  ASSERT_TRUE(ClickOn(Control(about, cmdABOUTCOPY)));
  EXPECT_SOON_EQ(PastedText(nullptr, 10'000), report);

  ASSERT_TRUE(ClickOn(Control(about, cmdABOUTLICENCES)));
  HWND licences = WaitForForm(program(), L"frmLICENCES");
  ASSERT_TRUE(licences);
  HWND list = Control(licences, lstLICENCES);
  const std::vector<std::wstring> titles = Items(list);
  EXPECT_GE(titles.size(), 8u);
  for (int i = 0; i < std::ssize(titles); ++i) {
    ASSERT_TRUE(Select(list, i));
    EXPECT_GT(Text(Control(licences, txtLICENCE)).size(), 100u) << titles[i];
  }
  ASSERT_TRUE(Select(list, L"JSON reader, whole"));
  EXPECT_NE(Text(Control(licences, txtLICENCE)).find(L"Niels Lohmann"), std::wstring::npos);
  for (const wchar_t* form : {L"frmLICENCES", L"frmABOUT"}) {
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitForNoForm(program(), form));
  }
}

TEST_F(About, PagesOfTheMakerAreShownOrSaidToBeOutOfReach) {
  const test::Cases<const wchar_t*, const wchar_t*, const char*> pages = {
      {L"mnuDCDONATE", L"frmDONATE", "/products/widget-varnel/donate"},
      {L"mnuDCMORE", L"frmMORE", "/products/other-programs"}};
  const Registry opening(HKEY_LOCAL_MACHINE, L"Software\\Classes\\http\\shell\\open\\command");
  const std::wstring browser = opening.Text(L"", L"").value_or(L"");
  const std::wstring opened = root().folder() + L"\\opened.txt";
  ASSERT_TRUE(opening.SetText(L"", L"", L"cmd.exe /c echo %1>\"" + opened + L"\""));
  for (const auto& [command, name, path] : pages) {
    server_.Answer("Thanks\nfrom the maker\x01");
    HWND dialog = Open(command, name);
    ASSERT_TRUE(dialog);
    HWND text = Control(dialog, txtPAGETEXT);
    EXPECT_SOON_EQ(Text(text), L"Thanks\r\nfrom the maker");
    EXPECT_EQ(server_.requests().back(), std::string(path) + ".txt");
    EXPECT_GT(Text(Control(dialog, lblPAGEWORDS)).size(), 40u);
    ASSERT_TRUE(ClickOn(Control(dialog, cmdOPENPAGE)));
    const std::string page = Utf8FromWide(server_.address()) + path + ".html";
    EXPECT_SOON(FileBytes(opened).value_or("").starts_with(page));

    server_.Answer("", Manner::kNotFound);
    ASSERT_TRUE(ChooseShared(program(), command));
    EXPECT_SOON(Text(text).starts_with(
        L"The page cannot be shown here: the server answered with status 404."));
    EXPECT_NE(Text(text).find(WideFromUtf8(page)), std::wstring::npos);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitForNoForm(program(), name));
  }
  opening.SetText(L"", L"", browser);
}

}  // namespace
}  // namespace varnel
