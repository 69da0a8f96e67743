#include "base/ink_block.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <utility>

#include "base/bmp.h"
#include "base/little_endian.h"

namespace varnel {
namespace {

// docs/formats.md describes the block.
constexpr std::string_view kMark = "VarnInk\x01";  // the last byte is the version
constexpr std::size_t kHeader = 32;
constexpr std::size_t kChecked = 24;  // bytes of the header before its checksum
constexpr std::uint32_t kLongestRun = 0x8000;
constexpr std::uint32_t kSame = 0x8000;  // the bit of a count that says: one pixel, repeated
constexpr std::size_t kCountBytes = 2;
constexpr std::size_t kPixelBytes = 4;

bool IsPremultiplied(std::uint32_t pixel) {
  const std::uint32_t most = pixel >> 24;
  return (pixel & 0xFF) <= most && (pixel >> 8 & 0xFF) <= most && (pixel >> 16 & 0xFF) <= most;
}

void AppendRun(std::string& runs, std::span<const std::uint32_t> pixels, bool same) {
  const auto count = static_cast<std::uint32_t>(pixels.size() - 1);
  AppendLittleEndian(runs, same ? count | kSame : count, kCountBytes);
  for (const std::uint32_t pixel : same ? pixels.first(1) : pixels) {
    AppendLittleEndian(runs, pixel, kPixelBytes);
  }
}

std::size_t SameFrom(std::span<const std::uint32_t> pixels, std::size_t first) {
  std::size_t end = first + 1;
  while (end < pixels.size() && pixels[end] == pixels[first] && end - first < kLongestRun) ++end;
  return end - first;
}

}  // namespace

std::string InkRuns(const Image& sheet) {
  constexpr std::size_t kWorthARun = 3;
  const std::span<const std::uint32_t> pixels = sheet.All();
  std::string runs;
  std::size_t begin = 0;  // of the pixels that differ from each other
  for (std::size_t at = 0; at < pixels.size();) {
    const std::size_t same = SameFrom(pixels, at);
    const std::size_t different = at - begin;
    if (different > 0 && (same >= kWorthARun || different + same > kLongestRun)) {
      AppendRun(runs, pixels.subspan(begin, different), false);
      begin = at;
    }
    if (same >= kWorthARun) {
      AppendRun(runs, pixels.subspan(at, same), true);
      begin = at + same;
    }
    at += same;
  }
  if (begin < pixels.size()) AppendRun(runs, pixels.subspan(begin), false);
  return runs;
}

std::optional<Image> SheetFromRuns(std::string_view runs, int width, int height) {
  if (std::min(width, height) < 1 || std::max(width, height) > kLongestBmpSide) return std::nullopt;
  const std::uint64_t wanted = static_cast<std::uint64_t>(width) * static_cast<unsigned>(height);
  if (wanted > runs.size() / (kCountBytes + kPixelBytes) * kLongestRun) return std::nullopt;
  Image sheet(width, height);
  const std::span<std::uint32_t> pixels = sheet.All();
  std::size_t done = 0;
  for (std::size_t at = 0; at < runs.size();) {
    const auto sign = static_cast<std::uint32_t>(LittleEndian(runs, at, kCountBytes));
    const bool same = (sign & kSame) != 0;
    const std::size_t count = (sign & ~kSame) + 1;
    const std::size_t bytes = same ? kPixelBytes : count * kPixelBytes;
    at += kCountBytes;
    if (at > runs.size() || bytes > runs.size() - at || count > pixels.size() - done) {
      return std::nullopt;
    }
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t place = same ? at : at + i * kPixelBytes;
      const auto pixel = static_cast<std::uint32_t>(LittleEndian(runs, place, kPixelBytes));
      if (!IsPremultiplied(pixel)) return std::nullopt;
      if (same) {
        std::ranges::fill(pixels.subspan(done, count), pixel);
        break;
      }
      pixels[done + i] = pixel;
    }
    done += count;
    at += bytes;
  }
  if (done != pixels.size()) return std::nullopt;
  return sheet;
}

// FNV-1a over words of eight bytes, whose upper half is folded into the lower so that every bit
// reaches all others.
std::uint64_t Checksum(std::string_view bytes, std::uint64_t before) {
  std::uint64_t sum = before ^ 0xCBF29CE484222325;
  const auto add = [&sum](std::uint64_t word) {
    sum = (sum ^ word) * 0x100000001B3;
    sum ^= sum >> 32;
  };
  std::size_t at = 0;
  for (; at + 8 <= bytes.size(); at += 8) {
    std::uint64_t word;
    std::memcpy(&word, bytes.data() + at, 8);
    add(word);
  }
  add(LittleEndian(bytes, at, 8));
  add(bytes.size());
  return sum;
}

std::string WithInk(std::string bitmap, const Ink& ink) {
  const Image& sheet = ink.sheet;
  if (sheet.empty() || std::max(sheet.width(), sheet.height()) > kLongestBmpSide) return bitmap;
  if (EndOfWrittenBmp(bitmap) != bitmap.size() || bitmap.empty()) return bitmap;
  const std::string runs = InkRuns(sheet);
  std::string header(kMark);
  AppendLittleEndian(header, static_cast<unsigned>(sheet.width()), 4);
  AppendLittleEndian(header, static_cast<unsigned>(sheet.height()), 4);
  AppendLittleEndian(header, static_cast<unsigned>(ink.first_weekday), 4);
  AppendLittleEndian(header, runs.size(), 4);
  AppendLittleEndian(header, Checksum(runs, Checksum(header, Checksum(bitmap))), 8);
  return std::move(bitmap) + header + runs;
}

std::optional<Ink> InkIn(std::string_view file) {
  const std::size_t end = EndOfWrittenBmp(file);
  if (end == 0 || file.size() - end < kHeader) return std::nullopt;
  const std::string_view header = file.substr(end, kHeader);
  const std::string_view runs = file.substr(end + kHeader);
  if (!header.starts_with(kMark)) return std::nullopt;
  const std::uint64_t weekday = LittleEndian(header, 16, 4);
  if (LittleEndian(header, 20, 4) != runs.size() || weekday > 6) return std::nullopt;
  const std::uint64_t sum =
      Checksum(runs, Checksum(header.substr(0, kChecked), Checksum(file.substr(0, end))));
  if (sum != LittleEndian(header, kChecked, 8)) return std::nullopt;
  const std::uint64_t width = LittleEndian(header, 8, 4), height = LittleEndian(header, 12, 4);
  if (std::max(width, height) > static_cast<unsigned>(kLongestBmpSide)) return std::nullopt;
  auto sheet = SheetFromRuns(runs, static_cast<int>(width), static_cast<int>(height));
  if (!sheet) return std::nullopt;
  return Ink{std::move(*sheet), static_cast<int>(weekday)};
}

}  // namespace varnel
