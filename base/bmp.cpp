#include "base/bmp.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "base/little_endian.h"

namespace varnel {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kOldestHeader = 12;
constexpr std::size_t kUsualHeader = 40;
constexpr std::size_t kLongestHeader = 124;
constexpr std::size_t kHeaders = kFileHeader + kUsualHeader;
// How many pixels a byte of run lengths may stand for. A picture of which every pixel is encoded
// has at most 128; beyond this a small file would claim much memory for nothing.
constexpr std::uint64_t kPixelsPerRunByte = 256;
constexpr std::uint32_t kOpaque = 0xFF000000;

enum Compression : std::uint32_t { kPlain = 0, kRuns8 = 1, kRuns4 = 2, kFields = 3, kFields4 = 6 };

// Where one colour lies in a pixel.
struct Field {
  int shift = 0;
  int bits = 0;  // none: the colour is always 0
  std::uint32_t Value(std::uint32_t pixel) const {
    if (bits == 0) return 0;
    const std::uint32_t most = (1U << bits) - 1;
    return ((pixel >> shift & most) * 255 + most / 2) / most;
  }
};

struct Header {
  int width = 0;
  int height = 0;
  bool from_top = false;
  unsigned bits = 0;
  std::uint32_t compression = kPlain;
  std::size_t pixels = 0;       // where they begin in the file
  std::array<Field, 3> fields;  // red, green, blue
  std::array<std::uint32_t, 256> palette;

