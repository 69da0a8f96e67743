#include "frame/pages/picture_paper_win.h"

#include <algorithm>

#include "base/resample.h"
#include "win/graphics/pictures.h"

namespace varnel {
namespace {

Image PartOf(const Image& image, const Rect& part) {
  Image cut(part.width(), part.height());
  for (int y = 0; y < cut.height(); ++y) {
    std::ranges::copy(
        image.Row(part.top + y)
            .subspan(static_cast<std::size_t>(part.left), static_cast<std::size_t>(part.width())),
        cut.Row(y).begin());
  }
  return cut;
}

// Weights of the eye for blue, green and red, in 1/256 (ITU-R BT.601).
std::uint32_t Grey(std::uint32_t pixel) {
  const std::uint32_t grey =
      ((pixel & 0xFF) * 29 + (pixel >> 8 & 0xFF) * 150 + (pixel >> 16 & 0xFF) * 77) >> 8;
  return (pixel & 0xFF000000U) | grey << 16 | grey << 8 | grey;
}

}  // namespace

void ImagePicture::Draw(HDC dc, const Rect& area, bool colour) const {
  const Rect part = Intersection(part_, {0, 0, image_->width(), image_->height()});
  if (part.empty()) return;
  // What becomes smaller is made so by a filter: the platform would leave pixels out. A printer is
  // given all of them.
  const bool screen = ::GetDeviceCaps(dc, TECHNOLOGY) == DT_RASDISPLAY;
  Image image = PartOf(*image_, part);
  if (screen && area.width() <= image.width() && area.height() <= image.height()) {
    image = Resampled(image, {area.width(), area.height()});
  }
  if (image.empty()) return;
  if (!colour) std::ranges::transform(image.All(), image.All().begin(), Grey);
  const BITMAPINFO info = BitmapInfoOf(image);
  ::SetStretchBltMode(dc, HALFTONE);
  ::SetBrushOrgEx(dc, 0, 0, nullptr);
  ::StretchDIBits(dc, area.left, area.top, area.width(), area.height(), 0, 0, image.width(),
                  image.height(), image.All().data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

std::unique_ptr<PageSource> PicturePaper::Pages(const PageSetup& setup, PageMeasure&) {
  parts_ = PlacePicture({image_->width(), image_->height()}, dpi_, ColumnOf(setup), setup.fitted);
  return std::make_unique<PicturePages>(parts_);
}

std::shared_ptr<const PagePicture> PicturePaper::Picture(std::size_t index) {
  if (index >= parts_.size()) return nullptr;
  return std::make_shared<ImagePicture>(image_, parts_[index].pixels);
}

}  // namespace varnel
