#include "widgets/notes/editor/editor_note_win.h"

#include <richedit.h>

#include <algorithm>
#include <utility>

#include "widgets/notes/rtf/rtf_edits.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

constexpr std::size_t kMostSteps = 8;

RichRange ToRich(std::size_t begin, std::size_t end) {
  return {static_cast<int>(begin), static_cast<int>(end)};
}

}  // namespace

std::wstring EditorNote::AllUnits() const {
  return editor_.edit().Units({0, editor_.edit().Length()});
}

std::wstring EditorNote::Units() const {
  std::wstring units = AllUnits();
  for (const TextRange& hidden : editor_.Hidden()) {
    for (std::size_t at = hidden.begin; at < std::min(hidden.end, units.size()); ++at) {
      if (units[at] != kParagraphEnd) units[at] = kObject;
    }
  }
  return units;
}

TextRange EditorNote::Selection() const {
  const RichRange range = editor_.edit().Selection();
  return {static_cast<std::size_t>(range.from), static_cast<std::size_t>(range.to)};
}

void EditorNote::Select(TextRange range) {
  editor_.edit().Select(ToRich(range.begin, range.end));
  editor_.edit().ScrollToCaret();
}

std::optional<EditorNote::State> EditorNote::Now() {
  State now{AllUnits(), {}};
  if (!editor_.rich()) return now;
  auto rtf = editor_.Bytes(NoteType::kRtf);
  if (!rtf) return std::nullopt;
  now.rtf = std::move(*rtf);
  return now;
}

bool EditorNote::MakeEdits(std::span<const TextEdit> edits, const GoOn& go_on) {
  if (edits.empty()) return true;
  if (edits.size() == 1) {
    MakeOneByOne(edits);
    return true;
  }
  auto before = Now();
  if (!before) return false;
  auto after = After(edits, *before);
  if (after) {
    if (!Put(*after, go_on)) return false;
  } else {
    const RichEdit::Quietly quietly(editor_.edit());
    MakeOneByOne(edits);
    editor_.edit().ForgetUndo();
    after = Now();
  }
  std::size_t caret = edits.back().position + edits.back().text.size();
  for (const TextEdit& edit : edits.first(edits.size() - 1)) {
    caret += edit.text.size() - edit.length;
  }
  Select({caret, caret});
  Changed();
  if (!after) return true;
  undone_.clear();
  done_.push_back({std::move(*before), std::move(*after)});
  if (done_.size() > kMostSteps) done_.pop_front();
  return true;
}

// What the edits make of a text; nothing when the editor's text cannot be told from what it writes.
std::optional<EditorNote::State> EditorNote::After(std::span<const TextEdit> edits,
                                                   const State& before) const {
  if (before.rtf.empty()) return State{WithEdits(before.units, edits), {}};
  RtfReading reading = ReadRtf(before.rtf, SystemRtfOrigin());
  if (reading.fault != RtfFault::kNone || reading.document.text != before.units) {
    return std::nullopt;
  }
  ApplyEdits(reading.document, edits);
  std::string rtf = WriteRtf(reading.document);
  return State{std::move(reading.document.text), std::move(rtf)};
}

void EditorNote::MakeOneByOne(std::span<const TextEdit> edits) {
  for (std::size_t i = edits.size(); i-- > 0;) {
    const TextEdit& edit = edits[i];
    editor_.edit().Select(ToRich(edit.position, edit.position + edit.length));
    editor_.edit().EndTypingStep();
    editor_.edit().Replace(edit.text);
  }
}

bool EditorNote::Put(const State& state, const GoOn& go_on) {
  return state.rtf.empty() ? editor_.ShowUnits(state.units, go_on)
                           : editor_.ShowOther(state.rtf, go_on);
}

// The user did it, though the program has put it in.
void EditorNote::Changed() {
  editor_.edit().OnCommand(EN_CHANGE);
}

bool EditorNote::CanUndo() const {
  return !done_.empty() && !editor_.edit().CanUndo() && AllUnits() == done_.back().after.units;
}

bool EditorNote::Undo() {
  if (!CanUndo()) return false;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  Put(undone_.back().before);
  Changed();
  return true;
}

bool EditorNote::CanRedo() const {
  return !undone_.empty() && !editor_.edit().CanUndo() && !editor_.edit().CanRedo() &&
         AllUnits() == undone_.back().before.units;
}

bool EditorNote::Redo() {
  if (!CanRedo()) return false;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  Put(done_.back().after);
  Changed();
  return true;
}

void EditorNote::NoteShown() {
  done_.clear();
  undone_.clear();
}

}  // namespace varnel
