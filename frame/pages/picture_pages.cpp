#include "frame/pages/picture_pages.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

constexpr int kMostPages = 400;

int Twips(double pixels, int dpi) {
  return static_cast<int>(std::lround(pixels * kTwipsPerInch / dpi));
}

}  // namespace

std::vector<PicturePart> PlacePicture(Size picture, int dpi, const Rect& column, bool fitted) {
  if (picture.width < 1 || picture.height < 1) return {{}};
  if (fitted) {
    const double scale = std::min(static_cast<double>(column.width()) / picture.width,
                                  static_cast<double>(column.height()) / picture.height);
    const Size size{std::max(static_cast<int>(picture.width * scale), 1),
                    std::max(static_cast<int>(picture.height * scale), 1)};
    return {{RectAt({0, 0}, picture),
             RectAt({column.left + (column.width() - size.width) / 2, column.top}, size)}};
  }
  dpi = std::max(dpi, 1);
  // Whole pixels of the picture on every page.
  const int across =
      std::max(static_cast<int>(static_cast<long long>(column.width()) * dpi / kTwipsPerInch), 1);
  const int down =
      std::max(static_cast<int>(static_cast<long long>(column.height()) * dpi / kTwipsPerInch), 1);
  std::vector<PicturePart> parts;
  for (int y = 0; y < picture.height; y += down) {
    for (int x = 0; x < picture.width; x += across) {
      if (parts.size() == kMostPages) return parts;
      const Rect pixels{x, y, std::min(x + across, picture.width),
                        std::min(y + down, picture.height)};
      Rect area = RectAt({column.left, column.top},
                         {Twips(pixels.width(), dpi), Twips(pixels.height(), dpi)});
      if (picture.width <= across) {
        const int aside = (column.width() - area.width()) / 2;
        area.left += aside;
        area.right += aside;
      }
      parts.push_back({pixels, area});
    }
  }
  return parts;
}

Page PicturePages::At(std::size_t index) {
  Page page;
  index = std::min(index, parts_.size() - 1);
  if (!parts_[index].area.empty()) page.pictures.push_back({parts_[index].area, index});
  return page;
}

}  // namespace varnel
