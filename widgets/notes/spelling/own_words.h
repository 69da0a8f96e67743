// What the user has taught the spelling check: words of their own, and corrections.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_store.h"

namespace varnel {

// The words that the user has added, in a file of their own: UTF-8, a word a line, in the order in
// which they came. Every change is written at once.
class OwnWords {
 public:
  OwnWords(FileStore& files, std::wstring path) : files_(files), path_(std::move(path)) {}

  // A missing file: no words. One that cannot be read now is read before it is next written, so
  // that its words stay.
  void Load();
  const std::vector<std::wstring>& words() const { return words_; }
  bool Holds(std::wstring_view word) const;
  // False when the file could not be written; the word is there all the same.
  bool Add(std::wstring_view word);
  // False when there is no such word, or the file could not be written and so keeps it.
  bool Remove(std::wstring_view word);
  bool Save();  // writes what could not be written before; true when all is written

 private:
  FileStore& files_;
  std::wstring path_;
  bool Read();

  std::vector<std::wstring> words_;
  bool unread_ = true;
  bool unsaved_ = false;
};

// Pairs of a wrong word and what the user put in its place: UTF-8, a pair a line with a tab
// between, the latest last. The oldest are dropped beyond kMostCorrections.
class Corrections {
 public:
  Corrections(FileStore& files, std::wstring path) : files_(files), path_(std::move(path)) {}

  void Load();  // as OwnWords does
  // What `word`, in any case, was last corrected to; empty when it never was.
  std::wstring Of(std::wstring_view word) const;
  // Keeps a pair; one of which a part is empty or longer than a list's words, or whose parts are
  // equal, is not kept. False when the file could not be written.
  bool Add(std::wstring_view word, std::wstring_view replacement);
  bool Save();

 private:
  struct Pair {
    std::wstring wrong;  // folded
    std::wstring right;
  };
  void Put(std::wstring wrong, std::wstring right);

  FileStore& files_;
  std::wstring path_;
  bool Read();

  std::vector<Pair> pairs_;
  bool unread_ = true;
  bool unsaved_ = false;
};
inline constexpr std::size_t kMostCorrections = 1000;

// The bytes of a dictionary file without the record `word`. Added words stand at the file's end, so
// only the last lines are looked at, for as long as they are among `own` (all as the file encodes
// them, `word` among them). Nothing when it is not there.
std::optional<std::string> WithoutRecord(std::string_view bytes, std::string_view word,
                                         std::span<const std::string> own);

}  // namespace varnel
