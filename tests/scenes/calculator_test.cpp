// The calculator, worked by mouse and keys, and its log, whatever happens to the program.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "resources/control_ids.h"
#include "tests/rig/clipboard.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"

namespace varnel {
namespace {

using namespace rig;

constexpr WORD kPlusKey = VK_OEM_PLUS;  // without Shift the point key
constexpr WORD kMinusKey = VK_OEM_MINUS;
constexpr WORD kBackslashKey = VK_OEM_5;

constexpr char kThreeSums[] = "\"12 / 5 = 2.4\"\r\n\"7 * 3 = 21.0\"\r\n\"1 / 3 = 0.333\"\r\n";

std::string Repeated(std::string_view line, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += line;
  return text;
}

class Calculator : public Scene {
 protected:
  void Start(std::string_view log) {
    ASSERT_TRUE(WriteBytes(LogPath(), log));
    Start();
  }
  void Start() {
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Calc", L"True");
    ASSERT_TRUE(program().Start(L"/tray"));
    form_ = WaitForForm(program(), L"frmCLCwg");
    ASSERT_TRUE(form_);
  }
  void Restart() {
    ASSERT_EQ(LeaveByMenu(program()), 0u);
    Start();
  }

  HWND Part(int id) const { return Control(form_, id); }
  void Press(std::initializer_list<int> buttons) {
    for (const int id : buttons) ASSERT_TRUE(ClickOn(Part(id))) << id;
  }
  std::wstring Shown() const { return Text(Part(lbl01234567890)); }

  std::wstring LogPath() { return root().folder() + L"\\calc2.dat"; }
  std::string Log() { return FileBytes(LogPath()).value_or(""); }

  int List(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return static_cast<int>(Send(Part(lvwFILES), message, wparam, lparam));
  }
  void ClickLine(int line) {
    const Rect list = RectOf(Part(lvwFILES));
    const int row = line - List(LVM_GETTOPINDEX);
    // The list is a whole number of lines high.
    const int page = List(LVM_GETCOUNTPERPAGE);
    Click({list.left + 20, list.top + list.height() * (2 * row + 1) / (2 * page)});
  }

