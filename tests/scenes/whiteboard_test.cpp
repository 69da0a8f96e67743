// The whiteboard, drawn on by hand, and its boards, whatever happens to them and to the program.
#include "tests/scenes/whiteboard_scene.h"

namespace varnel {
namespace {

using namespace rig;

TEST_F(WhiteboardScene, WhatIsDrawnIsSavedErasedUndoneAndRedone) {
  Start();
  EXPECT_EQ(Name(), L"New Board");
  Type(L"6]");
  EXPECT_SOON_EQ(Text(Part(lblTestfrmWBDwg)), L"Marker blue pen");
  Draw(Curve());
  const Image first = Save();
  ASSERT_EQ((Size{first.width(), first.height()}), (Size{board_.width(), board_.height()}));
  const Image curve = Drawn(first, Curve(), 5, 6);
  EXPECT_EQ(Missing(first, curve), 0);
  // The desktop's server sends a pointer that was put somewhere through places that it has left
  // already, which adds strokes along the curve.
  EXPECT_LT(Missing(curve, first), 500);
  EXPECT_EQ(InkOf(first), InkOf(curve));
  EXPECT_SOON(Name().starts_with(L"pic_2"));
  EXPECT_SOON_EQ(Rows(), 1);

  Type(L"e]");
  EXPECT_SOON_EQ(Text(Part(lblTestfrmWBDwg)), L"erase");
  Draw({{150, 20}, {150, 200}, {160, 200}, {160, 20}}, MouseButton::kRight);
  const Image erased = Save();
  for (int y = 20; y < 200; ++y) ASSERT_EQ(erased.At(155, y), kWhitePixel) << y;
  EXPECT_GT(Missing(erased, first), 50);
  ASSERT_TRUE(ClickOn(Part(cmdBOARDTOOL + 3)));
  EXPECT_EQ(Save(), first);
  Chord({VK_CONTROL, 'Y'});
  EXPECT_EQ(Save(), erased);
  EXPECT_EQ(Files().size(), 1u);

  // Leaving saves without asking; the pens are as they were at the next start.
  Chord({VK_CONTROL, 'Z'});
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  EXPECT_EQ(Saved(Files()[0]), first);
  Start();
  EXPECT_SOON_EQ(Text(Part(lblTestfrmWBDwg)), L"erase");
  ClickRow(0);
  EXPECT_SOON(Name().starts_with(L"pic_2"));

  Choose(form_, L"mnuWBOARDVERSIONS");
  HWND versions = WaitForForm(program(), L"frmWBDvr");
  ASSERT_TRUE(versions);
  EXPECT_EQ(Items(Control(versions, lstVERSIONS)).size(), 4u);
  EXPECT_TRUE(IsShown(Control(versions, imgVERSION)));
  PressButton(versions, cmdRESTORE);
  ASSERT_TRUE(WaitForNoForm(program(), L"frmWBDvr"));
  EXPECT_SOON(Saved(Files()[0]) == erased);
}

TEST_F(WhiteboardScene, TextAndPictureAreMergedWhereTheyArePut) {
  Start();
  Type(L"2");
  Choose(form_, L"mnuWBOARDINSTEXT");
  HWND dialog = WaitForForm(program(), L"frmWBDit");
  SetText(Control(dialog, txtINSE), L"pond");
  PressButton(dialog, cmdOKfrmWBDit);
  ASSERT_TRUE(WaitForNoForm(program(), L"frmWBDit"));
  // With the button held no line is drawn.
  Draw({{100, 150}, {200, 50}, {250, 200}});
  Image board = Save();
  Rect ink = InkOf(board);
  EXPECT_TRUE(!ink.empty() && ink.left > 60 && ink.right < 140 && ink.top > 130 && ink.bottom < 170)
      << ink.left << ' ' << ink.top << ' ' << ink.right << ' ' << ink.bottom;
  EXPECT_TRUE(std::ranges::count(board.All(), PixelOf(1)) > 5);

  const std::wstring picture = root().folder() + L"\\green.bmp";
  ASSERT_TRUE(WriteBytes(picture, WriteBmp(Image(40, 30, PixelOf(4)), BmpDepth::k24Bits)));
  const auto insert = [&](const std::wstring& path) {
    Choose(form_, L"mnuWBOARDINSPIC");
    HWND open = WaitForDialog(program());
    return AnswerFileDialog(open, path) && WaitUntil([&] { return !FindDialog(program()); });
  };
  ASSERT_TRUE(insert(picture));
  ASSERT_TRUE(Activate(form_));
  MoveMouse(OnScreen({220, 65}));
  // It has come to the pointer.
  EXPECT_SOON(Shown({205, 55}) == PenAt(4).colour && Shown({235, 75}) == PenAt(4).colour);
  Chord({VK_SHIFT, VK_RIGHT});
  PressKeys({VK_DOWN, VK_DOWN, VK_RETURN});
  board = Save();
  EXPECT_EQ(std::ranges::count(board.All(), PixelOf(4)), 40 * 30);
  EXPECT_EQ(board.At(210, 52), PixelOf(4));
  EXPECT_EQ(board.At(249, 81), PixelOf(4));

  // What is dropped, or cannot be read, leaves nothing.
  ASSERT_TRUE(insert(picture));
  PressKey(VK_ESCAPE);
  ASSERT_TRUE(WriteBytes(picture, "BM but no picture"));
  ASSERT_TRUE(insert(picture));
  Draw({{30, 30}, {31, 30}});
  EXPECT_EQ(std::ranges::count(Save().All(), PixelOf(4)), 40 * 30);
}

TEST_F(WhiteboardScene, BoardsAreChosenRenamedDeletedAndFollowTheirFolder) {
  ASSERT_TRUE(Put(L"a.bmp", PixelOf(1)) && Put(L"b.bmp", PixelOf(2)) && Put(L"c.bmp", PixelOf(3)));
  Start();
  EXPECT_SOON_EQ(Rows(), 3);
  ClickRow(1);
  EXPECT_SOON_EQ(Name(), L"b");
  PressKey(VK_F2);
  ASSERT_SOON(ChildOfClass(Part(lvwFILES), L"Edit") != nullptr);
  Type(L"plan 1\n");
  EXPECT_SOON_EQ(Name(), L"plan 1");
  EXPECT_EQ(Files(), (std::vector<std::wstring>{L"a.bmp", L"c.bmp", L"plan 1.bmp"}));

  // A clash asks first.
  PressKey(VK_F2);
  ASSERT_SOON(ChildOfClass(Part(lvwFILES), L"Edit") != nullptr);
  Type(L"c\n");
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDNO));
  EXPECT_EQ(Files().size(), 3u);
  EXPECT_EQ(Name(), L"plan 1");

