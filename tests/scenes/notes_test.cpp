// The notes: what is typed, formatted and chosen ends in files that say it.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "tests/rig/clipboard.h"
#include "tests/scenes/notes_scene.h"
#include "widgets/notes/notes_layout.h"
#include "win/graphics/pictures.h"

namespace varnel {
namespace {

using namespace rig;

class Notes : public NotesScene {
 protected:
  // A picture of two pixels, which no codec may change, and a text.
  void ChooseAmongSamples() {
    const std::wstring pictures = root().folder() + L"\\samples\\";
    constexpr char kBmp[] =
        "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\x08\0\0\0"
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x01\x02\x03\xFD\xFE\xFF\0\0";
    ASSERT_TRUE(WriteBytes(pictures + L"dots.bmp", {kBmp, 62}));
    ASSERT_TRUE(WriteBytes(pictures + L"part.rtf", "{\\rtf1 {\\b put} in}"));
    for (const wchar_t* name : {L"Text-Folder-Loc", L"Picture-Folder-Loc"}) {
      root().settings().SetText(L"frmNOTwg\\Details", name, pictures);
    }
  }
  static void TypeEveryFormat() {
    Chord({VK_CONTROL, VK_MENU, '1'});
    Type(L"Title\n");
    Chord({VK_CONTROL, VK_MENU, '7'});
    Type(L"plain ");
    Chord({VK_CONTROL, 'B'});
    Type(L"heavy ");
    Chord({VK_CONTROL, 'B'});
    Chord({VK_CONTROL, 'I'});
    Type(L"slanted ");
    Chord({VK_CONTROL, 'I'});
    Chord({VK_CONTROL, 'U'});
    Type(L"lined ");
    Chord({VK_CONTROL, 'U'});
    Chord({VK_CONTROL, VK_OEM_PLUS});
    Type(L"up ");
    Chord({VK_CONTROL, VK_SHIFT, VK_OEM_PLUS});
    Type(L"down ");
    Chord({VK_CONTROL, VK_SPACE});
    Type(L"cleared \u0142\u011f\u03c9\n");
    Chord({VK_CONTROL, 'R'});
    Type(L"right\n");
    Chord({VK_CONTROL, 'E'});
    Type(L"centre\n");
    Chord({VK_CONTROL, 'J'});
    Type(L"both\n");
    Chord({VK_CONTROL, 'L'});
    Chord({VK_CONTROL, VK_RETURN});
    Type(L"bullet\n");
    Chord({VK_CONTROL, VK_RETURN});
    Chord({VK_CONTROL, 'M'});
    Chord({VK_CONTROL, '3'});
    Type(L"spaced");
  }
};

TEST_F(Notes, WhatIsTypedAndFormattedByKeysIsInTheFile) {
  Start();
  EXPECT_EQ(Title(), L"Tavrin 1");
  EXPECT_EQ(Text(Control(form_, lblCHARS)), L"0 words (0 chars). ");
  EXPECT_EQ(Text(Control(form_, lblLINESTAT)), L"1 of 1 line. ");
  TypeEveryFormat();
  EXPECT_SOON_EQ(Text(Control(form_, lblLINESTAT)), L"7 of 7 lines. ");
  Chord({VK_CONTROL, 'S'});
  const RtfDocument note = Saved(OnlyNote());
  EXPECT_EQ(note.text,
            L"Title\rplain heavy slanted lined up down cleared \u0142\u011f\u03c9\rright\rcentre\r"
            L"both\rbullet\rspaced");
  EXPECT_EQ(FormatAt(note, L"Title").half_points, 36);
  EXPECT_TRUE(FormatAt(note, L"Title").bold);
  EXPECT_EQ(FormatAt(note, L"plain").half_points, 24);
  EXPECT_FALSE(FormatAt(note, L"plain").bold);
  EXPECT_TRUE(FormatAt(note, L"heavy").bold);
  EXPECT_TRUE(FormatAt(note, L"slanted").italic);
  EXPECT_EQ(FormatAt(note, L"lined").underline, Underline::kSingle);
  EXPECT_GT(FormatAt(note, L"up").raised, 0);
  EXPECT_LT(FormatAt(note, L"down").raised, 0);
  EXPECT_EQ(FormatAt(note, L"cleared").raised, 0);
  EXPECT_EQ(note.fonts[FormatAt(note, L"cleared").font].name, L"Times New Roman");
  EXPECT_EQ(ParagraphAt(note, L"right").alignment, Alignment::kRight);
  EXPECT_EQ(ParagraphAt(note, L"centre").alignment, Alignment::kCentre);
  EXPECT_EQ(ParagraphAt(note, L"both").alignment, Alignment::kJustified);
  EXPECT_EQ(ParagraphAt(note, L"bullet").numbering, Numbering::kBullet);
  const ParagraphFormat& spaced = ParagraphAt(note, L"spaced");
  EXPECT_EQ(spaced.numbering, Numbering::kNone);
  EXPECT_EQ(spaced.first + spaced.left, 720);
  EXPECT_EQ(spaced.line_rule, LineRule::kMultiple);
  EXPECT_EQ(spaced.line_spacing, 23);
}

TEST_F(Notes, WhatOtherProgramsCopiedIsPastedAndGivenBack) {
  Start();
  const Clipboard clipboard;
  ASSERT_TRUE(clipboard.Put(
      {L"seen aloud", R"({\rtf1{\colortbl;\red9\green8\blue200;}{\b seen} {\cf1 aloud}})"}));
  Chord({VK_CONTROL, 'V'});
  EXPECT_SOON_EQ(Content(), L"seen aloud");
  Chord({VK_CONTROL, VK_SPACE});
  Type(L" ");
  Chord({VK_CONTROL, VK_SHIFT, 'V'});
  EXPECT_SOON_EQ(Content(), L"seen aloud seen aloud");
  Chord({VK_CONTROL, 'A'});
  Chord({VK_CONTROL, 'C'});
  EXPECT_SOON(clipboard.Text() == L"seen aloud seen aloud");
  const RtfDocument given = ReadRtf(clipboard.Rtf()).document;
  Chord({VK_CONTROL, 'S'});
  const RtfDocument saved = Saved(OnlyNote());
  for (const RtfDocument* note : {&given, &saved}) {
    EXPECT_EQ(note->text, L"seen aloud seen aloud");
    EXPECT_TRUE(FormatAt(*note, L"seen").bold);
    EXPECT_FALSE(FormatAt(*note, L"aloud").bold);
    EXPECT_NE(FormatAt(*note, L"aloud").colour, FormatAt(*note, L"seen").colour);
  }
}

TEST_F(Notes, PanelsFormatAndPutIn) {
  ChooseAmongSamples();
  Start();
  PressKey(VK_F2);
  EXPECT_SOON(IsShown(Control(form_, lstFONTSIZE)));
  ASSERT_TRUE(Select(Control(form_, lstFONTSIZE), L"20"));
  ASSERT_TRUE(ClickOn(Control(form_, chkBOLD)));
  EXPECT_SOON(FocusedWindow() == editor_);
  EXPECT_TRUE(IsChecked(Control(form_, chkBOLD)) && !IsChecked(Control(form_, chkITALIC)));
  Type(L"big ");
  PressKey(VK_F4);
  EXPECT_SOON(IsShown(Control(form_, cboRULES)) && !IsShown(Control(form_, chkBOLD)));
  ASSERT_TRUE(Select(Control(form_, cboRULES), L"1.15 Spacing"));
  ASSERT_TRUE(ClickOn(Control(form_, optALIGN + 2)));
  EXPECT_SOON_EQ(Selected(Control(form_, cboRULES)), 5);
  EXPECT_EQ(Text(Control(form_, cboLINCUST)), L"1.1") << "as it reads back";
  PressKey(VK_F11);
  EXPECT_SOON(IsShown(Control(form_, btnINSPICTURE)));
  ASSERT_SOON(StillPictureOf(Control(form_, imgPREVIEW)).Colours().contains(RGB(3, 2, 1)));
  ASSERT_TRUE(ClickOn(Control(form_, btnINSPICTURE)));
  EXPECT_SOON(FocusedWindow() == editor_);
  PressKey(VK_F9);
  EXPECT_SOON(IsShown(Control(form_, btnTXTINS)));
  EXPECT_EQ(Text(Control(form_, rtbPREV)), L"put in");
  ASSERT_TRUE(ClickOn(Control(form_, btnTXTINS)));
  Choose(form_, L"mnuNOTESSAVE");
  const std::wstring path = OnlyNote();
  const RtfDocument note = Saved(path);
  EXPECT_EQ(note.text, std::wstring(L"big ") + kObject + L"put in");
  EXPECT_EQ(FormatAt(note, L"big").half_points, 40);
  EXPECT_TRUE(FormatAt(note, L"big").bold);
  EXPECT_TRUE(FormatAt(note, L"put").bold);
  EXPECT_EQ(ParagraphAt(note, L"big").alignment, Alignment::kCentre);
  ASSERT_EQ(note.pictures.size(), 1u);
  const Image pixels = DecodePicture(note.pictures[0].bytes).image;
  ASSERT_EQ(pixels.width(), 2);
  EXPECT_EQ(pixels.At(0, 0), 0xFF030201u);
  EXPECT_EQ(pixels.At(1, 0), 0xFFFFFEFDu);
  // Opened, edited and saved again, everything is still there.
  Chord({VK_CONTROL, 'N'});
  EXPECT_SOON_EQ(Title(), L"Tavrin 2");
  const Rect rows = RectOf(Control(form_, lvwFILES));
  Click({rows.left + 20, rows.top + 10});
  EXPECT_SOON(Content().starts_with(L"big"));
  ASSERT_TRUE(ClickOn(editor_));
  Chord({VK_CONTROL, VK_END});
  Type(L"!");
  Choose(form_, L"mnuNOTESSAVE");
  EXPECT_SOON(Saved(path).text.ends_with(L"!"));
  const RtfDocument again = Saved(path);
  ASSERT_EQ(again.pictures.size(), 1u);
  EXPECT_EQ(again.pictures[0].bytes, note.pictures[0].bytes);
  EXPECT_EQ(ParagraphAt(again, L"big").line_spacing, 23);
}

TEST_F(Notes, TheTextHasAMenuOfItsOwnByMouseAndByKey) {
  Start();
  Type(L"word");
  Chord({VK_CONTROL, 'A'});
  ASSERT_TRUE(ClickOn(editor_, MouseButton::kRight));
  ASSERT_TRUE(WaitForMenus(program(), 1));
  PressKey('U');  // undo
  EXPECT_SOON_EQ(Content(), L"");
  PressKey(VK_APPS);
  ASSERT_TRUE(WaitForMenus(program(), 1));
  PressKey('R');  // redo
  EXPECT_SOON_EQ(Content(), L"word");
  Choose(form_, L"mnuNOTESSAVE");
  EXPECT_FALSE(OnlyNote().empty());
}

TEST_F(Notes, PlainTextHasNoFormats) {
  Start();
  PressKey(VK_F2);
  EXPECT_SOON(IsShown(Control(form_, chkBOLD)));
  Choose(form_, L"mnuNOTESNEWTEXT");
  EXPECT_SOON_EQ(Title(), L"Notes 2");
  EXPECT_SOON(!IsShown(Control(form_, chkBOLD)));
  EXPECT_FALSE(IsEnabled(Control(form_, lablTOOLSINS + 3)));
}

TEST_F(Notes, AreFoundAndGoBackToAnEarlierVersion) {
  ASSERT_TRUE(WriteBytes(Folder() + L"Cake.rtf", "{\\rtf1 plums and flour}"));
  ASSERT_TRUE(WriteBytes(Folder() + L"Shopping.txt", "flour"));
  ASSERT_TRUE(WriteBytes(Folder() + L"Other.txt", "nothing"));
  Start();
  HWND list = Control(form_, lvwFILES);
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 3);
  ASSERT_TRUE(ClickOn(Control(form_, txtSEARCHNOTES)));
  Type(L"FLOUR");
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 2);
  Type(L" plum");
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 1);
  const Rect rows = RectOf(list);
  Click({rows.left + 20, rows.top + 10});
  EXPECT_SOON_EQ(Content(), L"plums and flour");
  ASSERT_TRUE(ClickOn(editor_));
  Chord({VK_CONTROL, 'A'});
  Type(L"new text");
  Choose(form_, L"mnuNOTESSAVE");
  EXPECT_SOON(Saved(Folder() + L"Cake.rtf").text == L"new text");
  Choose(form_, L"mnuNOTESVERSIONS");
  HWND versions = WaitForForm(program(), L"frmNOTvr");
  ASSERT_TRUE(versions);
  EXPECT_EQ(Text(Control(versions, txtVERSION)), L"plums and flour");
  Send(Control(versions, cmdRESTORE), BM_CLICK);
  EXPECT_SOON_EQ(Content(), L"plums and flour");
  EXPECT_SOON(Saved(Folder() + L"Cake.rtf").text == L"plums and flour");
}

