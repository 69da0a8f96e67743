#include "widgets/notes/find/note_search.h"

#include <algorithm>

#include "base/letters.h"
#include "widgets/notes/note_document.h"
#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {
namespace {

constexpr std::size_t kMostKeptUnits = 16 * 1024 * 1024;
constexpr std::size_t kMostSearched = 2 * 1024 * 1024;  // bytes of a note

}  // namespace

void NoteSearch::Start(std::wstring_view query, const DocumentFolder& notes) {
  words_.clear();
  found_.clear();
  for (std::size_t at = 0; at < query.size();) {
    const std::size_t end = std::min(query.find(L' ', at), query.size());
    if (end > at) words_.push_back(FoldCase(query.substr(at, end - at)));
    at = end + 1;
  }
  // A note is gone; its text needs no room any more.
  if (texts_.size() > notes.count()) ForgetTexts();
  next_ = words_.empty() ? notes.count() : 0;
}

bool NoteSearch::Step(const DocumentFolder& notes) {
  if (done(notes)) return false;
  const std::size_t row = next_++;
  const std::wstring name = FoldCase(notes.Title(row));
  std::vector<const std::wstring*> left;
  for (const std::wstring& word : words_) {
    if (name.find(word) == std::wstring::npos) left.push_back(&word);
  }
  const auto in_text = [&](const std::wstring* word) {
    return TextOf(notes, row).find(*word) != std::wstring::npos;
  };
  if (std::ranges::all_of(left, in_text)) found_.push_back(row);
  return !done(notes);
}

void NoteSearch::ForgetTexts() {
  texts_.clear();
  kept_units_ = 0;
}

const std::wstring& NoteSearch::TextOf(const DocumentFolder& notes, std::size_t row) {
  const std::wstring path = notes.Path(row);
  const FileStamp& stamp = notes.Stamp(row);
  Text& text = texts_[path];
  if (text.stamp == stamp) return text.folded;
  kept_units_ -= text.folded.size();
  if (kept_units_ > kMostKeptUnits) ForgetTexts();
  Text& kept = texts_[path];
  kept = {stamp, {}};
  if (const FileRead read = files_.Read(path, kMostSearched)) {
    const bool rich = NoteTypeOf(path) == NoteType::kRtf;
    const RtfReading reading = rich ? ReadRtf(read.bytes) : RtfReading{RtfFault::kNotRtf, {}};
    kept.folded = FoldCase(reading.fault == RtfFault::kNone ? reading.document.text
                                                            : ReadText(read.bytes, system_).text);
  }
  kept_units_ += kept.folded.size();
  return kept.folded;
}

}  // namespace varnel
