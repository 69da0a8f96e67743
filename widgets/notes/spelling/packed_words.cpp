#include "widgets/notes/spelling/packed_words.h"

namespace varnel {

std::optional<std::string> UnpackWordList(std::string_view packed, WordListKind kind) {
  constexpr unsigned char kSharedBits = 63;
  std::string list;
  list.reserve(packed.size() * 5 / 2);  // what our own lists grow by
  std::string word;
  while (!packed.empty()) {
    const auto head = static_cast<unsigned char>(packed.front());
    const std::size_t shared = head & kSharedBits;
    const std::size_t end = packed.find('\n', 1);
    if (end == std::string_view::npos || shared > word.size()) return std::nullopt;
    word.resize(shared);
    word += packed.substr(1, end - 1);
    if ((head & static_cast<unsigned char>(kind)) != 0) {
      list += word;
      list += "\r\n";
    }
    packed.remove_prefix(end + 1);
  }
  return list;
}

}  // namespace varnel