TEST_F(Notes, ThePropertiesAreKeptOnceTheFolderIsThere) {
  Start();
  const auto open = [this] {
    Choose(form_, L"mnuNOTESPROPS");
    return WaitForForm(program(), L"frmNOTpr");
  };
  const auto details = [this](const wchar_t* name) {
    return root().settings().Text(L"frmNOTpr\\Details", name);
  };
  HWND dialog = open();
  ASSERT_TRUE(dialog);
  EXPECT_SOON_EQ(Text(Control(dialog, txtLOCATION)), Folder());
  SetText(Control(dialog, txtLOCATION), L"no path");
  SetText(Control(dialog, cboFONTSIZETEXT), L"20");
  Send(Control(dialog, optDOCTYPE + 1), BM_CLICK);
  PressButton(dialog, cmdOKfrmNOTpr);
  HWND refusal = WaitForDialog(program());
  ASSERT_TRUE(refusal);
  EXPECT_NE(DialogText(refusal).find(L"\"no path\""), std::wstring::npos);
  ASSERT_TRUE(CloseDialog(refusal, IDOK));
  EXPECT_TRUE(::IsWindow(dialog));
  EXPECT_NE(details(L"Font Size"), L"20");

  const std::wstring elsewhere = root().folder() + L"\\elsewhere";
  SetText(Control(dialog, txtLOCATION), elsewhere);
  PressButton(dialog, cmdOKfrmNOTpr);
  EXPECT_SOON(!::IsWindow(dialog));
  EXPECT_TRUE(FolderExists(elsewhere)) << "what is typed is taken as it is";
  EXPECT_EQ(details(L"Notes Folder Location"), elsewhere + L"\\");
  EXPECT_EQ(details(L"Font Size"), L"20");
  EXPECT_EQ(details(L"Document Type"), L"1");
}