  HWND form_ = nullptr;
};

TEST_F(Calculator, SumsByMouse) {
  Start();
  EXPECT_EQ(Shown(), L"0");
  Press({lblNUMBER + 2, lblADD, lblNUMBER + 3, lblMULTIPLY});
  EXPECT_SOON_EQ(Shown(), L"5.0");
  EXPECT_EQ(Text(Part(lblDISPLAYFUNC)), L"\u00D7");
  Press({lblNUMBER + 4, lblEQUALS});
  EXPECT_SOON_EQ(Shown(), L"20.0");
  EXPECT_EQ(Text(Part(lblDISPLAYFUNC)), L"");
  EXPECT_EQ(Text(Part(lblSUB)), L"");
  std::string log = "\"2 + 3 = 5.0\"\r\n\"5 * 4 = 20.0\"\r\n";
  EXPECT_SOON_EQ(Log(), log);

  Press({lblNUMBER + 2, lblPOINT, lblNUMBER + 5, lblPLUSMINUS});
  EXPECT_SOON_EQ(Shown(), L"-2.5");
  Press({lblDELETE, lblDELETE, lblCLEARENTRY});
  EXPECT_SOON_EQ(Shown(), L"0");
  // A clear keeps the pending operation.
  Press({lblNUMBER + 5, lblSUBTRACT, lblCLEAR, lblNUMBER + 8, lblDIVIDE});
  EXPECT_SOON_EQ(Shown(), L"-3.0");
  // No click is lost, however quick they come.
  DoubleClick(CentreOf(Part(lblNUMBER + 9)));
  EXPECT_SOON_EQ(Shown(), L"99");
  Press({lblCLEAR, lblNUMBER, lblEQUALS});
  log += "\"5 - 8 = -3.0\"\r\n\"-3 / 0 = 0.0\"\r\n";
  EXPECT_SOON_EQ(Log(), log);
  EXPECT_SOON_EQ(Shown(), L"0.0");
}

TEST_F(Calculator, SumsByKeyboard) {
  Start();
  ASSERT_TRUE(Activate(form_));
  PressKeys({'1', kPlusKey, '5'});
  Chord({VK_SHIFT, kPlusKey});
  PressKeys({'2', kMinusKey});
  EXPECT_SOON_EQ(Shown(), L"3.5");
  PressKeys({'1', '6', VK_DELETE});
  Chord({VK_SHIFT, '8'});
  EXPECT_SOON_EQ(Shown(), L"2.5");
  PressKeys({'4', kBackslashKey, '3', VK_RETURN});
  EXPECT_SOON_EQ(Shown(), L"3.333");
  const std::string log =
      "\"1.5 + 2 = 3.5\"\r\n\"3.5 - 1 = 2.5\"\r\n\"2.5 * 4 = 10.0\"\r\n\"10 / 3 = 3.333\"\r\n";
  EXPECT_SOON_EQ(Log(), log);
  // Keys without a meaning change nothing.
  for (const WORD key : {VK_NUMPAD7, VK_OEM_PERIOD, VK_BACK, VK_ADD}) PressKey(key);
  PressKey('8');
  EXPECT_SOON_EQ(Shown(), L"8");
}

TEST_F(Calculator, KeysWorkWhereverTheFocusIs) {
  Start(kThreeSums);
  Press({lblNUMBER + 7});
  PressKeys({'5', VK_SPACE});
  EXPECT_SOON_EQ(Shown(), L"757");
  PressKey(VK_TAB);
  EXPECT_SOON(FocusedWindow() == Part(lblNUMBER + 8));
  PressKey(VK_SPACE);
  EXPECT_SOON_EQ(Shown(), L"7578");
  Chord({VK_SHIFT, VK_TAB});
  Chord({VK_SHIFT, VK_TAB});
  EXPECT_SOON(FocusedWindow() == Part(lblDIVIDE));

  ClickLine(0);
  EXPECT_SOON_EQ(Shown(), L"2.4");
  PressKey('9');
  EXPECT_SOON_EQ(Shown(), L"2.49");
  EXPECT_TRUE(FocusedWindow() == Part(lvwFILES));
}

TEST_F(Calculator, StruckKeyIsSeenGoingDown) {
  Start();
  ASSERT_TRUE(Activate(form_));
  const Picture released = StillPictureOf(Part(lblNUMBER + 6));
  PressKey('6');
  EXPECT_SOON(PictureOf(Part(lblNUMBER + 6)) != released);
  EXPECT_SOON(PictureOf(Part(lblNUMBER + 6)) == released);
}

TEST_F(Calculator, CopiesAndPastes) {
  Start(kThreeSums);
  const test::Cases<const wchar_t*, const wchar_t*> cases = {{L" 1,234.50\r\n", L"1234.5"},
                                                             {L"1.234.567,25", L"1234567.25"},
                                                             {L"\u2212 12 345", L"-12345"},
                                                             {L"no number", L"-12345"},
                                                             {L"", L"-12345"}};
  const Clipboard clipboard;
  // By a click, and not by Activate: right after that a modifier may go unnoticed here.
  Press({lblCLEAR});
  for (const auto& [pasted, shown] : cases) {
    ASSERT_TRUE(clipboard.Put({pasted}));
    Chord({VK_CONTROL, 'V'});
    EXPECT_SOON_EQ(Shown(), shown);
  }
  const auto copied = [&](std::wstring_view expected) {
    Chord({VK_CONTROL, 'C'});
    return WaitFor([&] { return clipboard.Text(); }, std::wstring(expected));
  };
  EXPECT_EQ(copied(L"-12345"), L"-12345");
  ClickLine(1);
  EXPECT_EQ(copied(L"7 * 3 = 21.0"), L"7 * 3 = 21.0");
  Chord({VK_CONTROL, 'A'});
  const std::wstring all = L"12 / 5 = 2.4\r\n7 * 3 = 21.0\r\n1 / 3 = 0.333";
  EXPECT_EQ(copied(all), all);
}

TEST_F(Calculator, RecallsByClickAndByKey) {
  Start(kThreeSums);
  EXPECT_EQ(List(LVM_GETITEMCOUNT), 3);
  // The keyboard comes to the newest line, where it can be seen.
  Press({lblPOINT});
  const Picture without_focus = StillPictureOf(Part(lvwFILES));
  PressKeys({VK_TAB, VK_TAB});
  EXPECT_SOON(PictureOf(Part(lvwFILES)) != without_focus);
  PressKey(VK_UP);
  EXPECT_SOON_EQ(Shown(), L"21.0");
  Press({lblCLEAR});
  ClickLine(1);
  EXPECT_SOON_EQ(Shown(), L"21.0");
  PressKey(VK_DOWN);
  EXPECT_SOON_EQ(Shown(), L"0.333");
  PressKey(VK_HOME);
  EXPECT_SOON_EQ(Shown(), L"2.4");
  // Moving the widget is no step in the list.
  PressKey('5');
  Chord({VK_CONTROL, VK_RIGHT});
  PressKey(VK_DELETE);
  EXPECT_SOON_EQ(Shown(), L"2.4");
  // A recalled result is an operand like any other.
  PressKeys({kMinusKey, '1', VK_RETURN});
  EXPECT_SOON_EQ(Shown(), L"1.4");
  EXPECT_TRUE(Log().ends_with("\"2.4 - 1 = 1.4\"\r\n"));
}

TEST_F(Calculator, LogIsShownAndHidden) {
  Start(Repeated("\"1 + 1 = 2.0\"\r\n", 300));
  EXPECT_TRUE(IsShown(Part(lvwFILES)));
  const int page = List(LVM_GETCOUNTPERPAGE);
  EXPECT_EQ(List(LVM_GETTOPINDEX), 300 - page) << "the end of the log is to be seen";
  ClickLine(300 - page);
  const int narrow = RectOf(Part(lblEQUALS)).width();
  Choose(form_, L"mnuCALCSHOWHIST");
  EXPECT_SOON(!IsShown(Part(lvwFILES)));
  EXPECT_SOON(FocusedWindow() == Part(lblEQUALS)) << "not what is out of sight";
  EXPECT_GT(RectOf(Part(lblEQUALS)).width(), narrow) << "the keys take the room";
  Choose(form_, L"mnuCALCSHOWHIST");
  EXPECT_SOON(IsShown(Part(lvwFILES)));
  // A small widget has no room for it; it comes back by itself.
  Choose(form_, L"mnuWIDGRESETA", 2);
  EXPECT_SOON(!IsShown(Part(lvwFILES)));
  Choose(form_, L"mnuWIDGRESETA", 0);
  EXPECT_SOON(IsShown(Part(lvwFILES)));
  // A broad one has fewer and higher lines, and the last is still to be seen.
  const auto set_size = [&](int width, int height) {
    ::SetWindowPos(form_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  };
  set_size(900, 140);
  EXPECT_SOON(List(LVM_GETCOUNTPERPAGE) < page);
  EXPECT_EQ(List(LVM_GETTOPINDEX), 300 - List(LVM_GETCOUNTPERPAGE));
  set_size(500, 350);

  // The wheel and the slim bar scroll it.
  const int last_top = WaitUntilStill([&] { return List(LVM_GETTOPINDEX); });
  TurnWheel(CentreOf(Part(lvwFILES)), 2);
  EXPECT_SOON(List(LVM_GETTOPINDEX) == last_top - 6);
  const Point on_list = CentreOf(Part(lvwFILES));
  for (int i = 0; i < 4; ++i) {  // a fine wheel
    const WORD quarter = 0xFFFF & (-WHEEL_DELTA / 4);
    ::PostMessageW(form_, WM_MOUSEWHEEL, MAKEWPARAM(0, quarter), MAKELPARAM(on_list.x, on_list.y));
  }
  EXPECT_SOON(List(LVM_GETTOPINDEX) == last_top - 3);
  const Rect bar = RectOf(ChildOfClass(form_, L"VarnelThumbBar"));
  Drag({bar.left + 3, bar.bottom - 8}, {bar.left + 3, bar.top - 50});
  EXPECT_SOON_EQ(List(LVM_GETTOPINDEX), 0);
  // What is new is brought into sight.
  Press({lblADD, lblNUMBER + 1, lblEQUALS});
  EXPECT_SOON_EQ(List(LVM_GETITEMCOUNT), 301);
  EXPECT_GT(List(LVM_GETTOPINDEX), last_top - 2);

  Choose(form_, L"mnuCALCSHOWHIST");
  EXPECT_SOON(!IsShown(Part(lvwFILES)));
  Restart();
  EXPECT_TRUE(IsShown(Part(lvwFILES))) << "that it was hidden is not remembered";
  EXPECT_EQ(List(LVM_GETITEMCOUNT), 301);
}

TEST_F(Calculator, DeletedLineMakesTheNextSumClashUntilTheNextStart) {
  Start(kThreeSums);
  ClickLine(1);
  EXPECT_SOON_EQ(Shown(), L"21.0");
  Chord({VK_CONTROL, VK_DELETE});
  const std::string two = "\"12 / 5 = 2.4\"\r\n\"1 / 3 = 0.333\"\r\n";
  EXPECT_SOON_EQ(Log(), two);
  Press({lblCLEAR, lblNUMBER + 4, lblADD, lblNUMBER + 4, lblEQUALS});
  EXPECT_SOON_EQ(Shown(), L"8.0");
  EXPECT_EQ(Log(), two) << "its key is taken";
  EXPECT_EQ(List(LVM_GETITEMCOUNT), 2);

  Restart();
  EXPECT_EQ(List(LVM_GETITEMCOUNT), 2);
  Press({lblNUMBER + 4, lblADD, lblNUMBER + 5, lblEQUALS});
  EXPECT_SOON_EQ(Log(), two + "\"4 + 5 = 9.0\"\r\n");
  // Several lines at once.
  ClickLine(0);
  Chord({VK_SHIFT, VK_DOWN});
  ASSERT_SOON(List(LVM_GETSELECTEDCOUNT) == 2);
  Choose(form_, L"mnuCALCDELETESELECTED");
  EXPECT_SOON_EQ(Log(), "\"4 + 5 = 9.0\"\r\n");
}

TEST_F(Calculator, ClearingTheLogAsksFirst) {
  Start(kThreeSums);
  Choose(form_, L"mnuCALCCLEARHISTORY");
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDNO));
  EXPECT_EQ(Log(), kThreeSums);
  Choose(form_, L"mnuCALCCLEARHISTORY");
  question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDYES));
  EXPECT_SOON_EQ(Log(), "");
  EXPECT_EQ(List(LVM_GETITEMCOUNT), 0);
}

