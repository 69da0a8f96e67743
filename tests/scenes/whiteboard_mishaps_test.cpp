// The whiteboard, disturbed: what comes between a stroke and its end, full disks, and ends of the
// program at any moment.
#include <shlobj.h>

#include <cstring>
#include <random>

#include "tests/rig/clipboard.h"
#include "tests/rig/remote.h"
#include "tests/scenes/whiteboard_scene.h"
#include "win/system/com.h"

namespace varnel {
namespace {

using namespace rig;

class WhiteboardMishaps : public WhiteboardScene {
 protected:
  void StartStroke(Point from, Point to) const {
    MoveMouse(OnScreen(from));
    PressMouse(OnScreen(from));
    MoveMouse(OnScreen(to));
  }
  // Whether the screen shows ink there.
  bool Inked(Point at) const { return GetRValue(Shown(at)) < 128; }
  bool HasDraft() {
    return std::ranges::any_of(FilesBelow(Folder()),
                               [](const std::wstring& name) { return name.ends_with(L".draft"); });
  }
};

TEST_F(WhiteboardMishaps, AStrokeEndsCleanlyWhateverComesBetween) {
  ASSERT_TRUE(Put(L"a.bmp", kWhitePixel));
  Start();
  EXPECT_SOON_EQ(Rows(), 1);
  ClickRow(0);
  EXPECT_SOON_EQ(Name(), L"a");
  Type(L"]");

  // A question in the middle of a stroke.
  StartStroke({30, 30}, {80, 30});
  EXPECT_SOON(Inked({60, 30}));
  PressKey(VK_DELETE);
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDNO));
  MoveMouse(OnScreen({200, 100}));
  ReleaseMouse(OnScreen({200, 100}));
  EXPECT_FALSE(Inked({140, 65}));

  // The capture is taken away.
  ASSERT_TRUE(Activate(form_));
  StartStroke({30, 60}, {80, 60});
  EXPECT_SOON(Inked({60, 60}));
  Send(Part(picMAINBOARD), WM_CANCELMODE);
  MoveMouse(OnScreen({200, 130}));
  ReleaseMouse(OnScreen({200, 130}));