TEST_F(Notes, ClosingAsksAndAKilledProgramLosesNothing) {
  Start();
  Type(L"first words");
  Chord({VK_CONTROL, 'W'});
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  EXPECT_EQ(Text(question), L"There Are Unsaved Changes");
  ASSERT_TRUE(CloseDialog(question, IDCANCEL));
  EXPECT_EQ(Content(), L"first words");
  // Exit asks as well, and Cancel stops it.
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDCANCEL));
  EXPECT_TRUE(program().running());
  // A draft is there a while after the last change; killed, the note comes back as changed.
  const std::wstring draft = Folder() + L".varnel\\Tavrin 1.RTF.draft";
  EXPECT_SOON(FileExists(draft));
  program().Kill();
  Start();
  EXPECT_EQ(Content(), L"first words");
  Type(L"X");
  Chord({VK_CONTROL, 'W'});
  question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDNO));
  EXPECT_SOON_EQ(Content(), L"");
  EXPECT_EQ(Title(), L"Tavrin 2");
  EXPECT_TRUE(Files().empty());
  EXPECT_SOON(!FileExists(draft));
  // At the session's end nothing is asked, and the last letter is on the disk at once.
  Type(L"second words");
  EXPECT_TRUE(EndSession(program()));
  program().Kill();
  EXPECT_EQ(Saved(Folder() + L".varnel\\Tavrin 2.RTF.draft").text, L"second words");
}

