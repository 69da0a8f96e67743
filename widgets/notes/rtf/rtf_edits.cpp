#include "widgets/notes/rtf/rtf_edits.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace varnel {
namespace {

// Where places of the text before the edits are after them. Places are asked for in ascending
// order.
class Places {
 public:
  explicit Places(std::span<const TextEdit> edits) : edits_(edits) {}

  // A place behind the first unit of what an edit replaced moves behind what it put in.
  std::size_t After(std::size_t place) {
    Reach(place);
    if (!IsReplaced(place) || place == edits_[next_].position) return place + shift_;
    return edits_[next_].position + edits_[next_].text.size() + shift_;
  }

  // True when the unit at `place` was replaced.
  bool Goes(std::size_t place) {
    Reach(place);
    return IsReplaced(place);
  }

 private:
  void Reach(std::size_t place) {
    while (next_ < edits_.size() && edits_[next_].position + edits_[next_].length <= place) {
      shift_ += edits_[next_].text.size() - edits_[next_].length;
      ++next_;
    }
  }
  bool IsReplaced(std::size_t place) const {
    return next_ < edits_.size() && edits_[next_].position <= place;
  }

  std::span<const TextEdit> edits_;
  std::size_t next_ = 0;   // the first edit that ends behind the place asked for last
  std::size_t shift_ = 0;  // by how much the edits before it move text; wraps round below 0
};

void MoveRuns(RtfDocument& document, std::size_t length, Places places) {
  std::vector<RtfRun> runs;
  for (const RtfRun& run : document.runs) {
    const std::size_t begin = places.After(run.begin);
    if (!runs.empty() && runs.back().begin == begin) runs.pop_back();
    if (begin < length) runs.push_back({begin, run.format});
  }
  // Neighbours that a run of another format no longer parts.
  const auto same = [](const RtfRun& left, const RtfRun& right) {
    return left.format == right.format;
  };
  runs.erase(std::unique(runs.begin(), runs.end(), same), runs.end());
  document.runs = std::move(runs);
}

void MovePictures(RtfDocument& document, Places places) {
  std::vector<RtfPicture> pictures;
  for (RtfPicture& picture : document.pictures) {
    if (places.Goes(picture.at)) continue;
    picture.at = places.After(picture.at);
    pictures.push_back(std::move(picture));
  }
  document.pictures = std::move(pictures);
}

// The paragraphs of the text after the edits: the first, those whose end before them stays, and
// those that follow an end that was put in.
void MoveParagraphs(RtfDocument& document, const std::wstring& text,
                    std::span<const TextEdit> edits) {
  const std::vector<RtfParagraph> before = std::move(document.paragraphs);
  std::vector<RtfParagraph> after;
  Places places(edits);
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (i > 0 && places.Goes(before[i].begin - 1)) continue;
    const std::size_t begin = i == 0 ? 0 : places.After(before[i].begin - 1) + 1;
    while (!after.empty()) {
      const std::size_t end = text.find(kParagraphEnd, after.back().begin);
      if (end == std::wstring::npos || end + 1 >= begin) break;
      after.push_back({end + 1, after.back().format});
    }
    after.push_back({begin, before[i].format});
  }
  for (;;) {
    const std::size_t end = text.find(kParagraphEnd, after.back().begin);
    if (end == std::wstring::npos) break;
    after.push_back({end + 1, after.back().format});
  }
  document.paragraphs = std::move(after);
}

}  // namespace

void ApplyEdits(RtfDocument& document, std::span<const TextEdit> edits) {
  if (edits.empty()) return;
  std::vector<TextEdit> clean(edits.begin(), edits.end());
  for (TextEdit& edit : clean) {
    std::ranges::replace(edit.text, kObject, static_cast<wchar_t>(0xFFFD));
  }
  std::wstring text = WithEdits(document.text, clean);
  MoveRuns(document, text.size(), Places(clean));
  MovePictures(document, Places(clean));
  MoveParagraphs(document, text, clean);
  document.text = std::move(text);
}

}  // namespace varnel
