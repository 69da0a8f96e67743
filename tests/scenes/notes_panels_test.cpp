// Finding, replacing and the spelling check in the notes, worked by the keyboard.
#include <gtest/gtest.h>

#include "base/text.h"
#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"
#include "widgets/notes/find/find_panel.h"
#include "widgets/notes/spelling/spell_desk.h"

namespace varnel {
namespace {

using namespace rig;

class NotesPanels : public Scene {
 protected:
  void Start() {
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Notes", L"True");
    root().settings().SetText(L"frmNOTwg\\Window", L"Left", L"300");
    root().settings().SetText(L"frmNOTwg\\Window", L"Top", L"300");
    root().settings().SetText(L"frmNOTwg\\Window", L"Width", L"10500");
    root().settings().SetText(L"frmNOTwg\\Window", L"Height", L"6750");
    ASSERT_TRUE(program().Start());
    form_ = WaitForForm(program(), L"frmNOTwg");
    ASSERT_TRUE(form_);
    editor_ = Control(form_, rtbPAGEBOX);
    ASSERT_TRUE(ClickOn(editor_));
    ASSERT_SOON(FocusedWindow() == editor_);
  }

  HWND At(int id) { return Control(form_, id); }
  void WriteNote(std::wstring_view text) {
    Type(text);
    EXPECT_SOON_EQ(NoteText().size(), text.size());
    Chord({VK_CONTROL, VK_HOME});
    EXPECT_SOON_EQ(SelectedUnits(editor_), std::pair(0, 0));
  }
  std::wstring NoteText() {
    std::wstring text = Text(editor_);
    std::erase(text, L'\n');
    return text;
  }
  std::wstring SelectedText() {
    const auto [from, to] = SelectedUnits(editor_);
    return NoteText().substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  }
  // Closes the message box that comes, and tells what it said.
  std::wstring Answered() {
    HWND box = WaitForDialog(program());
    const std::wstring said = box ? DialogText(box) : L"";
    EXPECT_TRUE(box && CloseDialog(box, IDOK));
    return said;
  }
  bool FocusIsIn(int id) {
    HWND focus = FocusedWindow();
    return focus && (focus == At(id) || ::IsChild(At(id), focus));
  }
  // Presses Tab, or Shift+Tab, until the control has the keyboard.
  bool TabTo(int id, bool back = false) {
    for (int i = 0; i < 20 && !FocusIsIn(id); ++i) {
      HWND former = FocusedWindow();
      if (back) {
        Chord({VK_SHIFT, VK_TAB});
      } else {
        PressKey(VK_TAB);
      }
      WaitUntil([&] { return FocusedWindow() != former; }, 2000);
    }
    return FocusIsIn(id);
  }
  // What is not saved would be asked about.
  void TearDown() override {
    if (program().running()) Choose(form_, L"mnuNOTESSAVE");
    Scene::TearDown();
  }

