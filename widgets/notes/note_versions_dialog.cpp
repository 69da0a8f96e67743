#include "widgets/notes/note_versions_dialog.h"

#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/note_desk.h"
#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {
namespace {

constexpr std::size_t kMostPreview = 20'000;  // units

}  // namespace

NoteVersionsDialog::NoteVersionsDialog(Services& services, NotesLink& link)
    : VersionsDialog(services,
                     {L"frmNOTvr", L"This note has no earlier versions.", kMostNoteBytes}),
      link_(link) {}

std::wstring NoteVersionsDialog::WordsOf(const std::string& bytes) const {
  const RtfReading reading = ReadRtf(bytes);
  const std::wstring text = reading.fault == RtfFault::kNone
                                ? reading.document.text
                                : ReadText(bytes, SystemTextEncoding()).text;
  std::wstring lines;
  for (const wchar_t unit : text.substr(0, kMostPreview)) {
    lines += unit == kParagraphEnd || unit == kLineBreak ? std::wstring(L"\r\n")
             : unit == kObject                           ? std::wstring(L"[picture]")
                                                         : std::wstring(1, unit);
  }
  return lines;
}

}  // namespace varnel
