#include "widgets/notes/spelling/spell_run.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

// Where `place` is after an edit; a place in what was removed moves to the edit's start.
std::size_t Moved(std::size_t place, std::size_t at, std::size_t removed, std::size_t inserted) {
  if (place <= at || place == kNowhere) return place;
  return place >= at + removed ? place - removed + inserted : at;
}

}  // namespace

void SpellRun::Start(std::wstring_view text, std::size_t caret) {
  from_ = caret < text.size() ? RunBegin(text, caret) : 0;
  running_ = true;
  wrapped_ = from_ == 0;
  stop_ = wrapped_ ? kNowhere : from_;
  current_.reset();
}

std::optional<TextRange> SpellRun::Next(std::wstring_view text,
                                        const std::function<bool(std::wstring_view)>& is_right) {
  current_.reset();
  while (running_) {
    // Where an edit left the place within a run, the run begins before it.
    const bool inside = from_ < text.size() && !IsWordGap(text[from_]);
    const auto word = NextWord(text, inside ? RunBegin(text, from_) : from_);
    const bool within = word && (!wrapped_ || word->begin < stop_);
    if (!within) {
      running_ = !wrapped_;
      wrapped_ = true;
      from_ = 0;
      continue;
    }
    from_ = word->end;
    while (from_ < text.size() && !IsWordGap(text[from_])) ++from_;
    if (!is_right(text.substr(word->begin, word->end - word->begin))) {
      current_ = word;
      return current_;
    }
  }
  return std::nullopt;
}

void SpellRun::TextEdited(std::size_t at, std::size_t removed, std::size_t inserted) {
  const bool touches = current_ && at <= from_ && at + removed >= current_->begin;
  if (touches) {
    from_ = std::min(at, current_->begin);
    stop_ = Moved(stop_, at, removed, inserted);
    current_.reset();
    return;
  }
  from_ = Moved(from_, at, removed, inserted);
  stop_ = Moved(stop_, at, removed, inserted);
  if (current_) {
    current_->begin = Moved(current_->begin, at, removed, inserted);
    current_->end = Moved(current_->end, at, removed, inserted);
  }
}

void SpellRun::WordReplaced(std::size_t inserted) {
  if (!current_) return;
  const std::size_t removed = current_->end - current_->begin;
  from_ = from_ - removed + inserted;
  stop_ = Moved(stop_, current_->begin, removed, inserted);
  current_.reset();
}

}  // namespace varnel