  std::size_t RowBytes() const { return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4; }
};

std::optional<Field> FieldOf(std::uint32_t mask) {
  if (mask == 0) return Field{};
  Field field{std::countr_zero(mask), 0};
  const std::uint32_t run = mask >> field.shift;
  field.bits = std::countr_one(run);
  const bool adjacent = field.bits == 32 || run >> field.bits == 0;
  if (!adjacent || field.bits > 8) return std::nullopt;
  return field;
}

bool ReadFields(std::string_view file, Header& header) {
  std::array<std::uint32_t, 3> masks = {0x00FF0000, 0x0000FF00, 0x000000FF};
  if (header.compression == kFields || header.compression == kFields4) {
    for (std::size_t i = 0; i < masks.size(); ++i) {
      masks[i] = static_cast<std::uint32_t>(LittleEndian(file, kHeaders + 4 * i, 4));
    }
  } else if (header.bits == 16) {
    masks = {0x7C00, 0x03E0, 0x001F};
  }
  for (std::size_t i = 0; i < masks.size(); ++i) {
    const auto field = FieldOf(masks[i]);
    if (!field) return false;
    header.fields[i] = *field;
  }
  return true;
}

// Colours beyond the palette are black.
void ReadPalette(std::string_view file, std::size_t header_bytes, std::uint64_t colours,
                 Header& header) {
  header.palette.fill(kOpaque);
  if (header.bits > 8) return;
  const std::uint64_t most = 1ULL << header.bits;
  if (colours == 0 || colours > most) colours = most;
  const std::size_t entry = header_bytes == kOldestHeader ? 3 : 4;
  for (std::size_t i = 0; i < colours; ++i) {
    const std::size_t at = kFileHeader + header_bytes + i * entry;
    if (at + entry > header.pixels) break;
    header.palette[i] = kOpaque | static_cast<std::uint32_t>(LittleEndian(file, at, 3));
  }
}

bool IsKnownKind(const Header& header) {
  switch (header.compression) {
    case kPlain:
      return header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 16 ||
             header.bits == 24 || header.bits == 32;
    case kRuns8:
      return header.bits == 8 && !header.from_top;
    case kRuns4:
      return header.bits == 4 && !header.from_top;
    case kFields:
    case kFields4:
      return header.bits == 16 || header.bits == 32;
    default:
      return false;
  }
}

bool HasRoom(std::string_view file, const Header& header) {
  if (header.pixels > file.size()) return false;
  const std::uint64_t left = file.size() - header.pixels;
  if (header.compression == kRuns8 || header.compression == kRuns4) {
    const auto pixels =
        static_cast<std::uint64_t>(header.width) * static_cast<unsigned>(header.height);
    return pixels <= left * kPixelsPerRunByte;
  }
  return static_cast<std::uint64_t>(header.RowBytes()) * static_cast<unsigned>(header.height) <=
         left;
}

std::optional<Header> ReadHeader(std::string_view file) {
  if (file.size() < kFileHeader + kOldestHeader || !file.starts_with("BM")) return std::nullopt;
  const auto number = [file](std::size_t at, std::size_t count) {
    return LittleEndian(file, kFileHeader + at, count);
  };
  const std::uint64_t header_bytes = number(0, 4);
  const bool oldest = header_bytes == kOldestHeader;
  if (!oldest && (header_bytes < kUsualHeader || header_bytes > kLongestHeader))
    return std::nullopt;
  if (file.size() < kFileHeader + header_bytes) return std::nullopt;
  Header header;
  const std::int64_t width =
      oldest ? static_cast<std::int64_t>(number(4, 2)) : static_cast<std::int32_t>(number(4, 4));
  const std::int64_t height =
      oldest ? static_cast<std::int64_t>(number(6, 2)) : static_cast<std::int32_t>(number(8, 4));
  if (width < 1 || width > kLongestBmpSide || height == 0) return std::nullopt;
  if (height < -kLongestBmpSide || height > kLongestBmpSide) return std::nullopt;
  header.width = static_cast<int>(width);
  header.height = static_cast<int>(height < 0 ? -height : height);
  header.from_top = height < 0;
  header.bits = static_cast<unsigned>(number(oldest ? 10 : 14, 2));
  header.compression = oldest ? kPlain : static_cast<std::uint32_t>(number(16, 4));
  header.pixels = LittleEndian(file, 10, 4);
  if (header.pixels < kFileHeader + header_bytes) return std::nullopt;
  if (!IsKnownKind(header) || !HasRoom(file, header)) return std::nullopt;
  if (!ReadFields(file, header)) return std::nullopt;
  ReadPalette(file, header_bytes, oldest ? 0 : number(32, 4), header);
  return header;
}

const unsigned char* BytesAt(std::string_view file, std::size_t at) {
  return reinterpret_cast<const unsigned char*>(file.data()) + at;
}

void ReadRow(const Header& header, const unsigned char* bytes, std::uint32_t* row) {
  const int width = header.width;
  if (header.bits <= 8) {
    const unsigned most = (1U << header.bits) - 1;
    for (unsigned x = 0, bit = 0; x < static_cast<unsigned>(width); ++x, bit += header.bits) {
      row[x] = header.palette[bytes[bit / 8] >> (8 - header.bits - bit % 8) & most];
    }
  } else if (header.bits == 24) {
    for (int x = 0; x < width; ++x, bytes += 3) {
      row[x] = kOpaque | static_cast<std::uint32_t>(bytes[2] << 16 | bytes[1] << 8 | bytes[0]);
    }
  } else if (header.bits == 32 && header.compression == kPlain) {
    for (int x = 0; x < width; ++x, bytes += 4) {
      row[x] = kOpaque | static_cast<std::uint32_t>(bytes[2] << 16 | bytes[1] << 8 | bytes[0]);
    }
  } else {
    const std::size_t size = header.bits / 8;
    const auto& [red, green, blue] = header.fields;
    for (int x = 0; x < width; ++x, bytes += size) {
      std::uint32_t pixel = 0;
      for (std::size_t i = 0; i < size; ++i) pixel |= std::uint32_t{bytes[i]} << (8 * i);
      row[x] = kOpaque | red.Value(pixel) << 16 | green.Value(pixel) << 8 | blue.Value(pixel);
    }
  }
}

// Run lengths: pairs of a count and colours; a count of 0 leads to the next row (0), the end (1), a
// move right and up (2), or as many colours as the second byte says.
class RunReader {
 public:
  RunReader(std::string_view file, const Header& header, Image& image)
      : header_(header), image_(image), bytes_(file.substr(header.pixels)) {}

  // False when the file ends before the picture does, or writes outside it.
  bool Read() {
    while (at_ + 2 <= bytes_.size()) {
      const unsigned count = Byte(at_), second = Byte(at_ + 1);
      at_ += 2;
      if (count > 0) {
        if (!PutRun(count, second)) return false;
      } else if (second == 0) {
        x_ = 0;
        ++y_;
      } else if (second == 1) {
        return true;
      } else if (second == 2) {
        x_ += Byte(at_);
        y_ += Byte(at_ + 1);
        at_ += 2;
      } else if (!PutColours(second)) {
        return false;
      }
      if (x_ > static_cast<unsigned>(image_.width())) return false;
    }
    const auto width = static_cast<unsigned>(image_.width());
    const auto height = static_cast<unsigned>(image_.height());
    return y_ >= height || (y_ == height - 1 && x_ == width);  // some leave out the last sign
  }