  // Out of the window and back, with both buttons at once, and sized meanwhile.
  StartStroke({30, 90}, {80, 90});
  MoveMouse({board_.left - 150, board_.top + 90});
  MoveMouse(OnScreen({80, 100}));
  PressMouse(OnScreen({80, 100}), MouseButton::kRight);
  ReleaseMouse(OnScreen({80, 100}), MouseButton::kRight);
  ::SetWindowPos(form_, nullptr, 0, 0, 760, 520, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_SOON(RectOf(Part(picMAINBOARD)).width() > board_.width() + 100);
  MoveMouse(OnScreen({120, 340}));
  ReleaseMouse(OnScreen({120, 340}));
  StillPictureOf(form_);
  const Image board = Save();
  EXPECT_GT(board.width(), board_.width() + 100);
  for (const Point inked : {Point{50, 30}, {50, 60}, {50, 90}, {119, 337}}) {
    EXPECT_NE(board.At(inked.x, inked.y), kWhitePixel) << inked.x << ' ' << inked.y;
  }
  for (const Point free : {Point{140, 65}, {140, 95}}) {
    EXPECT_EQ(board.At(free.x, free.y), kWhitePixel) << "drawn without a button";
  }
}

TEST_F(WhiteboardMishaps, ALargeBoardScrollsAndIsDrawnOnWhereItIsShown) {
  Image large(1200, 900, kWhitePixel);
  large.Fill({0, 0, 1200, 20}, PixelOf(1));
  ASSERT_TRUE(WriteBytes(Folder() + L"\\large.bmp", WriteBmp(large, BmpDepth::k24Bits)));
  Start();
  EXPECT_SOON_EQ(Rows(), 1);
  ClickRow(0);
  EXPECT_SOON_EQ(Name(), L"large");
  EXPECT_SOON_EQ(Shown({100, 5}), PenAt(1).colour);
  TurnWheel(OnScreen({100, 100}), -2);
  EXPECT_SOON_EQ(Shown({100, 5}), kWhite);
  Type(L"]");
  Draw({{50, 50}, {90, 50}});
  const Rect ink = InkOf([&] {
    Image saved = Save();
    saved.Fill({0, 0, 1200, 20}, kWhitePixel);
    return saved;
  }());
  EXPECT_EQ(ink.left, 47);
  EXPECT_GT(ink.top, 47 + 20) << "as far down as it was scrolled";
  // Others change it: what is shown follows.
  large.Fill({0, 0, 1200, 900}, PixelOf(4));
  ASSERT_TRUE(WriteBytes(Folder() + L"\\large.bmp", WriteBmp(large, BmpDepth::k24Bits)));
  EXPECT_SOON_EQ(Shown({100, 100}), PenAt(4).colour);
}

TEST_F(WhiteboardMishaps, PicturesAndTextComeFromOutside) {
  Start();
  const ComApartment apartment;
  const Clipboard clipboard;
  ASSERT_TRUE(clipboard.Put({{}, {}, Image(30, 20, PixelOf(4))}));
  Chord({VK_CONTROL, 'V'});
  MoveMouse(OnScreen({101, 101}));
  MoveMouse(OnScreen({100, 100}));
  EXPECT_SOON_EQ(Shown({100, 100}), PenAt(4).colour);
  PressKey(VK_RETURN);
  EXPECT_EQ(std::ranges::count(Save().All(), PixelOf(4)), 30 * 20);

  const std::wstring path = root().folder() + L"\\dropped.bmp";
  ASSERT_TRUE(WriteBytes(path, WriteBmp(Image(25, 10, PixelOf(5)), BmpDepth::k24Bits)));
  std::string record(sizeof(DROPFILES), '\0');
  DROPFILES files = {};
  files.pFiles = sizeof files;
  files.fWide = TRUE;
  std::memcpy(record.data(), &files, sizeof files);
  const std::wstring paths = path + std::wstring(2, L'\0');
  record.append(reinterpret_cast<const char*>(paths.data()), paths.size() * sizeof(wchar_t));
  const RemoteMemory drop(form_, record.data(), record.size());
  Send(form_, WM_DROPFILES, static_cast<WPARAM>(drop.address()));
  MoveMouse(OnScreen({200, 200}));
  EXPECT_SOON_EQ(Shown({200, 200}), PenAt(5).colour);
  Click(OnScreen({200, 200}));
  const Image board = Save();
  EXPECT_EQ(std::ranges::count(board.All(), PixelOf(5)), 25 * 10);

  Chord({VK_CONTROL, 'C'});
  EXPECT_SOON(clipboard.Picture() == board);
}

TEST_F(WhiteboardMishaps, TheSessionEndsInTheMiddleOfAStroke) {
  Start();
  StartStroke({40, 40}, {140, 40});
  EXPECT_SOON(Inked({90, 40}));
  EXPECT_TRUE(EndSession(program()));
  program().Kill();
  ReleaseMouse(OnScreen({140, 40}));
  ASSERT_EQ(Files().size(), 1u);
  EXPECT_NE(Saved(Files()[0]).At(90, 40), kWhitePixel);
  EXPECT_FALSE(HasDraft());
}

TEST_F(WhiteboardMishaps, AFullDiskLosesNothing) {
  const std::wstring disk = PathFromEnvironment(L"VARNEL_SMALL_DISK");
  if (disk.empty()) GTEST_SKIP() << "only root can make a small disk";
  root().settings().SetText(L"frmWBDpr\\Details", L"Whiteboard Folder Location",
                            disk + L"\\wboard\\");
  Start();
  Draw(Curve());
  Chord({VK_CONTROL, 'S'});
  const auto ends = [&](int answer) {
    ChooseShared(program(), L"mnuDCEXIT");
    HWND question = WaitForDialog(program());
    EXPECT_TRUE(question && DialogText(question).find(L"disk is full") != std::wstring::npos);
    return question && CloseDialog(question, answer);
  };
  ASSERT_TRUE(ends(IDNO));
  EXPECT_SOON(Inked(Curve()[10]));
  EXPECT_FALSE(WaitUntil([&] { return !FilesBelow(disk).empty(); }, 300));
  ASSERT_TRUE(ends(IDYES));
  EXPECT_EQ(program().WaitForExit(), 0u);
  RemoveAll(disk + L"\\wboard");
}

TEST_F(WhiteboardMishaps, KilledAtAnyMomentItLosesNothingOlderThanThreeSeconds) {
  constexpr DWORD kDraftMs = 3000, kGrace = 1000;  // for a busy machine
  std::mt19937 random(5);
  const auto place = [](int i) { return Point{20 + i % 12 * 30, 15 + i / 12 % 30 * 10}; };
  const int kills = KillsWanted(6);
  int kept = 0, lost = 0;
  Start();
  for (int i = 0; i < kills; ++i) {
    const Point at = place(i);
    Draw({at, {at.x + 15, at.y}});
    const DWORD drawn = ::GetTickCount();
    if (i % 3 == 0) Chord({VK_CONTROL, 'S'});
    if (i % 3 == 1) StartStroke({at.x + 3, at.y + 3}, {at.x + 9, at.y + 3});
    ::Sleep(i % 5 == 4 ? kDraftMs + kGrace + 200 : random() % 80);
    program().Kill();
    const DWORD age = ::GetTickCount() - drawn;
    ReleaseMouse(OnScreen(at));
    for (const std::wstring& name : Files()) EXPECT_FALSE(Saved(name).empty()) << "torn";
    Start();
    if (!HasDraft() && !Files().empty()) {
      ClickRow(0);
      ASSERT_SOON(Name().starts_with(L"pic_2"));
    }
    const bool there = WaitUntil([&] { return Inked({at.x + 8, at.y}); }, 500);
    (there ? kept : lost) += 1;
    if (age > kDraftMs + kGrace) EXPECT_TRUE(there) << i;
    // What there was a draft or a file of stays for good.
    if (!there) Draw({at, {at.x + 15, at.y}});
    Chord({VK_CONTROL, 'S'});
    ASSERT_SOON(!Files().empty() && !HasDraft() &&
                Saved(Files()[0]).At(at.x + 8, at.y) != kWhitePixel);
  }
  ASSERT_EQ(Files().size(), 1u);
  const Image board = Saved(Files()[0]);
  for (int i = 0; i < kills; ++i) {
    EXPECT_NE(board.At(place(i).x + 8, place(i).y), kWhitePixel) << i;
  }
  std::printf("%d kills: %d strokes kept, %d younger than %u ms lost\n", kills, kept, lost,
              static_cast<unsigned>(kDraftMs));
}

}  // namespace
}  // namespace varnel
