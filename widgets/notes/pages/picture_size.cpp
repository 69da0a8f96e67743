#include "widgets/notes/pages/picture_size.h"

#include <algorithm>
#include <cstdint>

namespace varnel {
namespace {

constexpr int kTwipsPerPixel = kTwipsPerInch / kDefaultDpi;
constexpr int kHundredthsPerInch = 2540;  // of a millimetre, in which metafiles are stored
constexpr int kUnknownSide = kTwipsPerInch / 2;
constexpr std::int64_t kMostTwips = 1 << 20;

int SideTwips(const RtfPicture& picture, std::int32_t wished, std::int32_t stored) {
  if (wished > 0) return wished;
  const bool metafile = picture.kind == PictureKind::kEmf || picture.kind == PictureKind::kWmf;
  const std::int64_t side = metafile ? std::int64_t{stored} * kTwipsPerInch / kHundredthsPerInch
                                     : std::int64_t{stored} * kTwipsPerPixel;
  return static_cast<int>(std::clamp<std::int64_t>(side, 0, kMostTwips));
}

// What a crop takes away at most leaves one twip; one that adds room counts for nothing.
int SeenTwips(std::int64_t whole, std::int32_t crop_one, std::int32_t crop_other,
              std::int32_t scale) {
  if (whole <= 0) whole = kUnknownSide;
  const std::int64_t kept = whole - std::max(crop_one, 0) - std::int64_t{std::max(crop_other, 0)};
  return static_cast<int>(
      std::clamp<std::int64_t>(std::max<std::int64_t>(kept, 1) * scale / 100, 1, kMostTwips));
}

}  // namespace

Size WishedTwips(const RtfPicture& picture) {
  return {SideTwips(picture, picture.width_twips, picture.width),
          SideTwips(picture, picture.height_twips, picture.height)};
}

Size ShownTwips(const RtfPicture& picture) {
  const Size whole = WishedTwips(picture);
  return {SeenTwips(whole.width, picture.crop_left, picture.crop_right, picture.scale_x),
          SeenTwips(whole.height, picture.crop_top, picture.crop_bottom, picture.scale_y)};
}

Size FittedInto(Size size, Size room) {
  const auto smaller = [](int side, int part, int whole) {
    return std::max(1, static_cast<int>(std::int64_t{side} * part / std::max(whole, 1)));
  };
  if (size.width > room.width) {
    size = {std::max(room.width, 1), smaller(size.height, room.width, size.width)};
  }
  if (size.height > room.height) {
    size = {smaller(size.width, room.height, size.height), std::max(room.height, 1)};
  }
  return size;
}

}  // namespace varnel
