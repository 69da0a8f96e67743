#include "widgets/notes/find/find_desk.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kFromStart = L"From the start again: ";
constexpr int kSearchShare = 5;  // of 100 parts that replacing takes, the search

TextFinder FinderOf(const FindWishes& wishes) {
  return {wishes.wanted, FindOptionsWord(wishes.whole_words, wishes.match_case)};
}

std::wstring Number(std::size_t number) {
  return NumberText(static_cast<long long>(number));
}

}  // namespace

void FindDesk::NoteShown() {
  search_.StartAt(0);
  left_.reset();
  wraps_ = false;
  may_replace_ = true;
}

void FindDesk::Remember(const FindWishes& wishes, bool both) {
  HistoryAdd(searched_, wishes.wanted);
  if (both) HistoryAdd(replaced_, wishes.replacement);
}

void FindDesk::FollowCaret(const TextFinder& finder, const FindWishes& wishes) {
  const TextRange selection = note_.Selection();
  if (left_ != selection) {
    search_.StartAt(selection.end);
    wraps_ = false;
  }
  search_.Prepare(finder, wishes.wanted, selection.end);
}

void FindDesk::Select(TextRange range) {
  note_.Select(range);
  left_ = note_.Selection();
}

bool FindDesk::Found(const std::optional<TextRange>& hit, const std::wstring& text,
                     const TextFinder& finder, std::wstring_view wrap_notice) {
  const bool wrapped = std::exchange(wraps_, !hit);
  may_replace_ = hit.has_value();
  left_ = note_.Selection();
  if (!hit) {
    voice_.Inform(kAllFound);
    return false;
  }
  Select(*hit);
  const std::vector<std::size_t> hits = AllHits(text, finder);
  const std::size_t number = HitNumber(hits, hit->begin);
  // A hit may overlap those that are counted.
  const std::wstring which = number ? Number(number) + L" of " : L"";
  voice_.Notice(std::wstring(wrapped ? wrap_notice : L"Found ") + which + Number(hits.size()));
  return true;
}

bool FindDesk::FindNext(const FindWishes& wishes) {
  if (wishes.wanted.empty()) return false;
  const TextFinder finder = FinderOf(wishes);
  FollowCaret(finder, wishes);
  const std::wstring text = note_.Units();
  const bool found = Found(search_.FindNext(text, finder), text, finder, kFromStart);
  Remember(wishes, false);
  return found;
}

bool FindDesk::FindPrevious(const FindWishes& wishes) {
  if (wishes.wanted.empty()) return false;
  const TextFinder finder = FinderOf(wishes);
  FollowCaret(finder, wishes);
  const std::wstring text = note_.Units();
  const std::size_t before = wraps_ ? text.size() : note_.Selection().begin;
  const bool found =
      Found(search_.FindPrevious(text, finder, before), text, finder, L"From the end again: ");
  Remember(wishes, false);
  return found;
}

void FindDesk::Replace(const FindWishes& wishes) {
  if (wishes.wanted.empty()) return;
  const TextFinder finder = FinderOf(wishes);
  FollowCaret(finder, wishes);
  const std::wstring text = note_.Units();
  const FindSearch::Replacing done =
      search_.Replace(text, note_.Selection(), finder, wishes.replacement);
  if (done.found || !done.edit) Found(done.found, text, finder, kFromStart);
  if (done.edit && note_.MakeEdits({&*done.edit, 1}, nullptr)) left_ = note_.Selection();
  Remember(wishes, true);
}

void FindDesk::ReplaceAll(const FindWishes& wishes, const EditedNote::GoOn& go_on) {
  if (wishes.wanted.empty()) return;
  const TextFinder finder = FinderOf(wishes);
  search_.Prepare(finder, wishes.wanted, 0);
  const std::size_t before = search_.position();
  const std::wstring text = note_.Units();
  bool stopped = false;
  const EditedNote::GoOn ask = [&](int percent) {
    stopped = stopped || (go_on && !go_on(percent));
    return !stopped;
  };
  const Replacements all =
      search_.ReplaceEvery(text, finder, wishes.replacement, [&](std::size_t done) {
        return ask(static_cast<int>(done * kSearchShare / std::max<std::size_t>(text.size(), 1)));
      });
  const bool done =
      !all.stopped && (all.edits.empty() || note_.MakeEdits(all.edits, [&](int percent) {
        return ask(kSearchShare + percent * (100 - kSearchShare) / 100);
      }));
  Remember(wishes, true);
  if (!done) {
    search_.StartAt(before);
    voice_.Notice(stopped ? L"Stopped: nothing was replaced"
                          : L"The note is too large for this: nothing was replaced");
    return;
  }
  may_replace_ = false;
  wraps_ = false;
  if (all.count == 0) voice_.Inform(kAllFound);
  Select({0, 0});
  voice_.Notice(Number(all.count) + L" replaced");
  voice_.Inform(kAllReplaced);
}

}  // namespace varnel
