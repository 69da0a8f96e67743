// Small pictures of boards, made when they are first wanted and kept while the boards are as they
// were.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/file_store.h"
#include "base/image.h"

namespace varnel {

// What is drawn on `board` at a size that fits into `most`, as strong as a small picture needs; at
// least half of the board, so that a dot stays a dot.
Image ThumbnailOf(const Image& board, Size most);

class BoardThumbnails {
 public:
  static constexpr std::size_t kMost = 256;  // pictures; beyond that all are forgotten

  struct Wish {
    std::wstring name;
    FileStamp stamp;
    bool operator==(const Wish&) const = default;
  };

  // The picture of the file with that stamp. Where there is none yet, it is noted as wanted, and
  // the one of the file as it was before is given meanwhile; null when there is not even that.
  const Image* Find(const std::wstring& name, const FileStamp& stamp);
  // What was wanted last and is not there yet.
  std::optional<Wish> Next() const;
  // An empty picture stands for a file that shows none.
  void Put(const Wish& wish, Image picture);
  // The file could not be read for now: it is wanted when it is looked for again.
  void Drop(const Wish& wish) { std::erase(wishes_, wish); }
  void Forget();

 private:
  struct Kept {
    FileStamp stamp;
    Image picture;
  };
  std::map<std::wstring, Kept> kept_;
  std::vector<Wish> wishes_;  // each once
};

}  // namespace varnel
