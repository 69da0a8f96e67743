#include "widgets/notes/spelling/own_words.h"

#include <algorithm>
#include <utility>

#include "base/letters.h"
#include "base/text.h"
#include "widgets/notes/spelling/word_list.h"

namespace varnel {
namespace {

constexpr std::size_t kLargestPairs = 4 * 1024 * 1024;  // bytes

bool IsMissing(FileResult result) {
  return result == FileResult::kMissing || result == FileResult::kNoFolder;
}

bool FitsLine(std::wstring_view text) {
  return !text.empty() && text.size() <= kLongestListWord &&
         std::ranges::none_of(text, [](wchar_t unit) { return unit < L' ' || unit == 0x7F; });
}

}  // namespace

void OwnWords::Load() {
  words_.clear();
  unsaved_ = false;
  unread_ = true;
  Read();
}

// Words that were added before the file could be read come behind its own.
bool OwnWords::Read() {
  const FileRead file = files_.Read(path_, kLargestWordList);
  if (!file && !IsMissing(file.result)) return false;
  unread_ = false;
  std::vector<std::wstring> added = std::exchange(words_, {});
  const WordList list(file.bytes);
  for (std::size_t i = 0; i < list.count(); ++i) {
    std::wstring word = list.Word(i);
    if (!Holds(word)) words_.push_back(std::move(word));
  }
  for (std::wstring& word : added) {
    if (!Holds(word)) words_.push_back(std::move(word));
  }
  return true;
}

bool OwnWords::Holds(std::wstring_view word) const {
  return std::ranges::find(words_, word) != words_.end();
}

bool OwnWords::Add(std::wstring_view word) {
  if (!Holds(word)) {
    words_.emplace_back(word);
    unsaved_ = true;
  }
  return Save();
}

bool OwnWords::Remove(std::wstring_view word) {
  const auto found = std::ranges::find(words_, word);
  if (found == words_.end()) return false;
  const auto place = found - words_.begin();
  words_.erase(found);
  unsaved_ = true;
  if (Save()) return true;
  words_.insert(words_.begin() + place, std::wstring(word));
  return false;
}

bool OwnWords::Save() {
  if (!unsaved_) return true;
  if (unread_ && !Read()) return false;
  std::string bytes;
  for (const std::wstring& word : words_) bytes += Utf8FromWide(word) + "\r\n";
  unsaved_ = !files_.Replace(path_, bytes);
  return !unsaved_;
}

void Corrections::Load() {
  pairs_.clear();
  unsaved_ = false;
  unread_ = true;
  Read();
}

bool Corrections::Read() {
  const FileRead file = files_.Read(path_, kLargestPairs);
  if (!file && !IsMissing(file.result)) return false;
  unread_ = false;
  const bool unsaved = unsaved_;
  const std::vector<Pair> added = std::exchange(pairs_, {});
  const std::wstring text = WideFromUtf8(file.bytes);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n", at), text.size());
    const std::wstring line = text.substr(at, end - at);
    const std::size_t tab = line.find(L'\t');
    if (tab != std::wstring::npos) Put(line.substr(0, tab), line.substr(tab + 1));
    at = end + 1;
  }
  for (const Pair& pair : added) Put(pair.wrong, pair.right);
  unsaved_ = unsaved;
  return true;
}

void Corrections::Put(std::wstring wrong, std::wstring right) {
  if (!FitsLine(wrong) || !FitsLine(right) || wrong == right) return;
  wrong = FoldCase(wrong);
  std::erase_if(pairs_, [&](const Pair& pair) { return pair.wrong == wrong; });
  if (pairs_.size() == kMostCorrections) pairs_.erase(pairs_.begin());
  pairs_.push_back({std::move(wrong), std::move(right)});
  unsaved_ = true;
}

std::wstring Corrections::Of(std::wstring_view word) const {
  const auto found = std::ranges::find(pairs_, FoldCase(word), &Pair::wrong);
  return found == pairs_.end() ? std::wstring() : found->right;
}

bool Corrections::Add(std::wstring_view word, std::wstring_view replacement) {
  Put(std::wstring(word), std::wstring(replacement));
  return Save();
}

bool Corrections::Save() {
  if (!unsaved_) return true;
  if (unread_ && !Read()) return false;
  std::string bytes;
  for (const Pair& pair : pairs_) {
    bytes += Utf8FromWide(pair.wrong) + '\t' + Utf8FromWide(pair.right) + "\r\n";
  }
  unsaved_ = !files_.Replace(path_, bytes);
  return !unsaved_;
}

std::optional<std::string> WithoutRecord(std::string_view bytes, std::string_view word,
                                         std::span<const std::string> own) {
  std::size_t next = bytes.size();  // where the line behind the one looked at begins
  while (next > 0) {
    const std::size_t last = bytes.substr(0, next).find_last_not_of("\r\n");
    if (last == std::string_view::npos) break;
    const std::size_t before = bytes.substr(0, last).find_last_of("\r\n");
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    const std::string_view line = bytes.substr(begin, last + 1 - begin);
    if (line == word) return std::string(bytes.substr(0, begin)) + std::string(bytes.substr(next));
    if (std::ranges::find(own, line) == own.end()) break;
    next = begin;
  }
  return std::nullopt;
}

}  // namespace varnel