 private:
  unsigned Byte(std::size_t at) const {
    return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
  }
  bool Put(unsigned index) {
    if (x_ >= static_cast<unsigned>(image_.width()) ||
        y_ >= static_cast<unsigned>(image_.height())) {
      return false;
    }
    image_.Set(static_cast<int>(x_), image_.height() - 1 - static_cast<int>(y_),
               header_.palette[index]);
    ++x_;
    return true;
  }
  unsigned Colour(unsigned byte, unsigned i) const {
    return header_.bits == 8 ? byte : i % 2 == 0 ? byte >> 4 : byte & 15;
  }
  bool PutRun(unsigned count, unsigned byte) {
    for (unsigned i = 0; i < count; ++i) {
      if (!Put(Colour(byte, i))) return false;
    }
    return true;
  }
  bool PutColours(unsigned count) {
    const std::size_t size = (count * header_.bits + 15) / 16 * 2;
    if (size > bytes_.size() - at_) return false;
    for (unsigned i = 0; i < count; ++i) {
      if (!Put(Colour(Byte(at_ + i * header_.bits / 8), i))) return false;
    }
    at_ += size;
    return true;
  }

  const Header& header_;
  Image& image_;
  std::string_view bytes_;
  std::size_t at_ = 0;
  unsigned x_ = 0, y_ = 0;  // from the lower left
};

}  // namespace

std::optional<Image> ReadBmp(std::string_view file) {
  const auto header = ReadHeader(file);
  if (!header) return std::nullopt;
  if (header->compression == kRuns8 || header->compression == kRuns4) {
    Image image(header->width, header->height, header->palette[0]);
    if (!RunReader(file, *header, image).Read()) return std::nullopt;
    return image;
  }
  Image image(header->width, header->height);
  for (int y = 0; y < header->height; ++y) {
    const int row = header->from_top ? y : header->height - 1 - y;
    ReadRow(*header, BytesAt(file, header->pixels + header->RowBytes() * static_cast<unsigned>(y)),
            image.Row(row).data());
  }
  return image;
}

std::size_t EndOfWrittenBmp(std::string_view file) {
  const auto header = ReadHeader(file);
  const bool written =
      header && header->compression == kPlain && header->bits >= 24 && header->pixels == kHeaders;
  return written ? kHeaders + header->RowBytes() * static_cast<unsigned>(header->height) : 0;
}

std::string WriteBmp(const Image& image, BmpDepth depth, std::size_t spare) {
  std::string file;
  if (image.empty() || std::max(image.width(), image.height()) > kLongestBmpSide) return file;
  const std::size_t bytes = depth == BmpDepth::k24Bits ? 3 : 4;
  const auto width = static_cast<std::size_t>(image.width());
  const auto height = static_cast<std::size_t>(image.height());
  const std::size_t row_bytes = (width * bytes + 3) / 4 * 4;
  const std::size_t pixel_bytes = row_bytes * height;
  file.reserve(kHeaders + pixel_bytes + spare);
  file = "BM";
  for (const std::size_t number :
       {kHeaders + pixel_bytes, std::size_t{0}, kHeaders, kUsualHeader, width, height}) {
    AppendLittleEndian(file, number, 4);
  }
  AppendLittleEndian(file, 1, 2);  // planes
  AppendLittleEndian(file, bytes * 8, 2);
  constexpr std::size_t kPerMetre = 3780;  // 96 to the inch
  for (const std::size_t number :
       {std::size_t{kPlain}, pixel_bytes, kPerMetre, kPerMetre, std::size_t{0}, std::size_t{0}}) {
    AppendLittleEndian(file, number, 4);
  }
  std::string line(row_bytes + 1, '\0');  // one byte more, because four are written of each pixel
  for (int y = image.height() - 1; y >= 0; --y) {
    const std::uint32_t* const row = image.Row(y).data();
    if (bytes == 4) {
      file.append(reinterpret_cast<const char*>(row), row_bytes);
      continue;
    }
    for (std::size_t x = 0; x < width; ++x) std::memcpy(line.data() + 3 * x, row + x, 4);
    std::memset(line.data() + 3 * width, 0, row_bytes - 3 * width);
    file.append(line, 0, row_bytes);
  }
  return file;
}

}  // namespace varnel
