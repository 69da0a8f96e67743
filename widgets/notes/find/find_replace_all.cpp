// Replacing every hit, without making a new text for each.
#include <algorithm>
#include <utility>

#include "widgets/notes/find/find_text.h"

namespace varnel {
namespace {

constexpr std::size_t kHitsBetweenQuestions = 256;
// What decides about the edges of a word and of a pair of units on either side of a hit.
constexpr std::size_t kAround = 2;

// The text as it is after some replacements is `made_`, which ends with what was put in last, and
// then the original from `rest_` on. Only that end of `made_` can still be searched.
class Replacer {
 public:
  Replacer(std::wstring_view text, const TextFinder& finder, std::wstring_view replacement)
      : text_(text), prepared_(text, finder), finder_(finder), replacement_(replacement) {}

  Replacements Run(std::size_t from, const std::function<bool(std::size_t)>& go_on) {
    Replacements all;
    place_ = from;
    while (!all.stopped && (ReplaceAcross() || ReplaceInRest())) {
      ++all.count;
      const bool asks = go_on && all.count % kHitsBetweenQuestions == 0;
      all.stopped = made_.size() > kLargestResult || (asks && !go_on(rest_));
    }
    if (all.stopped) return {{}, 0, true};
    for (const Piece& piece : pieces_) {
      all.edits.push_back(
          {piece.position, piece.length, made_.substr(piece.begin, piece.end - piece.begin)});
    }
    return all;
  }

 private:
  struct Piece {
    std::size_t position;  // in the original, with the length there
    std::size_t length;
    std::size_t begin;  // of what stands for it in made_
    std::size_t end;
  };

  // A hit that begins in what was put in last, or right behind it, and ends behind it. It is looked
  // for in a window of the text as it is now.
  bool ReplaceAcross() {
    if (pieces_.empty() || place_ > made_.size()) return false;
    const std::size_t reach = std::min(finder_.length() - 1, replacement_.size());
    const std::size_t first = std::max(place_, made_.size() - reach);
    const std::size_t start = first - std::min(first, kAround);
    std::wstring window = made_.substr(start);
    const std::size_t seam = window.size();
    window += text_.substr(rest_, finder_.length() + kAround);
    const TextFinder::Text in(window, finder_);
    const auto at = finder_.Next(in, first - start);
    if (!at || *at > seam) return false;
    const std::size_t begin = start + *at;
    rest_ += *at + finder_.length() - seam;
    if (begin == made_.size()) {
      pieces_.push_back({rest_ - finder_.length(), finder_.length(), begin, 0});
    } else {
      pieces_.back().length = rest_ - pieces_.back().position;
    }
    PutIn(begin);
    return true;
  }

  // The next hit in the rest of the original. Right behind a replacement is no matter of this:
  // there the original has another character before it.
  bool ReplaceInRest() {
    const std::size_t ahead = place_ > made_.size() ? place_ - made_.size() : 0;
    const auto at = finder_.Next(prepared_, rest_ + (pieces_.empty() || ahead > 0 ? ahead : 1));
    if (!at) return false;
    made_ += text_.substr(rest_, *at - rest_);
    rest_ = *at + finder_.length();
    pieces_.push_back({*at, finder_.length(), made_.size(), 0});
    PutIn(made_.size());
    return true;
  }

  void PutIn(std::size_t begin) {
    made_.resize(begin);
    made_ += replacement_;
    pieces_.back().end = made_.size();
    place_ = begin + finder_.length();
  }

  std::wstring_view text_;
  TextFinder::Text prepared_;
  const TextFinder& finder_;
  std::wstring_view replacement_;
  std::wstring made_;
  std::size_t rest_ = 0;
  std::size_t place_ = 0;  // where the search goes on, in the text as it is now
  std::vector<Piece> pieces_;
};

}  // namespace

Replacements ReplaceAll(std::wstring_view text, const TextFinder& finder,
                        std::wstring_view replacement, std::size_t from,
                        const std::function<bool(std::size_t)>& go_on) {
  return Replacer(text, finder, replacement).Run(from, go_on);
}

}  // namespace varnel
