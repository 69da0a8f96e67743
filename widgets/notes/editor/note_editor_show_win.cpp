// The part of a note's editor that shows another text in place of the one that is there.
#include <algorithm>
#include <utility>

#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {
namespace {

constexpr int kLongText = 50'000;  // units, whose replacing takes a noticeable time

}  // namespace

bool NoteEditor::HidesText(const RtfDocument& document) {
  return std::ranges::any_of(document.char_formats, &CharFormat::hidden);
}

// Has `put` fill the control, a new one where that is faster or may be stopped.
bool NoteEditor::PutIn(const std::function<void(const RichEdit::GoOn&)>& put,
                       const RichEdit::GoOn& go_on) {
  std::optional<RichEdit::Anew> anew;
  if (edit_.Length() > kLongText) anew.emplace(edit_);
  bool stopped = false;
  const RichEdit::GoOn ask = [&](int percent) {
    stopped = stopped || !go_on(percent);
    return !stopped;
  };
  const bool asks = anew && go_on;
  {
    const Loading loading(*this);
    put(asks ? ask : RichEdit::GoOn());
    edit_.ForgetUndo();
  }
  if (asks && !ask(100)) return false;
  if (anew) anew->Keep();
  TakeText();
  return true;
}

bool NoteEditor::ShowUnits(const std::wstring& units, const RichEdit::GoOn& go_on) {
  const CharacterFormat base = edit_.DefaultFormat();
  const auto put = [&](const RichEdit::GoOn& ask) {
    edit_.PutText(units, RichEdit::Scope::kAll, ask);
    edit_.SetFormat(base, RichEdit::Scope::kAll);
  };
  return PutIn(put, go_on);
}

bool NoteEditor::ShowOther(const std::string& rtf, const RichEdit::GoOn& go_on) {
  const SafeRtfResult result = TakePicturesOut(rtf, SystemRtfOrigin());
  return result.fault == RtfFault::kNone && ShowSafe(result.safe, go_on);
}

bool NoteEditor::ShowSafe(const SafeRtf& safe, const RichEdit::GoOn& go_on) {
  NotePictures former = std::exchange(pictures_, {});
  const auto put = [&](const RichEdit::GoOn& ask) {
    edit_.SetDefaultFormat(base_);
    {
      const RichEdit::Unwrapped unwrapped(edit_);
      if (!edit_.PutRtf(safe.rtf, RichEdit::Scope::kAll, ask) && ask) return;
    }
    FinishRtf(safe, 0);
    edit_.Select({0, 0});
  };
  if (!PutIn(put, go_on)) {
    pictures_ = std::move(former);
    return false;
  }
  hides_ = HidesText(safe.document);
  return true;
}

std::vector<TextRange> NoteEditor::Hidden() const {
  std::vector<TextRange> hidden;
  if (!hides_) return hidden;
  const RtfDocument document = ReadRtf(edit_.Rtf(), SystemRtfOrigin()).document;
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    if (!document.char_formats[document.runs[i].format].hidden) continue;
    const bool is_last = i + 1 == document.runs.size();
    hidden.push_back(
        {document.runs[i].begin, is_last ? document.text.size() : document.runs[i + 1].begin});
  }
  return hidden;
}

}  // namespace varnel
