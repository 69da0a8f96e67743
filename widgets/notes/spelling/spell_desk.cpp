#include "widgets/notes/spelling/spell_desk.h"

#include <algorithm>

namespace varnel {
void SpellDesk::Clear() {
  word_.clear();
  suggestions_ = {};
}

void SpellDesk::NoteShown(std::wstring_view name) {
  checker_.NoteShown(name);
  text_.clear();
  Clear();
}

// All edits since the last step count as one, from the first unit that changed to the last.
void SpellDesk::FollowText() {
  std::wstring now = note_.Units();
  if (checker_.checking() && now != text_) {
    const auto [old_from, new_from] = std::ranges::mismatch(text_, now);
    const auto from = static_cast<std::size_t>(old_from - text_.begin());
    const std::size_t most = std::min(text_.size(), now.size()) - from;
    std::size_t same = 0;
    while (same < most && text_[text_.size() - 1 - same] == now[now.size() - 1 - same]) ++same;
    checker_.TextEdited(from, text_.size() - same - from, now.size() - same - from);
  }
  text_ = std::move(now);
}

void SpellDesk::Check() {
  FollowText();
  const SpellStep step = checker_.SpellChecker(text_, note_.Selection().begin);
  Clear();
  switch (step.kind) {
    case SpellStep::Kind::kUnknownWord:
      word_ = step.word;
      suggestions_ = step.suggestions;
      note_.Select(step.range);
      voice_.Notice(L"Not in the dictionary: " + word_);
      break;
    case SpellStep::Kind::kFinished:
      voice_.Inform(kFullyChecked);
      break;
    case SpellStep::Kind::kNoDictionary:
      voice_.Inform(kNoDictionary);
      break;
  }
}

void SpellDesk::MakeEdits(std::span<const TextEdit> edits) {
  if (edits.empty() || note_.MakeEdits(edits, nullptr)) {
    text_ = note_.Units();
  } else {
    // The checker counts on the edits.
    checker_.SpellStop();
  }
  Check();
}

void SpellDesk::Change(const std::wstring& replacement) {
  if (word_.empty() || replacement.empty()) return;
  FollowText();
  const auto edit = checker_.WordChng(text_, replacement);
  MakeEdits({edit ? &*edit : nullptr, edit ? 1U : 0U});
}

void SpellDesk::ChangeAll(const std::wstring& replacement) {
  if (word_.empty() || replacement.empty()) return;
  FollowText();
  MakeEdits(checker_.WordChngAll(text_, replacement));
}

void SpellDesk::Ignore(IgnoreScope scope) {
  if (word_.empty()) return;
  checker_.WordIgnore(word_, scope);
  Check();
}

void SpellDesk::Include() {
  if (word_.empty()) return;
  const WordAddResult result = checker_.WordAdd(word_);
  Check();
  if (result == WordAddResult::kUnsaved) {
    voice_.Notice(L"The word is known now, but the dictionary could not be written");
  } else if (result == WordAddResult::kNotAWord) {
    voice_.Notice(L"This cannot be a word of the dictionary");
  }
}

void SpellDesk::UseDictionary(std::wstring_view name, Settings& settings) {
  settings.Write(kSpellDictionary, name);
  if (!checker_.DatabaseLoadCheck()) voice_.Inform(kNoDictionary);
}

bool SpellDesk::RemoveOwnWord(const std::wstring& word) {
  const bool removed = checker_.OwnWordRemove(word);
  if (!removed) voice_.Notice(L"The dictionary could not be written: the word stays");
  return removed;
}

}  // namespace varnel