TEST_F(Calculator, NumberOfAnyLengthStaysInItsBox) {
  Start();
  ASSERT_TRUE(Activate(form_));
  PressKey('3');
  for (int i = 0; i < 70; ++i) ::PostMessageW(form_, WM_KEYDOWN, '0', 1);
  const std::wstring whole = L"3" + std::wstring(70, L'0');
  EXPECT_SOON_EQ(Shown(), whole);
  HWND number = Part(lbl01234567890);
  const Picture start = StillPictureOf(number);
  TurnWheel(CentreOf(number), -4);
  EXPECT_SOON(PictureOf(number) != start) << "it scrolls";
  EXPECT_EQ(Text(number), whole);
  PressKey('0');
  EXPECT_SOON(PictureOf(number) == start) << "the first digits again";
}

TEST_F(Calculator, LogHeldByAnotherProgramIsReadWhenItIsFree) {
  ASSERT_TRUE(WriteBytes(LogPath(), "\"1 + 1 = 2.0\"\r\n"));
  HANDLE held =
      ::CreateFileW(LogPath().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  Start();
  Press({lblNUMBER + 2, lblADD, lblNUMBER + 3, lblEQUALS});
  EXPECT_SOON_EQ(List(LVM_GETITEMCOUNT), 1);
  ::CloseHandle(held);
  EXPECT_SOON_EQ(List(LVM_GETITEMCOUNT), 2);
  EXPECT_SOON_EQ(Log(), "\"1 + 1 = 2.0\"\r\n\"2 + 3 = 5.0\"\r\n");
  EXPECT_FALSE(FileExists(LogPath() + L".old") || FileExists(LogPath() + L".unsaved"));
  const std::string faults = FileBytes(root().folder() + L"\\debug.log").value_or("");
  EXPECT_NE(faults.find("calc2.dat: it is in use by another program"), std::string::npos) << faults;
}

TEST_F(Calculator, KilledWhileSavingItHasTheFormerLogOrTheNewOne) {
  constexpr int kRounds = 60;
  constexpr int kChanges = 40;
  const auto line = [](int digit) {
    return "\"9 - " + std::to_string(digit) + " = " + std::to_string(9 - digit) + ".0\"\r\n";
  };
  std::string former = Repeated("\"123456 / 7 = 17636.571\"\r\n", 2000);
  ASSERT_TRUE(WriteBytes(LogPath(), former));
  for (int round = 0; round < kRounds; ++round) {
    Start();
    if (HasFatalFailure()) return;
    // By turns, lines are added at the end of the file, and deleted, for which it is replaced.
    const bool adding = round % 2 == 0;
    if (!adding) {
      ClickLine(List(LVM_GETITEMCOUNT) - 1);
      ASSERT_SOON(List(LVM_GETSELECTEDCOUNT) == 1);
    }
    for (int i = 0; i < kChanges; ++i) {
      if (!adding) {
        Choose(form_, L"mnuCALCDELETESELECTED");
        continue;
      }
      for (const int key : {int{'9'}, int{kMinusKey}, '1' + i % 9, VK_RETURN}) {
        ::PostMessageW(form_, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
      }
    }
    const std::size_t some_lines = line(1).size() * static_cast<std::size_t>(round / 2 % 3);
    ASSERT_SOON(adding ? Log().size() > former.size() + some_lines
                       : Log().size() + some_lines < former.size())
        << round;
    program().Kill();
    const std::string now = Log();
    std::string expected = former;
    if (adding) {
      for (int i = 0; expected.size() < now.size(); ++i) expected += line(1 + i % 9);
    } else {
      while (expected.size() > now.size())
        expected.resize(expected.rfind('"', expected.size() - 4));
    }
    ASSERT_EQ(now.size(), expected.size()) << round;
    ASSERT_TRUE(now == expected) << round;
    former = now;
  }
  Start();
  EXPECT_EQ(List(LVM_GETITEMCOUNT), std::ranges::count(former, '\n'));
}

}  // namespace
}  // namespace varnel
