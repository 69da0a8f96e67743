// The update check, against servers that have an older, the same, a newer version, or none at all.
#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/rig/http_server.h"
#include "tests/rig/scene.h"

namespace varnel {
namespace {

using namespace rig;

constexpr wchar_t kNoUpdate[] = L"There Are No Updates Available as Yet";

class UpdateCheck : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    root().settings().SetText(L"Settings\\Details", L"Web Address", server_.address());
  }
  bool WaitForRequests(std::size_t count) {
    return WaitUntil([&] { return server_.requests().size() >= count; });
  }
  // What the check answers when it is asked for by menu.
  HWND Check() {
    EXPECT_TRUE(ChooseShared(program(), L"mnuDCUPDATES"));
    HWND box = WaitForDialog(program(), 25'000);
    EXPECT_TRUE(box);
    return box;
  }

  HttpServer server_;
};

TEST_F(UpdateCheck, OlderEqualAndUnreadableVersionsAreNoUpdate) {
  server_.Answer("0.99");
  ASSERT_TRUE(program().Start());
  ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  ASSERT_TRUE(WaitForRequests(1)) << "no check at the start";
  for (const char* version : {"0.99", "1.00", " 1", "", "<html>99</html>", "-5", "1.0.9"}) {
    SCOPED_TRACE(version);
    server_.Answer(version);
    HWND box = Check();
    EXPECT_EQ(Text(box), kNoUpdate);
    EXPECT_EQ(DialogText(box),
              L"If you are in need of updates due to bugs or whatever then let me know.");
    ASSERT_TRUE(CloseDialog(box, IDOK));
  }
  for (const std::string& request : server_.requests()) {
    EXPECT_EQ(request, "/products/widget-varnel/s-version.txt");
  }
}

TEST_F(UpdateCheck, NewerVersionOpensItsPageInTheBrowser) {
  const Registry opening(HKEY_LOCAL_MACHINE, L"Software\\Classes\\http\\shell\\open\\command");
  const std::wstring browser = opening.Text(L"", L"").value_or(L"");
  const std::wstring opened = root().folder() + L"\\opened.txt";
  ASSERT_TRUE(opening.SetText(L"", L"", L"cmd.exe /c echo %1>\"" + opened + L"\""));
  server_.Answer(" 1.5 is the newest");
  EXPECT_TRUE(program().Start());
  const std::string page = Utf8FromWide(server_.address()) + "/products/widget-varnel/update.html";
  EXPECT_SOON(FileBytes(opened).value_or("").starts_with(page));
  EXPECT_FALSE(FindDialog(program()));
  opening.SetText(L"", L"", browser);
}

TEST_F(UpdateCheck, HostileServersAreNoticedOnlyWhenAsked) {
  server_.Answer("", Manner::kEndlessHeaders);
  ASSERT_TRUE(program().Start());
  ASSERT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  const auto logged = [this] { return FileBytes(root().folder() + L"\\debug.log").value_or(""); };
  EXPECT_SOON(logged().find("update check: the answer was too large") != std::string::npos);
  EXPECT_SOON(server_.connections() == 0);
  EXPECT_FALSE(FindDialog(program()));

  server_.Answer("9.99", Manner::kNotFound);
  HWND box = Check();
  EXPECT_EQ(Text(box), L"No Answer to the Update Check");
  EXPECT_EQ(DialogText(box),
            L"The newest version is not known: the server answered with status 404.");
  ASSERT_TRUE(CloseDialog(box, IDOK));

  server_.Answer("", Manner::kSilent);
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCUPDATES"));
  ASSERT_TRUE(WaitForRequests(3));
  EXPECT_FALSE(FindDialog(program()));
  EXPECT_EQ(LeaveByMenu(program(), 1'000), 0u) << "the exit waits for the answer";
}

}  // namespace
}  // namespace varnel
