// The time widgets, worked by mouse and keys.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "tests/rig/clipboard.h"
#include "tests/rig/scene.h"
#include "win/files/disk_files.h"

namespace varnel {
namespace {

using namespace rig;

class Time : public Scene {
 protected:
  void Open(const wchar_t* flag) { root().settings().SetText(L"frmVRNpr\\Details", flag, L"True"); }
  HWND StartWith(const wchar_t* flag, const wchar_t* form) {
    Open(flag);
    EXPECT_TRUE(program().Start());
    WaitForForm(program(), L"frmVRNwg");
    return WaitForForm(program(), form);
  }
};

// The local time `seconds` from now, as hh:nn:ss.
std::wstring TimeIn(int seconds) {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  const int later = (now.wHour * 3600 + now.wMinute * 60 + now.wSecond + seconds) % 86400;
  return PaddedNumber(later / 3600, 2) + L":" + PaddedNumber(later / 60 % 60, 2) + L":" +
         PaddedNumber(later % 60, 2);
}

TEST_F(Time, ClockShowsTheTimeInBothStyles) {
  HWND clock = StartWith(L"Start-Load-Clock", L"frmCLKwg");
  const auto seconds = [&] { return Text(Control(clock, lblSECS)); };
  const std::wstring first = seconds();
  EXPECT_EQ(first.size(), 2u);
  EXPECT_TRUE(WaitUntil([&] { return seconds() != first; }, 3000)) << "the seconds stand still";
  EXPECT_EQ(Text(Control(clock, lblPANECLOCK)).size(), 5u);

  Choose(clock, L"mnuCLOCKPROPS");
  HWND dialog = WaitForForm(program(), L"frmCLKpr");
  ASSERT_TRUE(dialog);
  EXPECT_TRUE(IsChecked(Control(dialog, optSTYLEMOD)));
  EXPECT_FALSE(IsEnabled(Control(dialog, txtCUSTOM)));
  ASSERT_TRUE(ClickOn(Control(dialog, optSTYLECLASS)));
  ASSERT_TRUE(ClickOn(Control(dialog, chkAMPM)));
  ASSERT_TRUE(ClickOn(Control(dialog, optDATECUST)));
  ASSERT_SOON(IsEnabled(Control(dialog, txtCUSTOM)));
  SetText(Control(dialog, txtCUSTOM), L"\"Day\" d");
  ASSERT_TRUE(ClickOn(Control(dialog, IDOK)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKpr"));
  EXPECT_SOON(Text(Control(clock, lblPANECLOCK)).size() == 8);
  EXPECT_FALSE(IsShown(Control(clock, lblSECS)));
  EXPECT_TRUE(Text(Control(clock, lbl7Sept2010)).starts_with(L"Day "));
  const Registry& settings = root().settings();
  EXPECT_EQ(settings.Text(L"frmCLKpr\\Details", L"Style-ampm-show"), L"0");
  EXPECT_EQ(settings.Text(L"frmCLKas\\Details", L"Alarm Other Sound"), L"");
}

TEST_F(Time, AlarmRingsWithItsMessageWhileTheClockIsClosed) {
  ASSERT_TRUE(program().Start());
  HWND manager = WaitForForm(program(), L"frmVRNwg");
  ASSERT_TRUE(manager);
  // The dialog is reached through the clock, which is closed again before the alarm rings.
  ASSERT_TRUE(ClickOn(Control(manager, lblNUMBER)));
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  Choose(clock, L"mnuCLOCKALARMSET");
  HWND dialog = WaitForForm(program(), L"frmCLKas");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(Items(Control(dialog, cboTIME)).size(), 96u);
  EXPECT_EQ(Text(Control(dialog, cboTIME)), L"00:00:00");
  // A time that is none is not taken.
  SetText(Control(dialog, cboTIME + 2), L"25:99");
  ASSERT_TRUE(ClickOn(Control(dialog, IDOK)));
  EXPECT_SOON(Text(Control(dialog, lblALARMHINT)).find(L"25:99") != std::wstring::npos);
  EXPECT_SOON(::GetParent(FocusedWindow()) == Control(dialog, cboTIME + 2));
  Type(L"7:30");
  EXPECT_SOON_EQ(Text(Control(dialog, cboTIME + 2)), L"7:30");
  // Two alarms in one second: the popup shows the second one's message, above the first one's.
  std::wstring tea = L"tea";
  for (int i = 0; i < 100; ++i) tea += L" and cake";
  const std::wstring time = TimeIn(5);
  for (const int preset : {1, 4}) {
    ASSERT_TRUE(ClickOn(Control(dialog, chkSET + preset)));
    SetText(Control(dialog, cboTIME + preset), time);
    SetText(Control(dialog, txtMESSAGE + preset), preset == 1 ? tea : L"Call home, & bring milk");
  }
  ASSERT_TRUE(ClickOn(Control(dialog, IDOK)));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmCLKas"));
  ASSERT_TRUE(ClickOn(Control(clock, lablTBARTOP + 2)));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  ASSERT_TRUE(Activate(manager));

  HWND popup = WaitForForm(program(), L"frmCLKam");
  ASSERT_TRUE(popup);
  EXPECT_SOON_EQ(Text(Control(popup, lablMESSAGE)), L"Call home, & bring milk");
  EXPECT_EQ(Text(Control(popup, lablALARMC)), time);
  EXPECT_SOON_EQ(Text(Control(popup, txtEARLIER)), time + L"  " + tea);
  EXPECT_TRUE(root().settings().Text(L"frmCLKas\\Details", L"Alarm Preset Message_1 part 4"));
  EXPECT_EQ(::GetForegroundWindow(), manager) << "the popup takes no focus";
  EXPECT_TRUE(IsTopmost(popup));
  EXPECT_EQ(FindForms(program(), L"frmCLKam").size(), 1u);
  // Within its second it would come again, so it is closed once that is over.
  ASSERT_SOON(TimeIn(0) > time);
  ASSERT_TRUE(ClickOn(Control(popup, imgBUTCLOSE)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKam"));
  EXPECT_EQ(root().settings().Text(L"frmCLKas\\Details", L"Alarm Preset Use_4"), L"1");
}

// The recordings of the session, one for each sound played.
std::vector<std::wstring> Recordings() {
  const std::wstring path = PathFromEnvironment(L"VARNEL_SOUND_FILE");
  const std::size_t cut = path.rfind(L'\\');
  std::vector<std::wstring> found;
  for (const std::wstring& name : DiskFiles().FileNames(path.substr(0, cut), L"")) {
    if (name.starts_with(path.substr(cut + 1))) found.push_back(path.substr(0, cut + 1) + name);
  }
  return found;
}

// The recording that was made after `before`, once it has more than `least` bytes; what there is of
// it when it never has.
std::string NewRecording(const std::vector<std::wstring>& before, std::size_t least) {
  std::string bytes;
  WaitUntil([&] {
    for (const std::wstring& path : Recordings()) {
      if (std::ranges::find(before, path) != before.end()) continue;
      bytes = FileBytes(path).value_or("");
    }
    return bytes.size() > least;
  });
  return bytes;
}

// A wave of a tenth of a second: a square tone, 8,000 samples of 16 bits a second.
std::string SquareWave() {
  const auto number = [](unsigned value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(value >> 8 * i));
    return bytes;
  };
  std::string samples;
  for (int i = 0; i < 800; ++i) samples += number(i / 10 % 2 == 0 ? 12345 : 65536 - 12345, 2);
  return "RIFF" + number(36 + 1600, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(8000, 4) + number(16000, 4) + number(2, 2) + number(16, 2) + "data" +
         number(1600, 4) + samples;
}

TEST_F(Time, BellAndWaveFileAreHeard) {
  ASSERT_FALSE(PathFromEnvironment(L"VARNEL_SOUND_FILE").empty()) << "nothing records the sound";
  HWND clock = StartWith(L"Start-Load-Clock", L"frmCLKwg");
  Choose(clock, L"mnuCLOCKPROPS");
  HWND dialog = WaitForForm(program(), L"frmCLKpr");
  ASSERT_TRUE(dialog);
  auto before = Recordings();
  ASSERT_TRUE(ClickOn(Control(dialog, cmdTest)));
  const std::string bell = NewRecording(before, 30'000);
  EXPECT_GT(bell.size(), 30'000u) << "0.8 seconds of bell";
  EXPECT_GT(std::ranges::count_if(bell, [](char byte) { return byte != 0; }), 10'000);

  const std::wstring path = root().folder() + L"\\tone of mine.WAV";
  ASSERT_TRUE(WriteBytes(path, SquareWave()));
  ASSERT_TRUE(ClickOn(Control(dialog, optAUDIOFILE)));
  SetText(Control(dialog, txtAUDIO), path);
  before = Recordings();
  ASSERT_TRUE(ClickOn(Control(dialog, cmdTest)));
  EXPECT_NE(NewRecording(before, 1600).find(std::string("\x39\x30\x39\x30", 4)), std::string::npos);
  // A file that is not there, and a path of 300 characters: silence, and nothing breaks.
  SetText(Control(dialog, txtAUDIO), root().folder() + L"\\gone.mp3");
  ASSERT_TRUE(ClickOn(Control(dialog, cmdTest)));
  SetText(Control(dialog, txtAUDIO), L"C:\\" + std::wstring(300, L'x') + L".wav");
  ASSERT_TRUE(ClickOn(Control(dialog, cmdTest)));
  ASSERT_TRUE(ClickOn(Control(dialog, IDCANCEL)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKpr"));
}

TEST_F(Time, StopwatchStartLapsePauseResumeReset) {
  HWND form = StartWith(L"Start-Load-Stopwatch", L"frmSTWwg");
  ASSERT_TRUE(form);
  const auto shown = [&] { return Text(Control(form, lblELAPSED)); };
  HWND left = Control(form, lblStartfrmSTWwg);
  HWND right = Control(form, lblStopfrmSTWwg);
  EXPECT_EQ(Text(left) + Text(right), L" Start  Stop ");
  ASSERT_TRUE(ClickOn(left));
  EXPECT_SOON(shown() > L"00:00.30");
  EXPECT_EQ(Text(left) + Text(right), L" Pause  Lapse ");
  ASSERT_TRUE(ClickOn(right));
  const std::wstring frozen = WaitUntilStill(shown, 400);
  ASSERT_TRUE(ClickOn(left));
  EXPECT_SOON(Text(left) == L" Resume ");
  EXPECT_EQ(shown(), frozen);
  EXPECT_EQ(Text(right), L" Reset ");
  // By keyboard: Space on the focused button resumes.
  ASSERT_TRUE(Activate(form));
  PressKey(VK_SPACE);
  EXPECT_SOON(Text(left) == L" Pause ");
  EXPECT_SOON(shown() > frozen);

  ASSERT_TRUE(ClickOn(left));
  ASSERT_SOON(Text(right) == L" Reset ");
  const std::wstring paused = shown();
  Chord({VK_CONTROL, 'C'});
  EXPECT_SOON_EQ(Clipboard().Text(), paused);
  ASSERT_TRUE(ClickOn(right));
  EXPECT_SOON_EQ(shown(), L"00:00.00");
  EXPECT_EQ(Text(right), L" Stop ");
  // Closed while running, it is gone for good.
  ASSERT_TRUE(ClickOn(left));
  ASSERT_TRUE(ClickOn(Control(form, lablTBARTOP + 2)));
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  PressButton(question, IDYES);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmSTWwg"));
  EXPECT_TRUE(program().running());
}

TEST_F(Time, CountdownFromThreeSecondsToTheMessageAndBack) {
  HWND form = StartWith(L"Start-Load-Timer", L"frmCDNwg");
  ASSERT_TRUE(form);
  EXPECT_EQ(Text(Control(form, txtMIN)), L"02");
  // Three digits take a smaller font; without them all is as it was.
  HWND seconds = Control(form, txtSECS);
  const int height = RectOf(seconds).height();
  const Picture zero = StillPictureOf(seconds);
  ASSERT_TRUE(ClickOn(Control(form, txtSUBHRS)));
  ASSERT_SOON(SelectedUnits(Control(form, txtSUBHRS)).second == 2);
  Type(L"127");
  EXPECT_SOON(RectOf(seconds).height() < height);
  for (int i = 0; i < 3; ++i) PressKey(VK_BACK);
  EXPECT_SOON(PictureOf(seconds) == zero);
  for (const int field : {txtSUBMIN, txtSUBSECS}) {
    ASSERT_TRUE(ClickOn(Control(form, field)));
    ASSERT_SOON(SelectedUnits(Control(form, field)).second == 2);
    Type(field == txtSUBMIN ? L"0" : L"3");
  }
  EXPECT_SOON_EQ(Text(Control(form, txtSECS)), L"03");
  EXPECT_EQ(Text(Control(form, txtMIN)), L"00");
  EXPECT_EQ(root().settings().Text(L"frmCDNwg\\Details", L"Timer-Interval-secs"), L"03");
  ASSERT_TRUE(ClickOn(Control(form, lblStart)));
  EXPECT_SOON(Text(Control(form, lblStart)) == L" Pause ");
  EXPECT_SOON(Text(Control(form, txtSECS)) == L"00");
  HWND box = WaitForDialog(program());
  ASSERT_TRUE(box);
  EXPECT_EQ(Text(box), L"Stopwatch Timer");
  EXPECT_NE(DialogText(box).find(L"Time Has Now Ended"), std::wstring::npos);
  EXPECT_TRUE(CloseDialog(box, IDOK));
  EXPECT_SOON(Text(Control(form, lblStart)) == L" Start ");
  EXPECT_EQ(Text(Control(form, lblStop)), L" Stop ");
  EXPECT_EQ(Text(Control(form, txtSECS)), L"03");
  EXPECT_FALSE(FindDialog(program())) << "the end is announced once";
}

TEST_F(Time, CountdownClosedWhileItsEndIsAnnounced) {
  root().settings().SetText(L"frmCDNwg\\Details", L"Timer-Interval-mins", L"00");
  root().settings().SetText(L"frmCDNwg\\Details", L"Timer-Interval-secs", L"01");
  HWND form = StartWith(L"Start-Load-Timer", L"frmCDNwg");
  ASSERT_TRUE(form);
  ASSERT_TRUE(ClickOn(Control(form, lblStart)));
  ASSERT_TRUE(WaitForDialog(program()));
  Choose(FindForm(program(), L"frmVRNwg"), L"mnuDCWIDGETS", 5);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCDNwg"));
  EXPECT_SOON(!FindDialog(program()));
  Choose(FindForm(program(), L"frmVRNwg"), L"mnuDCWIDGETS", 5);
  EXPECT_TRUE(WaitForForm(program(), L"frmCDNwg"));
}

}  // namespace
}  // namespace varnel
