// The notes where files come and go: export, import, disks that take nothing, killed programs.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <random>

#include "tests/scenes/notes_scene.h"

namespace varnel {
namespace {

using namespace rig;

class NotesMishaps : public NotesScene {
 protected:
  std::wstring Sample(const std::wstring& name) { return root().folder() + L"\\samples\\" + name; }
  // The dialog that the key brings up, once it takes an answer.
  HWND DialogOf(std::initializer_list<WORD> keys) {
    Chord(keys);
    return WaitForDialog(program());
  }
  std::wstring Notice() { return Text(Control(form_, lblZOOM)); }
  bool HasDraft() {
    return std::ranges::any_of(FilesBelow(Folder()),
                               [](const std::wstring& name) { return name.ends_with(L".draft"); });
  }
  // Where nothing can be saved for the reason told, and then can be again, nothing is lost.
  void ExpectSavedOnceThereIsNoMore(const std::wstring& trouble, const std::wstring& path,
                                    const std::function<void()>& mend) {
    const std::wstring wanted = Content();
    Choose(form_, L"mnuNOTESSAVE");
    EXPECT_SOON(Notice().find(trouble) != std::wstring::npos) << Utf8FromWide(Notice());
    EXPECT_EQ(Content(), wanted);
    mend();
    Choose(form_, L"mnuNOTESSAVE");
    EXPECT_SOON(FileExists(path) && Saved(path).text == wanted);
  }
};

TEST_F(NotesMishaps, ExportKeepsTheNoteAndItsNames) {
  ASSERT_TRUE(WriteBytes(Sample(L"memo.rtf"), "{\\rtf1 old}"));
  Start();
  Type(L"body");
  HWND dialog = DialogOf({VK_F12});
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(CloseDialog(dialog, IDCANCEL));
  EXPECT_TRUE(Files().empty());
  // A name that is not there yet: the note goes among the notes, under a name of its own.
  dialog = DialogOf({VK_F12});
  ASSERT_TRUE(dialog && AnswerFileDialog(dialog, Sample(L"fresh")));
  const std::wstring path = OnlyNote();
  EXPECT_TRUE(path.ends_with(L"_Tavrin 1.RTF")) << Utf8FromWide(path);
  EXPECT_FALSE(FileExists(Sample(L"fresh.rtf")));
  const std::wstring title = Title();
  EXPECT_EQ(Folder() + title + L".RTF", path);
  // Over a file, in the form that was chosen, whatever its name says.
  dialog = DialogOf({VK_F12});
  ASSERT_TRUE(dialog && AnswerFileDialog(dialog, Sample(L"memo.rtf"), 1));
  EXPECT_SOON(FindDialog(program()) && FindDialog(program()) != dialog);
  PressButton(FindDialog(program()), IDYES);
  EXPECT_SOON_EQ(FileBytes(Sample(L"memo.rtf")), "body");
  EXPECT_EQ(Title(), title);
  EXPECT_EQ(Files().size(), 1u);
}

TEST_F(NotesMishaps, ThreeAreImportedAtOnce) {
  ASSERT_TRUE(WriteBytes(Sample(L"a.rtf"), "{\\rtf1 first}"));
  ASSERT_TRUE(WriteBytes(Sample(L"b.txt"), "second"));
  ASSERT_TRUE(WriteBytes(Sample(L"c.rtf"), "{\\rtf1 third}"));
  Start();
  Type(L"before");
  HWND dialog = DialogOf({VK_CONTROL, 'O'});
  const std::wstring folder = Sample(L"");
  ASSERT_TRUE(dialog && AnswerFileDialog(dialog, folder));  // goes there
  ASSERT_SOON(Text(ChildOfClass(Control(dialog, 1148), L"Edit")).empty());
  ASSERT_TRUE(AnswerFileDialog(dialog, L"\"a.rtf\" \"b.txt\" \"c.rtf\""));
  EXPECT_SOON_EQ(Title(), L"c");
  EXPECT_EQ(Content(), L"third");
  EXPECT_EQ(Saved(OnlyNote()).text, L"before") << "saved unasked";
  EXPECT_EQ(FileBytes(Sample(L"b.txt")), "second");
  ASSERT_SOON(FocusedWindow() == editor_);
  Chord({VK_CONTROL, 'N'});
  EXPECT_SOON_EQ(Title(), L"Tavrin 5");
}

TEST_F(NotesMishaps, WhatCannotBeWrittenIsSavedLater) {
  Start();
  Type(L"one");
  Chord({VK_CONTROL, 'S'});
  const std::wstring path = OnlyNote();
  Type(L" two");
  ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  ExpectSavedOnceThereIsNoMore(L"is read-only", path, [&] {
    EXPECT_TRUE(::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY) << "still";
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  });
  Type(L" three");
  RemoveAll(root().folder() + L"\\tavrin");
  ASSERT_SOON(!FolderExists(Folder()));  // it goes when nobody watches it any more
  Choose(form_, L"mnuNOTESSAVE");
  EXPECT_SOON(Notice().find(L"has no folder any more") != std::wstring::npos || !Files().empty());
  EXPECT_EQ(Content(), L"one two three");
  ::CreateDirectoryW(Folder().c_str(), nullptr);
  Choose(form_, L"mnuNOTESSAVE");
  EXPECT_EQ(Saved(OnlyNote()).text, L"one two three");
}

TEST_F(NotesMishaps, WhatStandsOpenActsOnTheNoteThatItIsAbout) {
  ASSERT_TRUE(WriteBytes(Folder() + L"b.txt", "second"));
  ASSERT_TRUE(WriteBytes(Folder() + L"c.txt", "third"));
  Start();
  HWND list = Control(form_, lvwFILES);
  const Rect rows = RectOf(list);
  const auto choose_second = [&] {
    Click({rows.left + 20, rows.top + 10});
    PressKey(VK_DOWN);
  };
  Click({rows.left + 20, rows.top + 10});
  EXPECT_SOON_EQ(Content(), L"second");
  PressKey(VK_TAB);
  ASSERT_SOON(FocusedWindow() == editor_);
  Type(L"More: ");
  Choose(form_, L"mnuNOTESSAVE");
  Choose(form_, L"mnuNOTESVERSIONS");
  HWND versions = WaitForForm(program(), L"frmNOTvr");
  ASSERT_TRUE(versions);
  EXPECT_EQ(Text(Control(versions, txtVERSION)), L"second");
  ::SetWindowPos(versions, nullptr, 700, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  // Another note is shown: its versions are no longer those of the list.
  choose_second();
  ASSERT_SOON(Content() == L"third");
  Send(Control(versions, cmdRESTORE), BM_CLICK);
  EXPECT_SOON(Send(Control(versions, lstVERSIONS), LB_GETCOUNT) == 0);
  EXPECT_EQ(FileBytes(Folder() + L"c.txt"), "third");
  PressButton(versions, IDCANCEL);

  // Others add a note above while the question stands, and while a name is typed.
  Choose(form_, L"mnuNOTESDELETE");
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  ASSERT_TRUE(WriteBytes(Folder() + L"a.txt", "first"));
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 3);
  PressButton(question, IDYES);
  EXPECT_SOON(!FileExists(Folder() + L"c.txt"));
  EXPECT_EQ(FileBytes(Folder() + L"b.txt"), "More: second");
  choose_second();
  EXPECT_SOON_EQ(Content(), L"More: second");
  PressKey(VK_F2);
  ASSERT_SOON(ChildOfClass(list, L"Edit") != nullptr);
  ASSERT_TRUE(WriteBytes(Folder() + L"0.txt", "none"));
  Type(L"renamed\n");
  EXPECT_SOON_EQ(FileBytes(Folder() + L"renamed.txt").value_or(""), "More: second");
  EXPECT_SOON(Send(list, LVM_GETITEMCOUNT) == 3);
}

TEST_F(NotesMishaps, AFullDiskLosesNothing) {
  const std::wstring disk = PathFromEnvironment(L"VARNEL_SMALL_DISK");
  if (disk.empty()) GTEST_SKIP() << "only root can make a small disk";
  const std::wstring folder = disk + L"\\notes\\";
  root().settings().SetText(L"frmNOTpr\\Details", L"Notes Folder Location", folder);
  ASSERT_TRUE(WriteBytes(folder + L"kept.rtf", "{\\rtf1 old}"));
  Start();
  const Rect rows = RectOf(Control(form_, lvwFILES));
  Click({rows.left + 20, rows.top + 10});
  EXPECT_SOON_EQ(Content(), L"old");
  ASSERT_TRUE(ClickOn(editor_));
  Type(L"new ");
  // As far as it goes.
  for (int i = 0; WriteBytes(disk + L"\\filler" + std::to_wstring(i), std::string(4096, 'x'));
       ++i) {
    ASSERT_LT(i, 100);
  }
  ExpectSavedOnceThereIsNoMore(L"the disk is full", folder + L"kept.rtf", [&] {
    for (const std::wstring& name : FilesBelow(disk)) {
      if (name.starts_with(L"filler")) RemoveAll(disk + L"\\" + name);
    }
  });
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  RemoveAll(disk + L"\\notes");
}

// What is typed, in the middle of saving or of typing on: whatever was saved is there, and nothing
// that is older than a draft is lost.
TEST_F(NotesMishaps, KilledAtAnyMomentItLosesNothingOlderThanADraft) {
  constexpr DWORD kDraftMs = 4500;  // 3 s of rest, and time to write
  std::mt19937 random(7);
  int lost = 0;
  Start();
  Type(L"0");
  Chord({VK_CONTROL, 'S'});
  const std::wstring path = OnlyNote();
  std::wstring saved = L"0";
  const int kills = KillsWanted(3);
  for (int i = 1; i <= kills; ++i) {
    ASSERT_TRUE(ClickOn(editor_));
    Chord({VK_CONTROL, VK_END});
    const std::wstring more = L" " + std::to_wstring(i);
    Type(more);
    const std::wstring typed = saved + more;
    const bool rests = i % 16 == 15;
    if (!rests && i % 2) Choose(form_, L"mnuNOTESSAVE");
    ::Sleep(rests ? kDraftMs : random() % 60);
    program().Kill();
    const std::wstring kept = Saved(path).text;
    EXPECT_TRUE(kept == saved || kept == typed) << i << ": " << Utf8FromWide(kept);
    EXPECT_TRUE(!rests || HasDraft() || kept == typed) << i;
    Start();
    if (Title().starts_with(L"Tavrin ")) {  // nothing unsaved was found
      const Rect rows = RectOf(Control(form_, lvwFILES));
      Click({rows.left + 20, rows.top + 10});
    }
    EXPECT_SOON(Content() == saved || Content() == typed);
    saved = Content();
    lost += saved != typed;
    Choose(form_, L"mnuNOTESSAVE");
    ASSERT_SOON(!HasDraft() && Saved(path).text == saved) << i;
  }
  ASSERT_EQ(Files().size(), 1u);
  std::printf("%d kills, %d of them lost words younger than a draft\n", kills, lost);
}

}  // namespace
}  // namespace varnel
