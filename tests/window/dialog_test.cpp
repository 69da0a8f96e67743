#include "win/windows/dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "resources/control_ids.h"
#include "tests/window/window_aid.h"
#include "win/files/disk_files.h"

namespace varnel {
namespace {

class TestDialog : public Dialog {
 public:
  explicit TestDialog(Ui& ui) : Dialog(ui, L"frmVRNpr") {}
  using Dialog::Control;
  using Dialog::ControlText;
  using Dialog::SetControlText;

  int opened = 0;
  int reopened = 0;
  int pressed = 0;  // the button that was
  bool failing = false;

 private:
  void OnOpen() override {
    ++opened;
    Fail("an opening that fails");
  }
  void OnReopen() override { ++reopened; }
  void OnCommand(int id, int code) override {
    Fail("a command that fails");
    if (code == BN_CLICKED) pressed = id;
  }
  bool OnKey(const MSG&) override {
    Fail("a key that fails");
    return false;
  }
  void Fail(const char* what) const {
    if (failing) throw std::runtime_error(what);
  }
};

class DialogTest : public test::Hosted {
 protected:
  static void PressEnter() {
    MSG enter = {};
    enter.hwnd = ::GetFocus();
    enter.message = WM_KEYDOWN;
    enter.wParam = VK_RETURN;
    ::IsDialogMessageW(::GetActiveWindow(), &enter);
  }

  TestDialog dialog_{ui_};
};

TEST_F(DialogTest, OpensOnceAndAgainAfterItWasClosed) {
  for (int round = 1; round <= 2; ++round) {
    ASSERT_TRUE(dialog_.Open(host_.handle()));
    HWND window = dialog_.handle();
    EXPECT_TRUE(dialog_.Open(host_.handle()));
    EXPECT_EQ(dialog_.handle(), window);
    EXPECT_EQ(std::pair(dialog_.opened, dialog_.reopened), std::pair(round, round));
    EXPECT_EQ(Dialog::FromHandle(window), &dialog_);
    EXPECT_EQ(Dialog::FromHandle(dialog_.Control(IDOK)), nullptr);
    EXPECT_EQ(Window::FromHandle(window), nullptr);
    if (round == 1) {
      dialog_.Close();
    } else {
      ::DestroyWindow(host_.handle());  // takes the dialog with it
    }
    EXPECT_FALSE(dialog_.open());
    EXPECT_EQ(dialog_.ControlText(IDOK), L"");
    dialog_.Close();
  }
  EXPECT_EQ(Dialog::FromHandle(nullptr), nullptr);
}

TEST_F(DialogTest, EnterPressesTheButtonWithTheFocusHoweverItCameThere) {
  ASSERT_TRUE(dialog_.Open(host_.handle()));
  const std::pair<int, int> cases[] = {{chkSTARTUP, IDOK}, {IDCANCEL, IDCANCEL}, {IDOK, IDOK}};
  for (const auto& [focus, pressed] : cases) {
    dialog_.pressed = 0;
    ::SetFocus(dialog_.Control(focus));
    PressEnter();
    EXPECT_EQ(dialog_.pressed, pressed) << focus;
  }
}

TEST_F(DialogTest, TheWindowItWasOpenedFromComesBack) {
  test::HostWindow later(ui_);
  ::SetForegroundWindow(host_.handle());
  ASSERT_TRUE(test::RunMessagesUntil([&] { return ::GetActiveWindow() == host_.handle(); }));
  ASSERT_TRUE(dialog_.Open(later.handle()));
  ASSERT_TRUE(test::RunMessagesUntil([&] { return ::GetActiveWindow() == dialog_.handle(); }));
  dialog_.Close();
  EXPECT_TRUE(test::RunMessagesUntil([&] { return ::GetActiveWindow() == host_.handle(); }));
}

TEST_F(DialogTest, WhateverThrowsIsLoggedAndTheDialogLivesOn) {
  const std::wstring folder = test::TemporaryFolder();
  DiskFiles files;
  ASSERT_TRUE(files.CreateFolder(folder));
  ui_.log.SetFile(folder + L"\\debug.log");
  dialog_.failing = true;
  ASSERT_TRUE(dialog_.Open(host_.handle()));
  ::SendMessageW(dialog_.Control(chkSTARTUP), BM_CLICK, 0, 0);
  EXPECT_TRUE(dialog_.Key({})) << "not to be handled once more, by the system";
  dialog_.failing = false;
  EXPECT_FALSE(dialog_.Key({}));
  ::SendMessageW(dialog_.Control(chkSTARTUP), BM_CLICK, 0, 0);
  EXPECT_EQ(dialog_.pressed, chkSTARTUP);
  const FileRead log = files.Read(folder + L"\\debug.log", 10'000);
  for (const char* what : {"an opening", "a command", "a key"}) {
    EXPECT_NE(log.bytes.find(what), std::string::npos) << what;
  }
  files.Remove(folder + L"\\debug.log");
  ::RemoveDirectoryW(folder.c_str());
}

}  // namespace
}  // namespace varnel
