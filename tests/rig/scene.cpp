#include "tests/rig/scene.h"

#include <algorithm>

#include "base/text.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"

namespace varnel::rig {
namespace {

// A scene before this one may have killed its program: the shell takes 2 s to remove such an icon.
constexpr int kTrayPatience = 3'000;  // milliseconds

// Icons are drawn on the taskbar itself, from its right end on; it is plain where there is none.
bool TrayIsEmpty() {
  HWND taskbar = ::FindWindowW(L"Shell_TrayWnd", nullptr);
  if (!taskbar || !IsShown(taskbar)) return true;
  const Rect bar = RectOf(taskbar);
  return Picture({bar.right - bar.height(), bar.top, bar.right, bar.bottom}).Colours().size() < 2;
}

}  // namespace

std::wstring Scene::artifacts() const {
  const std::wstring folder = PathFromEnvironment(L"VARNEL_ARTIFACTS");
  if (folder.empty()) return folder;
  const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(test->test_suite_name()) + "." + test->name();
  std::replace(name.begin(), name.end(), '/', '-');
  return folder + L"\\" + WideFromUtf8(name);
}

void Scene::SetUp() {
  if (!artifacts().empty()) RemoveAll(artifacts());
  ResetInput();
  WaitUntil(TrayIsEmpty, kTrayPatience);
}

void Scene::TearDown() {
  const bool asked_for_pictures = !artifacts().empty();
  if (HasFailure() && asked_for_pictures) PictureOfScreen().Save(artifacts() + L"\\desktop.bmp");
  EndProgram();
  const std::optional<std::string> log = FileBytes(root_.folder() + L"\\debug.log");
  if (HasFailure() && asked_for_pictures && log) {
    WriteBytes(artifacts() + L"\\debug.log", *log);
  }
}

void Scene::EndProgram() {
  // After a failure there may be a dialog in the way: nothing is to be learned from waiting for it.
  if (program_.running() && !HasFailure()) {
    EXPECT_TRUE(LeaveByMenu(program_)) << "the program did not end when told to";
  }
  program_.Kill();
  if (program_.id() != 0 && !program_.killed()) {
    EXPECT_EQ(program_.exit_code(), 0u) << "the program did not end well";
  }
}

}  // namespace varnel::rig
