// The part of the editor that deals with the clipboard and with what is dropped.
#include "base/text.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/text/note_spacing.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

constexpr std::size_t kMostPastedUnits = 16 * 1024 * 1024;

}  // namespace

std::optional<std::string> NoteEditor::SelectedRtf() {
  const RichRange selection = edit_.Selection();
  std::vector<RichPicture> pictures = edit_.Pictures();
  std::erase_if(pictures, [&](const RichPicture& picture) {
    return picture.position < selection.from || picture.position >= selection.to;
  });
  return Whole(edit_.Rtf(RichEdit::Scope::kSelection), pictures);
}

bool NoteEditor::OnCopy() {
  if (!rich()) return false;
  auto rtf = SelectedRtf();
  if (!rtf) return false;
  ClipboardContent content{edit_.Text(RichEdit::Scope::kSelection), std::move(*rtf)};
  return CopyContent(handle(), content);
}

void NoteEditor::Paste() {
  const ClipboardOffer offer = OfferOfClipboard();
  if (rich() && offer.rtf && InsertRtf(PastedRtf(handle(), kMostRtf))) return;
  if (offer.files) {
    OnFiles(PastedFiles(handle()), edit_.Selection().from);
  } else if (rich() && offer.picture && !offer.text) {
    InsertPicture(PictureOfImage(PastedPicture(handle())));
  } else if (offer.text) {
    PastePlain();
  }
}

void NoteEditor::PastePlain() {
  const std::wstring text = PastedText(handle(), kMostPastedUnits);
  if (!text.empty()) InsertText(text);
}

// Pictures go into the text where they were dropped, documents are opened.
void NoteEditor::OnFiles(const std::vector<std::wstring>& paths, int position) {
  std::vector<std::wstring> documents;
  for (const std::wstring& path : paths) {
    if (!IsPictureFile(path)) {
      documents.push_back(path);
      continue;
    }
    if (position >= 0) edit_.Select({position, position});
    position = -1;
    const FileRead read = files_.Read(path, kMostPictureBytes);
    InsertPicture(read ? PictureOfFile(read.bytes) : std::nullopt);
  }
  if (!documents.empty()) events_.on_documents(std::move(documents));
}

}  // namespace varnel
