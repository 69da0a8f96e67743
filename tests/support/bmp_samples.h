// Bitmaps of every kind that is read, all of the same picture.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/image.h"
#include "base/little_endian.h"

namespace varnel::test {

// 3 x 2: black white black over white black white.
inline Image SamplePicture() {
  Image image(3, 2, 0xFF000000);
  for (const Point place : {Point{1, 0}, {0, 1}, {2, 1}}) {
    image.Set(place.x, place.y, 0xFFFFFFFF);
  }
  return image;
}

struct BmpSample {
  std::string_view name;
  unsigned bits;
  unsigned compression;
  std::string_view pixels;  // from the bottom
  int height = 2;
  std::string_view masks = {};
};

inline std::string BmpOf(const BmpSample& sample) {
  std::string palette;
  if (sample.bits <= 8) {
    palette = std::string(4, '\0') + std::string("\xFF\xFF\xFF\0", 4);
  }
  std::string file = "BM";
  const std::size_t pixels = 54 + palette.size() + sample.masks.size();
  for (const std::size_t number : {pixels + sample.pixels.size(), std::size_t{0}, pixels}) {
    AppendLittleEndian(file, number, 4);
  }
  for (const int number : {40, 3, sample.height}) {
    AppendLittleEndian(file, static_cast<unsigned>(number), 4);
  }
  AppendLittleEndian(file, 1, 2);
  AppendLittleEndian(file, sample.bits, 2);
  for (const std::size_t number : {std::size_t{sample.compression}, std::size_t{0}, std::size_t{0},
                                   std::size_t{0}, palette.size() / 4, std::size_t{0}}) {
    AppendLittleEndian(file, number, 4);
  }
  return file.append(sample.masks).append(palette).append(sample.pixels);
}

// 12-byte header and a palette of three bytes a colour.
inline std::string OldestBmp() {
  using namespace std::string_view_literals;
  return std::string(
      "BM\x28\0\0\0\0\0\0\0\x20\0\0\0\x0C\0\0\0\3\0\2\0\1\0\1\0"
      "\0\0\0\xFF\xFF\xFF\xA0\0\0\0\x40\0\0\0"sv);
}

inline std::vector<std::pair<std::string, std::string>> AllBmpSamples() {
  using namespace std::string_view_literals;
  const BmpSample samples[] = {
      {"1 bit", 1, 0, "\xA0\0\0\0\x40\0\0\0"sv},
      {"1 bit from the top", 1, 0, "\x40\0\0\0\xA0\0\0\0"sv, -2},
      {"4 bits", 4, 0, "\x10\x10\0\0\x01\0\0\0"sv},
      {"8 bits", 8, 0, "\1\0\1\0\0\1\0\0"sv},
      {"runs of 8 bits", 8, 1, "\1\1\1\0\1\1\0\0\0\3\0\1\0\0\0\1"sv},
      {"runs of 8 bits, with a move", 8, 1, "\1\1\0\2\1\0\1\1\0\0\0\2\1\0\1\1\0\1"sv},
      {"runs of 4 bits", 4, 2, "\3\x10\0\0\3\x01\0\1"sv},
      {"16 bits", 16, 0, "\xFF\x7F\0\0\xFF\x7F\0\0\0\0\xFF\x7F\0\0\0\0"sv},
      {"16 bits, fields", 16, 3, "\xFF\xFF\0\0\xFF\xFF\0\0\0\0\xFF\xFF\0\0\0\0"sv, 2,
       "\0\xF8\0\0\xE0\x07\0\0\x1F\0\0\0"sv},
      {"24 bits", 24, 0, "\xFF\xFF\xFF\0\0\0\xFF\xFF\xFF\0\0\0\0\0\0\xFF\xFF\xFF\0\0\0\0\0\0"sv},
      {"32 bits", 32, 0, "\xFF\xFF\xFF\0\0\0\0\0\xFF\xFF\xFF\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0\0\0"sv},
      {"32 bits, fields", 32, 3,
       "\0\xFF\xFF\xFF\0\0\0\0\0\xFF\xFF\xFF\0\0\0\0\0\xFF\xFF\xFF\0\0\0\0"sv, 2,
       "\0\0\0\xFF\0\0\xFF\0\0\xFF\0\0"sv},
  };
  std::vector<std::pair<std::string, std::string>> all = {{"oldest header", OldestBmp()}};
  for (const BmpSample& sample : samples) all.emplace_back(sample.name, BmpOf(sample));
  return all;
}

// Gives `file` to `read` with every byte of its first 512 set to 0, FF and 80 in turn, and cut at
// every length.
template <class Read>
void DamageInEveryWay(const std::string& file, Read read) {
  for (std::size_t length = 0; length < file.size(); ++length) read(file.substr(0, length), true);
  for (std::size_t at = 0; at < file.size() && at < 512; ++at) {
    for (const char byte : {'\0', '\xFF', '\x80'}) {
      std::string damaged = file;
      damaged[at] = byte;
      read(damaged, false);
    }
  }
}

}  // namespace varnel::test
