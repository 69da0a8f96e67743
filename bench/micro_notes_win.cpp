// Timings of notes on the disk and in the system's editor.
#include <windows.h>

#include "base/text.h"
#include "bench/micro.h"
#include "bench/notes_sample.h"
#include "bench/on_disk.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/find/note_search.h"
#include "win/system/com.h"

namespace varnel::bench {
namespace {

// The editor of notes in a window of its own, with a formatted note of a megabyte.
class LongNote {
 public:
  LongNote() {
    parent_ = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 40, 40, 640, 440, nullptr,
                                nullptr, nullptr, nullptr);
    editor_.Load(parent_, 1, {.half_points = 24, .face = L"Tahoma"});
    ::MoveWindow(editor_.handle(), 0, 0, 640, 440, TRUE);
    editor_.Show(NoteType::kRtf, MadeUpRtf());
  }
  LongNote(const LongNote&) = delete;
  LongNote& operator=(const LongNote&) = delete;
  ~LongNote() { ::DestroyWindow(parent_); }

  NoteEditor& editor() { return editor_; }

 private:
  ComApartment apartment_;
  DiskFiles files_;
  HWND parent_ = nullptr;
  NoteEditor editor_{files_, NoteEditor::Silent()};
};

// What is saved is read once more and compared with what the editor shows, and replaces the file
// only when the disk has it.
double SaveAgainstStreamingOut() {
  LongNote note;
  DiskFiles files;
  const std::wstring path = TemporaryPath(L"varnel bench note.rtf");
  const std::wstring plain = TemporaryPath(L"varnel bench plain.rtf");
  const double ratio =
      Ratio([&] { files.Replace(path, note.editor().Bytes(NoteType::kRtf).value_or("")); },
            [&] { WritePlainly(plain, note.editor().edit().Rtf(), true); }, 15);
  files.Remove(path);
  files.Remove(plain);
  return ratio;
}

double MakeBytesAgainstStreamingOut() {
  LongNote note;
  return Ratio([&] { Keep(note.editor().Bytes(NoteType::kRtf)); },
               [&] { Keep(note.editor().edit().Rtf()); }, 15);
}

// From the moment that the words are known until the first of `hits` notes is found, spread evenly
// among 10,000.
double FirstHit(int hits) {
  constexpr int kNotes = 10'000;
  constexpr std::size_t kBytes = 2000;
  std::string rtf = MadeUpRtf();
  rtf.resize(rtf.rfind(' ', kBytes));
  const ManyFiles many(kNotes, L".rtf", rtf + "}");
  DiskFiles files;
  for (int i = 0; i < hits; ++i) {
    WritePlainly(many.PathOf((2 * i + 1) * kNotes / (2 * hits), L".rtf").wstring(),
                 rtf + " needle}", false);
  }
  SystemRecycleBin bin;
  DocumentFolder notes(files, bin, {});
  notes.Adopt(many.folder());
  return TimeOf([&] {
    NoteSearch search(files, SystemTextEncoding());
    search.Start(L"needle", notes);
    while (search.found().empty() && search.Step(notes)) {
    }
    Keep(search.found().size());
  });
}

}  // namespace

std::vector<Probe> NotesPlatformProbes() {
  return {{"note of 1 MB saved, against streaming it out to a file", "x", SaveAgainstStreamingOut},
          {"note of 1 MB made ready to save, against streaming it out", "x",
           MakeBytesAgainstStreamingOut},
          {"10,000 notes listed and sorted, against FindFirstFile", "x",
           [] { return ListAgainstFindFile(L".rtf", {}); }},
          {"first of 100 hits among 10,000 notes", "s", [] { return FirstHit(100); }},
          {"the only hit among 10,000 notes, in the middle", "s", [] { return FirstHit(1); }}};
}

}  // namespace varnel::bench
