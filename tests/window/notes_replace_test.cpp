// Searches and replacing in the editor of a note.
#include <algorithm>

#include "tests/support/memory_files.h"
#include "tests/window/window_aid.h"
#include "widgets/notes/editor/editor_note_win.h"
#include "widgets/notes/find/find_text.h"
#include "widgets/notes/panels/find_marks_win.h"
#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {
namespace {

class NotesReplace : public test::Hosted {
 protected:
  NotesReplace() {
    host_.on_message = [this](UINT message, WPARAM wparam, LPARAM lparam) {
      if (message == WM_NOTIFY) editor_.edit().OnNotify(*reinterpret_cast<NMHDR*>(lparam));
      if (message == WM_COMMAND) editor_.edit().OnCommand(HIWORD(wparam));
      return message == WM_NOTIFY || message == WM_COMMAND;
    };
    EXPECT_TRUE(editor_.Load(host_.handle(), 1, {.half_points = 24, .face = L"Tahoma"}));
    ::MoveWindow(editor_.handle(), 0, 0, 640, 440, TRUE);
  }
  std::vector<TextEdit> Edits() {
    return ReplaceAll(note_.Units(), TextFinder(L"needle", 0), L"pin", 0).edits;
  }

  test::MemoryFiles files_;
  NoteEditor editor_{files_, NoteEditor::Silent()};
  EditorNote note_{editor_};
};

TEST_F(NotesReplace, InALongNoteCanBeStoppedAndUndone) {
  for (const NoteType type : {NoteType::kRtf, NoteType::kTxt}) {
    const bool rich = type == NoteType::kRtf;
    std::string hay = rich ? "{\\rtf1\\ansi{\\fonttbl{\\f0 Tahoma;}}\\f0\\fs24 " : "";
    for (int i = 0; i < 700; ++i) {
      hay += rich ? "One ne{\\b e}dle lies in this line of about a hundred letters, and there are "
                    "others above and below it.\\par "
                  : "One needle lies in this line of about a hundred letters, and there are "
                    "others above and below it.\r\n";
    }
    editor_.Show(type, hay + (rich ? "}" : ""));
    const std::wstring before = note_.Units();
    editor_.edit().Select({4, 4});
    editor_.edit().Replace(L"x");
    ::SetFocus(editor_.handle());
    const std::wstring typed = note_.Units();
    const HWND control = editor_.handle();

    for (const int last : {0, 40, 100}) {
      std::vector<int> asked;
      EXPECT_FALSE(note_.MakeEdits(Edits(), [&](int percent) {
        asked.push_back(percent);
        return percent < last;
      }));
      EXPECT_TRUE(asked.back() >= last && std::ranges::is_sorted(asked)) << last;
      EXPECT_EQ(note_.Units(), typed);
    }
    EXPECT_TRUE(editor_.handle() == control && editor_.edit().CanUndo());
    editor_.edit().Undo();
    EXPECT_EQ(note_.Units(), before);

    ASSERT_TRUE(note_.MakeEdits(Edits(), [](int) { return true; }));
    EXPECT_EQ(note_.Units(),
              WithEdits(before, ReplaceAll(before, TextFinder(L"needle", 0), L"pin", 0).edits));
    EXPECT_TRUE(::GetFocus() == editor_.handle() && ::IsWindowVisible(editor_.handle()));
    RECT place = {};
    ::GetWindowRect(editor_.handle(), &place);
    EXPECT_EQ(place.right - place.left, 640);
    ASSERT_TRUE(note_.Undo());
    EXPECT_EQ(note_.Units(), before);
    EXPECT_FALSE(editor_.edit().CanUndo());
  }
}

TEST_F(NotesReplace, NeitherFindsNorChecksWhatIsHidden) {
  editor_.Show(NoteType::kRtf, "{\\rtf1 a needle,{\\v  hidden needle,} a needle}");
  EXPECT_EQ(AllHits(note_.Units(), TextFinder(L"needle", 0)).size(), 2u);
  EXPECT_EQ(AllHits(note_.Units(), TextFinder(L"hidden", 0)).size(), 0u);
  ASSERT_TRUE(note_.MakeEdits(Edits(), nullptr));
  const auto saved = editor_.Bytes(NoteType::kRtf);
  ASSERT_TRUE(saved);
  EXPECT_EQ(ReadRtf(*saved).document.text, L"a pin, hidden needle, a pin");
  EXPECT_EQ(AllHits(note_.Units(), TextFinder(L"needle", 0)).size(), 0u);
}

TEST_F(NotesReplace, MarksTheHitsInSightWithoutTouchingTheText) {
  editor_.Show(NoteType::kTxt, "needle one, needle two");
  RichEdit& edit = editor_.edit();
  edit.Select({0, 6});
  const auto ground = [&](int position) {
    ::InvalidateRect(edit.handle(), nullptr, TRUE);
    ::UpdateWindow(edit.handle());
    const Point at = edit.PointOf(position);
    HDC dc = ::GetDC(edit.handle());
    const COLORREF colour = ::GetPixel(dc, at.x, at.y + 1);
    ::ReleaseDC(edit.handle(), dc);
    return colour;
  };
  const COLORREF paper = ground(12);
  const COLORREF selected = ground(0);
  FindMarks marks(edit);
  marks.Show(L"NEEDLE", 0);
  const COLORREF marked = ground(12);
  EXPECT_NE(marked, paper);
  EXPECT_EQ(ground(12), marked) << "painted twice";
  EXPECT_EQ(ground(0), selected);
  EXPECT_EQ(ground(19), paper);
  EXPECT_FALSE(edit.CanUndo());
  marks.Show(L"NEEDLE", kFindMatchCase);
  EXPECT_EQ(ground(12), paper);
}

}  // namespace
}  // namespace varnel