  // Others change the board that is drawn on: both are kept.
  Draw({{20, 20}, {60, 30}});
  ASSERT_TRUE(Put(L"plan 1.bmp", PixelOf(6)));
  ASSERT_TRUE(Put(L"another.bmp", PixelOf(6)));
  EXPECT_SOON_EQ(Rows(), 4);
  ASSERT_TRUE(ClickOn(Part(cmdBOARDTOOL + 5)));
  EXPECT_SOON_EQ(Rows(), 5);
  EXPECT_SOON_EQ(Name(), L"New Board");
  EXPECT_EQ(Saved(L"plan 1.bmp").At(5, 5), PixelOf(6));

  ClickRow(0);
  EXPECT_SOON_EQ(Name(), L"a");
  for (const int answer : {IDNO, IDYES}) {
    PressKey(VK_DELETE);
    question = WaitForDialog(program());
    ASSERT_TRUE(question);
    EXPECT_EQ(Text(question), L"Delete a whiteboard");
    EXPECT_EQ(DialogText(question), L"Are you sure you want to delete?");
    ASSERT_TRUE(CloseDialog(question, answer));
    EXPECT_SOON_EQ(FileExists(Folder() + L"\\a.bmp"), answer == IDNO);
  }
  EXPECT_SOON_EQ(Name(), L"another");

  // Another folder: what is unsaved is saved in the old one first.
  Draw({{20, 40}, {60, 50}});
  const Image before = Saved(L"another.bmp");
  Choose(form_, L"mnuWBOARDPROPS");
  HWND dialog = WaitForForm(program(), L"frmWBDpr");
  SetText(Control(dialog, txtLOCATION), root().folder() + L"\\elsewhere");
  PressButton(dialog, cmdOKfrmWBDpr);
  EXPECT_SOON_EQ(Rows(), 0);
  EXPECT_EQ(Name(), L"New Board");
  EXPECT_NE(Saved(L"another.bmp"), before);
  EXPECT_TRUE(FolderExists(root().folder() + L"\\elsewhere\\wboard"));
}

}  // namespace
}  // namespace varnel
