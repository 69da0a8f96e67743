#include "widgets/notes/editor/note_pictures_win.h"

#include <algorithm>
#include <utility>

#include "base/metafile.h"
#include "frame/pages/picture_paper_win.h"
#include "widgets/notes/pages/picture_size.h"
#include "win/graphics/pictures.h"

namespace varnel {
namespace {

constexpr int kTwipsPerPixel = kTwipsPerInch / kDefaultDpi;
constexpr int kHundredthsPerInch = 2540;  // of a millimetre
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr std::uint32_t kUnreadable = 0xFFC8C8C8;

int HundredthsFromTwips(std::int64_t twips) {
  constexpr std::int64_t kMost = 1'000'000;
  return static_cast<int>(
      std::clamp<std::int64_t>(twips * kHundredthsPerInch / kTwipsPerInch, 1, kMost));
}

void AppendNumber(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::uint32_t NumberAt(std::string_view bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = 0; i < count && at + static_cast<std::size_t>(i) < bytes.size(); ++i) {
    value |= static_cast<std::uint32_t>(
                 static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]))
             << (8 * i);
  }
  return value;
}

bool IsMetafile(PictureKind kind) {
  return kind == PictureKind::kEmf || kind == PictureKind::kWmf;
}

// An old metafile as a file of its own, which begins with a header that tells its size.
std::string WithPlaceableHeader(const RtfPicture& picture) {
  const Size twips = WishedTwips(picture);
  constexpr std::uint32_t kKey = 0x9AC6CDD7;
  std::string header;
  AppendNumber(header, kKey, 4);
  AppendNumber(header, 0, 6);
  for (const int side : {twips.width, twips.height}) {
    AppendNumber(header, static_cast<std::uint32_t>(std::clamp(side, 1, 32'000)), 2);
  }
  AppendNumber(header, kTwipsPerInch, 2);
  AppendNumber(header, 0, 4);
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < header.size(); at += 2) sum ^= NumberAt(header, at, 2);
  AppendNumber(header, sum, 2);
  return header + picture.bytes;
}

// A bitmap in memory as a file.
std::string WithBitmapHeader(const std::string& dib) {
  constexpr std::uint32_t kFileHeader = 14;
  const std::uint32_t info = NumberAt(dib, 0, 4);
  const std::uint32_t depth = NumberAt(dib, 14, 2);
  const std::uint32_t compression = NumberAt(dib, 16, 4);
  std::uint32_t colours = NumberAt(dib, 32, 4);
  if (colours == 0 && depth <= 8) colours = 1u << depth;
  const std::uint32_t masks = compression == 3 && info == 40 ? 12 : 0;
  std::string file = "BM";
  AppendNumber(file, kFileHeader + static_cast<std::uint32_t>(dib.size()), 4);
  AppendNumber(file, 0, 4);
  AppendNumber(file, kFileHeader + info + masks + std::min(colours, 256u) * 4, 4);
  return file + dib;
}

Image PixelsOf(const RtfPicture& picture) {
  switch (picture.kind) {
    case PictureKind::kPng:
    case PictureKind::kJpeg:
    case PictureKind::kEmf:
      return DecodePicture(picture.bytes).image;
    case PictureKind::kWmf:
      return DecodePicture(WithPlaceableHeader(picture)).image;
    case PictureKind::kDib:
      return DecodePicture(WithBitmapHeader(picture.bytes)).image;
    case PictureKind::kBitmap:
      break;
  }
  return {};
}

// What the crop leaves, of a picture that is `whole` twips.
Image Cropped(const Image& image, const RtfPicture& picture, Size whole) {
  const auto pixels = [](std::int32_t crop, int side, int twips) {
    return static_cast<int>(
        std::clamp<std::int64_t>(std::int64_t{crop} * side / std::max(twips, 1), 0, side));
  };
  const Rect kept{pixels(picture.crop_left, image.width(), whole.width),
                  pixels(picture.crop_top, image.height(), whole.height),
                  image.width() - pixels(picture.crop_right, image.width(), whole.width),
                  image.height() - pixels(picture.crop_bottom, image.height(), whole.height)};
  if (kept.empty() || kept == Rect{0, 0, image.width(), image.height()}) return image;
  Image part(kept.width(), kept.height());
  for (int y = 0; y < part.height(); ++y) {
    std::ranges::copy(
        image.Row(kept.top + y)
            .subspan(static_cast<std::size_t>(kept.left), static_cast<std::size_t>(part.width())),
        part.Row(y).begin());
  }
  return part;
}

std::optional<PictureKind> KeptKind(std::string_view bytes) {
  if (bytes.starts_with("\x89PNG")) return PictureKind::kPng;
  if (bytes.starts_with("\xFF\xD8")) return PictureKind::kJpeg;
  switch (ReadMetafileFrame(bytes).kind) {
    case MetafileKind::kEnhanced:
      return PictureKind::kEmf;
    case MetafileKind::kPlaceable:
      return PictureKind::kWmf;
    case MetafileKind::kNone:
      break;
  }
  return std::nullopt;
}

RtfPicture PictureOfSize(PictureKind kind, std::string bytes, const Image& image) {
  RtfPicture picture;
  picture.kind = kind;
  picture.bytes = std::move(bytes);
  picture.width_twips = image.width() * kTwipsPerPixel;
  picture.height_twips = image.height() * kTwipsPerPixel;
  const bool metafile = IsMetafile(kind);
  picture.width = metafile ? HundredthsFromTwips(picture.width_twips) : image.width();
  picture.height = metafile ? HundredthsFromTwips(picture.height_twips) : image.height();
  return picture;
}

// A metafile is drawn anew at the size of the paper.
class DrawnPicture : public PagePicture {
 public:
  // `crop`: what of the whole is cut away at each side, in millionths of what is left.
  DrawnPicture(UniqueMetafile file, const Rect& crop, std::shared_ptr<const PagePicture> pixels)
      : file_(std::move(file)), crop_(crop), pixels_(std::move(pixels)) {}

  void Draw(HDC dc, const Rect& area, bool colour) const override {
    if (!colour) return pixels_->Draw(dc, area, colour);
    const auto part = [](int millionths, int side) {
      return static_cast<LONG>(std::int64_t{millionths} * side / kWhole);
    };
    const RECT whole = {area.left - part(crop_.left, area.width()),
                        area.top - part(crop_.top, area.height()),
                        area.right + part(crop_.right, area.width()),
                        area.bottom + part(crop_.bottom, area.height())};
    const int saved = ::SaveDC(dc);
    ::IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    ::PlayEnhMetaFile(dc, file_.get(), &whole);
    ::RestoreDC(dc, saved);
  }

  static constexpr int kWhole = 1'000'000;

 private:
  UniqueMetafile file_;
  Rect crop_;
  std::shared_ptr<const PagePicture> pixels_;  // the same, for greys
};

UniqueMetafile MetafileIn(const RtfPicture& picture) {
  if (picture.kind != PictureKind::kEmf) return {};
  return UniqueMetafile(::SetEnhMetaFileBits(static_cast<UINT>(picture.bytes.size()),
                                             reinterpret_cast<const BYTE*>(picture.bytes.data())));
}

}  // namespace

std::optional<RtfPicture> PictureOfFile(std::string_view bytes) {
  const DecodedPicture decoded = DecodePicture(bytes);
  if (decoded.image.empty()) return std::nullopt;
  const auto kind = KeptKind(bytes);
  if (!kind) return PictureOfImage(decoded.image);
  if (*kind == PictureKind::kWmf) bytes.remove_prefix(kPlaceableHeaderBytes);
  return PictureOfSize(*kind, std::string(bytes), decoded.image);
}

std::optional<RtfPicture> PictureOfImage(const Image& image) {
  std::string png = EncodePng(image);
  if (png.empty()) return std::nullopt;
  return PictureOfSize(PictureKind::kPng, std::move(png), image);
}

std::uint32_t NotePictures::Add(RtfPicture picture) {
  pictures_.push_back(std::move(picture));
  return static_cast<std::uint32_t>(pictures_.size());
}

std::optional<std::vector<RtfPicture>> NotePictures::Of(std::span<const RichPicture> shown) const {
  std::vector<RtfPicture> pictures;
  for (const RichPicture& picture : shown) {
    if (picture.id == 0 || picture.id > pictures_.size()) return std::nullopt;
    pictures.push_back(pictures_[picture.id - 1]);
  }
  return pictures;
}

std::size_t NotePictures::Bytes(std::span<const RichPicture> shown) const {
  std::size_t bytes = 0;
  for (const RichPicture& picture : shown) {
    if (picture.id > 0 && picture.id <= pictures_.size()) {
      bytes += pictures_[picture.id - 1].bytes.size();
    }
  }
  return bytes;
}

PictureLook LookOf(const RtfPicture& picture, int most_width) {
  Image image = PixelsOf(picture);
  if (image.empty()) image = Image(32, 32, kUnreadable);
  Size whole = WishedTwips(picture);
  if (whole.width <= 0) whole.width = image.width() * kTwipsPerPixel;
  if (whole.height <= 0) whole.height = image.height() * kTwipsPerPixel;
  const Image part = Cropped(image, picture, whole);
  const auto side = [](std::int64_t twips, int kept, int all, std::int32_t scale) {
    return HundredthsFromTwips(twips * kept / std::max(all, 1) * scale / 100);
  };
  Size size{side(whole.width, part.width(), image.width(), picture.scale_x),
            side(whole.height, part.height(), image.height(), picture.scale_y)};
  if (size.width > most_width) {
    size.height =
        std::max(1, static_cast<int>(std::int64_t{size.height} * most_width / size.width));
    size.width = most_width;
  }
  return {std::make_shared<UniqueMetafile>(MetafileOf(OnGround(part, kPaper))), size};
}

std::shared_ptr<const PagePicture> PrintedPicture(const RtfPicture& picture) {
  const Image image = PixelsOf(picture);
  if (image.empty()) return nullptr;
  Size whole = WishedTwips(picture);
  if (whole.width <= 0) whole.width = image.width() * kTwipsPerPixel;
  if (whole.height <= 0) whole.height = image.height() * kTwipsPerPixel;
  auto pixels = std::make_shared<Image>(OnGround(Cropped(image, picture, whole), kPaper));
  const Rect all{0, 0, pixels->width(), pixels->height()};
  auto painted = std::make_shared<ImagePicture>(std::move(pixels), all);
  UniqueMetafile file = MetafileIn(picture);
  if (!file) return painted;
  const auto part = [](int crop, int left) {
    return static_cast<int>(std::clamp<std::int64_t>(
        std::int64_t{crop} * DrawnPicture::kWhole / std::max(left, 1), 0, 1'000'000'000));
  };
  const int across = whole.width - picture.crop_left - picture.crop_right;
  const int down = whole.height - picture.crop_top - picture.crop_bottom;
  return std::make_shared<DrawnPicture>(
      std::move(file),
      Rect{part(picture.crop_left, across), part(picture.crop_top, down),
           part(picture.crop_right, across), part(picture.crop_bottom, down)},
      std::move(painted));
}

}  // namespace varnel