TEST_F(Notes, TheListOpensSavesRenamesAndDeletes) {
  Start();
  Type(L"one");
  Chord({VK_CONTROL, 'N'});  // saves what is changed without asking
  Type(L"two");
  ASSERT_TRUE(ClickOn(Control(form_, lablTOOLSINS + int{kToolSave})));
  EXPECT_SOON(Files().size() == 2);
  EXPECT_SOON(FocusedWindow() == editor_) << "whoever clicks a tool goes on writing";
  HWND list = Control(form_, lvwFILES);
  const Rect rows = RectOf(list);
  Click({rows.left + 20, rows.top + 10});
  EXPECT_SOON_EQ(Content(), L"one");
  PressKey(VK_DOWN);
  EXPECT_SOON_EQ(Content(), L"two");
  PressKey(VK_F2);
  Type(L"Renamed\n");
  EXPECT_SOON(FileExists(Folder() + L"Renamed.rtf"));
  EXPECT_EQ(Title(), L"Renamed");
  ASSERT_TRUE(ClickOn(editor_));
  Chord({VK_CONTROL, VK_END});
  Type(L" more");
  Chord({VK_CONTROL, 'S'});
  EXPECT_SOON_EQ(Saved(Folder() + L"Renamed.rtf").text, L"two more");
  // Others add, change and remove files: the list and the note follow.
  ASSERT_TRUE(WriteBytes(Folder() + L"Another.txt", "plain"));
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 3);
  ASSERT_TRUE(WriteBytes(Folder() + L"Renamed.rtf", "{\\rtf1 from outside}"));
  EXPECT_SOON_EQ(Content(), L"from outside");
  Type(L"mine ");
  ASSERT_TRUE(WriteBytes(Folder() + L"Renamed.rtf", "{\\rtf1 outside again}"));
  Chord({VK_CONTROL, 'S'});
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(CloseDialog(question, IDNO));
  EXPECT_EQ(Saved(Folder() + L"Renamed.rtf").text, L"outside again") << "not unasked";
  Choose(form_, L"mnuNOTESSAVE");
  ASSERT_TRUE(CloseDialog(WaitForDialog(program()), IDYES));
  EXPECT_SOON_EQ(Saved(Folder() + L"Renamed.rtf").text, L"mine from outside");
}

}  // namespace
}  // namespace varnel