  HWND form_ = nullptr;
  HWND editor_ = nullptr;
};

TEST_F(NotesPanels, FindGoesFromHitToHitAndRemembersItsTexts) {
  Start();
  WriteNote(L"cat Cat\nconcat dog");
  Chord({VK_CONTROL, 'F'});
  ASSERT_SOON(FocusIsIn(cboFINDWHAT));
  EXPECT_FALSE(IsEnabled(At(btnFINDNEXT)) || IsEnabled(At(cboREPLACEWITH)));
  Type(L"cat");
  EXPECT_SOON(IsEnabled(At(btnFINDNEXT)) && IsEnabled(At(cboREPLACEWITH)));
  using Range = std::pair<int, int>;
  PressKey(VK_RETURN);
  EXPECT_SOON_EQ(SelectedUnits(editor_), Range(0, 3));
  EXPECT_SOON_EQ(Text(At(lblZOOM)), L"Found 1 of 3");
  EXPECT_TRUE(FocusIsIn(cboFINDWHAT));
  PressKeys({VK_F3, VK_F3});
  EXPECT_SOON_EQ(SelectedUnits(editor_), Range(11, 14));
  PressKey(VK_F3);
  EXPECT_EQ(Answered(), kAllFound.text);
  EXPECT_SOON(!IsEnabled(At(btnREPLACE)));
  PressKey(VK_F3);
  EXPECT_SOON_EQ(Text(At(lblZOOM)), L"From the start again: 1 of 3");
  EXPECT_TRUE(IsEnabled(At(btnREPLACE)));
  ASSERT_TRUE(TabTo(chkWHOLEWORDS));
  PressKey(VK_SPACE);
  PressKey(VK_F3);
  EXPECT_SOON_EQ(SelectedUnits(editor_), Range(4, 7));
  Chord({VK_SHIFT, VK_F3});
  EXPECT_SOON_EQ(SelectedUnits(editor_), Range(0, 3));
  ASSERT_TRUE(TabTo(btnFINDNEXT, true));
  PressKey(VK_SPACE);
  EXPECT_SOON(FocusedWindow() == editor_);
  PressKey(VK_F6);
  EXPECT_SOON(!IsShown(At(cboFINDWHAT)));

  Choose(form_, L"mnuNOTESSAVE");
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  const Registry& settings = root().settings();
  EXPECT_EQ(settings.Text(L"frmNOTwg\\Find\\Items Total", L"List Total"), L"1");
  EXPECT_EQ(settings.Text(L"frmNOTwg\\Find\\Details", L"List 1"), L"cat");
  EXPECT_EQ(settings.Text(L"frmNOTwg\\Details", L"Find Whole Word"), L"1");
  EXPECT_EQ(settings.Text(L"frmNOTwg\\Details", L"Find Match Case"), L"0");
  Start();
  EXPECT_EQ(Items(At(cboFINDWHAT)), std::vector<std::wstring>{L"cat"});
}

TEST_F(NotesPanels, ReplaceAllIsOneStepAndKeepsFormats) {
  Start();
  WriteNote(L"cat, cat, cat and cat");
  // The second is bold, the third in part.
  for (const auto& [from, to] : {std::pair(5, 8), std::pair(10, 12)}) {
    SelectUnits(editor_, from, to);
    Chord({VK_CONTROL, 'B'});
    EXPECT_SOON_EQ(FormatOfSelection(editor_).bold, true);
  }
  SelectUnits(editor_, 18, 21);
  Chord({VK_CONTROL, 'H'});
  ASSERT_SOON(FocusIsIn(cboFINDWHAT));
  EXPECT_EQ(Text(At(cboFINDWHAT)), L"cat");
  ASSERT_TRUE(TabTo(cboREPLACEWITH));
  Type(L"horse");
  ASSERT_TRUE(TabTo(btnREPLACE));
  PressKey(VK_SPACE);
  EXPECT_SOON_EQ(NoteText(), L"cat, cat, cat and horse");
  ASSERT_TRUE(TabTo(btnREPLACEALL));
  PressKey(VK_SPACE);
  // Replace has left the place behind the last.
  EXPECT_EQ(Answered(), kAllFound.text);
  EXPECT_EQ(Answered(), kAllReplaced.text);
  PressKey(VK_SPACE);
  EXPECT_EQ(Answered(), kAllReplaced.text);
  EXPECT_EQ(NoteText(), L"horse, horse, horse and horse");
  EXPECT_EQ(SelectedUnits(editor_), std::pair(0, 0));
  for (const auto& [from, bold] :
       {std::pair(0, false), std::pair(7, true), std::pair(14, true), std::pair(24, false)}) {
    SelectUnits(editor_, from, from + 5);
    EXPECT_EQ(FormatOfSelection(editor_).bold, bold) << from;
  }
  PressKey(VK_ESCAPE);
  ASSERT_SOON(FocusedWindow() == editor_);
  Chord({VK_CONTROL, 'Z'});
  EXPECT_SOON_EQ(NoteText(), L"cat, cat, cat and horse");
  SelectUnits(editor_, 10, 13);
  EXPECT_EQ(FormatOfSelection(editor_).bold, std::nullopt);
  Chord({VK_CONTROL, 'Y'});
  EXPECT_SOON_EQ(NoteText(), L"horse, horse, horse and horse");
}

TEST_F(NotesPanels, SpellingRunsThroughAPageByKeyboard) {
  const test::Cases<std::wstring, std::wstring> errors = {
      {L"abscense", L"absence"},      {L"recieve", L"receive"},
      {L"adress", L"address"},        {L"begining", L"beginning"},
      {L"beleive", L"believe"},       {L"calandar", L"calendar"},
      {L"comming", L"coming"},        {L"definately", L"definitely"},
      {L"dissapoint", L"disappoint"}, {L"embarass", L"embarrass"},
      {L"existance", L"existence"},   {L"foriegn", L"foreign"},
      {L"goverment", L"government"},  {L"happend", L"happened"},
      {L"harrass", L"harass"},        {L"independant", L"independent"},
      {L"jewelery", L"jewelry"},      {L"knowlege", L"knowledge"},
      {L"libary", L"library"},        {L"neccessary", L"necessary"},
  };
  std::wstring page;
  std::wstring right;
  for (const auto& [wrong, good] : errors) {
    page += L"the " + wrong + L", ";
    right += L"the " + good + L", ";
  }
  Start();
  WriteNote(page + L"varnelish");
  PressKey(VK_F7);
  ASSERT_SOON(FocusIsIn(txtSUGG));
  PressKey(VK_RETURN);
  int proposed = 0;
  for (const auto& [wrong, good] : errors) {
    ASSERT_SOON(SelectedText() == wrong) << Utf8FromWide(SelectedText());
    ASSERT_SOON(FocusIsIn(txtSUGG) && IsEnabled(At(btnCHANGE)));
    if (Text(At(txtSUGG)) == good) {
      ++proposed;
    } else {
      Type(good);
    }
    PressKey(VK_RETURN);
  }
  EXPECT_GE(proposed, 15);
  EXPECT_SOON_EQ(SelectedText(), L"varnelish");
  ASSERT_TRUE(TabTo(btnINCLUDE));
  PressKey(VK_SPACE);
  EXPECT_EQ(Answered(), kFullyChecked.text);
  EXPECT_EQ(NoteText(), right + L"varnelish");
  const std::wstring folder = root().folder() + L"\\notes\\";
  EXPECT_EQ(FileBytes(folder + L"Words backup.dic"), "varnelish\r\n");
  EXPECT_TRUE(FileBytes(folder + L"wordsus.dct")->ends_with("\r\nvarnelish\r\n"));

  ASSERT_TRUE(TabTo(btnOWNWORDS));
  PressKey(VK_SPACE);
  ASSERT_SOON(Items(At(lstOWNWORDS)) == std::vector<std::wstring>{L"varnelish"});
  ASSERT_TRUE(TabTo(lstOWNWORDS));
  PressKeys({VK_DOWN, VK_DELETE});
  EXPECT_SOON_EQ(FileBytes(folder + L"Words backup.dic"), "");
  EXPECT_TRUE(Items(At(lstOWNWORDS)).empty());
}

TEST_F(NotesPanels, ABadDictionaryIsTold) {
  const std::wstring path = root().folder() + L"\\notes\\wordsus.dct";
  ASSERT_TRUE(WriteBytes(path, ""));
  Start();
  WriteNote(L"zzyx");
  PressKey(VK_F7);
  ASSERT_SOON(FocusIsIn(txtSUGG));
  for (const std::string& bytes : {std::string(), std::string("\0\1\2\3", 4)}) {
    ASSERT_TRUE(WriteBytes(path, bytes));
    PressKey(VK_RETURN);
    EXPECT_EQ(Answered(), kDictionaryNotFound);
  }
  std::string huge;
  for (int i = 0; i < 1'000'000; ++i) huge += "w" + std::to_string(i) + "\r\n";
  ASSERT_TRUE(WriteBytes(path, huge));
  {
    const UniqueKernelHandle locked(
        ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(locked);
    PressKey(VK_RETURN);
    EXPECT_EQ(Answered(), kDictionaryNotFound);
  }
  PressKey(VK_RETURN);
  EXPECT_SOON_EQ(SelectedText(), L"zzyx");
  EXPECT_EQ(Items(At(lstSUGGESTIONS)), std::vector<std::wstring>{std::wstring(kNoSuggestion)});
  EXPECT_EQ(Text(At(txtSUGG)), L"");
  EXPECT_TRUE(IsEnabled(At(btnIGNORE)) && !IsEnabled(At(btnCHANGE)));
  ASSERT_TRUE(RemoveAll(path));
  ASSERT_TRUE(TabTo(optDICTUK));
  PressKey(VK_SPACE);
  EXPECT_SOON(FileExists(path));
}

}  // namespace
}  // namespace varnel
