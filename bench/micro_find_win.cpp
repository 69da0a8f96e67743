// Timings of the notes' editor: what a search and replacing cost in the system's control.
#include "bench/micro.h"
#include "tests/support/memory_files.h"
#include "widgets/notes/editor/editor_note_win.h"
#include "widgets/notes/find/find_text.h"
#include "widgets/notes/panels/find_marks_win.h"
#include "win/system/com.h"
#include "win/windows/window.h"

namespace varnel::bench {
namespace {

constexpr int kHits = 10'000;
constexpr Rect kPlace{0, 0, 640, 440};

// The editor in a window of its own.
class EditorWindow : public Window {
 public:
  explicit EditorWindow(Ui& ui) : Window(ui) {
    Creation creation;
    creation.class_name = L"VarnelBenchEditor";
    creation.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
    creation.place = kPlace;
    loaded_ = Create(creation) && editor_.Load(handle(), 1, {.half_points = 24, .face = L"Tahoma"});
    ::MoveWindow(editor_.handle(), 0, 0, kPlace.right, kPlace.bottom, TRUE);
  }
  NoteEditor& editor() { return editor_; }
  bool loaded() const { return loaded_; }

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_NOTIFY) editor_.edit().OnNotify(*reinterpret_cast<NMHDR*>(lparam));
    if (message == WM_COMMAND) editor_.edit().OnCommand(HIWORD(wparam));
    return Window::OnMessage(message, wparam, lparam);
  }

  bool loaded_ = false;
  test::MemoryFiles files_;
  NoteEditor editor_{files_, NoteEditor::Silent()};
};

// A megabyte with a needle in every hundred letters, each with a bold letter.
std::string Hay(int lines = kHits) {
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Tahoma;}}\\f0\\fs24 ";
  for (int i = 0; i < lines; ++i) {
    rtf +=
        "A hundred letters hold one ne{\\b e}dle, so that there are ten thousand needless lines "
        "in the megabyte.\\par ";
  }
  return rtf + "}";
}

// Each in a window of its own, since some controls remember what they have held.
double ReplaceAllAgainstLoad() {
  const ComApartment apartment;
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  const std::string hay = Hay();
  const TextFinder finder(L"Needle", 0);
  std::vector<double> ratios;
  for (int i = 0; i < 3; ++i) {
    EditorWindow window(ui);
    if (!window.loaded()) break;
    EditorNote note(window.editor());
    const double opened = TimeOf([&] { window.editor().Show(NoteType::kRtf, hay); });
    const double replaced = TimeOf([&] {
      const Replacements all = ReplaceAll(note.Units(), finder, L"needles and pins", 0);
      note.MakeEdits(all.edits, nullptr);
    });
    ratios.push_back(replaced / opened);
  }
  return ratios.empty() ? 0 : Median(ratios);
}

// Another note in place of that one, against the first.
double OpenAfterLongNote() {
  const ComApartment apartment;
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  const std::string hay = Hay();
  EditorWindow window(ui);
  const auto open = [&] { window.editor().Show(NoteType::kRtf, hay); };
  const double first = TimeOf(open);
  return TimeOf(open) / first;
}

// What the marks of a search for "e" add to each painting, in the midst of a note of 100 KB.
double PaintMarks() {
  const ComApartment apartment;
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  EditorWindow window(ui);
  RichEdit& edit = window.editor().edit();
  window.editor().Show(NoteType::kRtf, Hay(kHits / 10));
  edit.Select({edit.Length() / 2, edit.Length() / 2});
  edit.ScrollToCaret();
  FindMarks marks(edit);
  const auto paint = [&] {
    ::InvalidateRect(edit.handle(), nullptr, TRUE);
    ::UpdateWindow(edit.handle());
  };
  paint();
  const double plain = SecondsFor(paint);
  marks.Show(L"e", 0);
  return 1e3 * (SecondsFor(paint) - plain);
}

}  // namespace

std::vector<Probe> FindPlatformProbes() {
  return {
      {"10,000 hits in a note of 1 MB replaced, against opening it", "x", ReplaceAllAgainstLoad},
      {"that note opened again, against the first time", "x", OpenAfterLongNote},
      {"hits in sight of a note of 100 KB marked", "ms", PaintMarks}};
}

}  // namespace varnel::bench
