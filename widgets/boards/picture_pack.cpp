#include "widgets/boards/picture_pack.h"

#include <cstddef>

namespace varnel {
namespace {

class PackReader {
 public:
  explicit PackReader(std::string_view pack) : rest_(pack) {}

  bool done() const { return rest_.empty(); }
  std::string_view Take(std::size_t bytes) {
    whole_ = whole_ && bytes <= rest_.size();
    const std::string_view taken = rest_.substr(0, bytes);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  // A number of so many bytes, the lowest first.
  std::size_t Number(std::size_t bytes) {
    std::size_t number = 0, weight = 1;
    for (const char byte : Take(bytes)) {
      number += static_cast<unsigned char>(byte) * weight;
      weight *= 256;
    }
    return number;
  }
  bool whole() const { return whole_; }

 private:
  std::string_view rest_;
  bool whole_ = true;
};

}  // namespace

std::vector<OfferedPicture> ReadPicturePack(std::string_view pack) {
  std::vector<OfferedPicture> pictures;
  PackReader reader(pack);
  while (!reader.done()) {
    OfferedPicture picture;
    const std::size_t group = reader.Number(1), name = reader.Number(1);
    picture.group = reader.Take(group);
    picture.name = reader.Take(name);
    picture.small = reader.Take(reader.Number(4));
    picture.large = reader.Take(reader.Number(4));
    if (reader.whole()) pictures.push_back(picture);
  }
  return pictures;
}

}  // namespace varnel
