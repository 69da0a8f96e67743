// What scenes work and judge the program with, tried on windows of our own.
#include <windows.h>

#include <commctrl.h>

#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/picture.h"
#include "tests/window/window_aid.h"
#include "win/files/disk_files.h"
#include "win/rich/rich_edit.h"

namespace varnel {
namespace {

class Rig : public test::Hosted {};

TEST_F(Rig, StrokesEndWhereTheyShouldWithButtonAndModifierHeld) {
  std::vector<Point> seen;
  bool held = true;
  host_.on_message = [&](UINT message, WPARAM keys, LPARAM place) {
    if (message != WM_MOUSEMOVE || !(keys & MK_LBUTTON)) return false;
    held = held && (keys & MK_SHIFT);
    const Point point = {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
    if (seen.empty() || seen.back() != point) seen.push_back(point);
    return false;
  };
  rig::ResetInput();
  ::SetForegroundWindow(host_.handle());
  {
    const rig::HeldKeys shift({VK_SHIFT});
    const Point points[] = {{60, 60}, {90, 70}, {70, 120}, {200, 60}};
    rig::Stroke(points);
  }
  test::RunMessagesUntil([&] { return !seen.empty() && seen.back() == Point{160, 20}; });
  EXPECT_TRUE(held);
  ASSERT_GE(seen.size(), 1u);
  EXPECT_EQ(seen.back(), (Point{160, 20}));
  EXPECT_GE(::GetAsyncKeyState(VK_SHIFT), 0) << "released";
}

TEST_F(Rig, PicturesOfFilesAreReadAndCompared) {
  const rig::Picture screen = rig::PictureOf(host_.handle());
  const std::wstring path = test::TemporaryFolder() + L"\\picture.bmp";
  ASSERT_TRUE(screen.Save(path));
  EXPECT_EQ(rig::Picture::FromFile(path), screen);
  rig::RemoveAll(test::TemporaryFolder());
  EXPECT_EQ(rig::Picture::FromFile(path), rig::Picture());
  EXPECT_EQ(screen.CountNear({-5, -5, 10, 10}, screen.At({0, 0}) ^ 0x020202, 2),
            screen.CountNear({0, 0, 10, 10}, screen.At({0, 0})));
  EXPECT_FALSE(rig::AreNear(RGB(10, 20, 30), RGB(10, 20, 34), 3));
}

TEST_F(Rig, RecordsAndLabelsComeFromOtherProgramsToo) {
  RichEdit edit{{}};
  ASSERT_TRUE(edit.Create(host_.handle(), 3, 0, {.half_points = 24}));
  std::wstring lines;
  while (lines.size() < 70'000) lines += L"one of many lines\r";
  edit.PutText(lines);
  rig::SelectUnits(edit.handle(), 66'000, 67'000);
  EXPECT_EQ(rig::SelectedUnits(edit.handle()), std::pair(66'000, 67'000));
  edit.SetFormat({.bold = true});
  EXPECT_EQ(rig::FormatOfSelection(edit.handle()).bold, true);
  edit.SetParagraph({.alignment = RichAlignment::kCentre});
  EXPECT_EQ(rig::ParagraphOfSelection(edit.handle()).alignment, RichAlignment::kCentre);

  HWND list = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_LIST, 0, 0, 100, 100,
                                host_.handle(), nullptr, nullptr, nullptr);
  for (const wchar_t* label : {L"b", L"a \x00e4"}) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<wchar_t*>(label);
    ListView_InsertItem(list, &item);
  }
  ListView_SetItemState(list, 1, LVIS_SELECTED, LVIS_SELECTED);
  EXPECT_EQ(rig::RowLabels(list), (std::vector<std::wstring>{L"a \x00e4", L"b"}));
  EXPECT_EQ(rig::SelectedRows(list), std::vector<int>{1});
}

TEST_F(Rig, FullDiskLeavesTheOldContent) {
  const std::wstring disk = rig::PathFromEnvironment(L"VARNEL_SMALL_DISK");
  if (disk.empty()) GTEST_SKIP() << "only root can make a small disk";
  DiskFiles files;
  const std::wstring path = disk + L"\\note.txt";
  ASSERT_TRUE(files.Replace(path, "old"));
  EXPECT_FALSE(files.Replace(path, std::string(300'000, 'x')));
  EXPECT_EQ(rig::FileBytes(path), "old");
  EXPECT_EQ(files.FileNames(disk, L"").size(), 1u);
  EXPECT_TRUE(files.Replace(path, "new"));
  rig::RemoveAll(path);
}

}  // namespace
}  // namespace varnel
