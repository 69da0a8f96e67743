// Which notes hold certain words, in their names or their texts, found bit by bit.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/document_folder.h"
#include "base/file_store.h"
#include "widgets/notes/text/text_file.h"

namespace varnel {

class NoteSearch {
 public:
  // Both outlive it.
  NoteSearch(const FileStore& files, const SystemEncoding& system)
      : files_(files), system_(system) {}

  // Begins anew for the words of `query`, parted by blanks, in any order and any case. An empty
  // query finds nothing and is done at once.
  void Start(std::wstring_view query, const DocumentFolder& notes);
  // Looks into the next note. False when there is none left. A note that cannot be read is known by
  // its name alone.
  bool Step(const DocumentFolder& notes);

  bool active() const { return !words_.empty(); }
  bool done(const DocumentFolder& notes) const { return next_ >= notes.count(); }
  // The rows of the notes found so far, ascending.
  const std::vector<std::size_t>& found() const { return found_; }

 private:
  struct Text {
    FileStamp stamp;
    std::wstring folded;
  };
  void ForgetTexts();
  const std::wstring& TextOf(const DocumentFolder& notes, std::size_t row);

  const FileStore& files_;
  const SystemEncoding& system_;
  std::vector<std::wstring> words_;
  std::vector<std::size_t> found_;
  std::size_t next_ = 0;
  std::map<std::wstring, Text> texts_;  // by path, as long as there is room
  std::size_t kept_units_ = 0;
};

}  // namespace varnel
