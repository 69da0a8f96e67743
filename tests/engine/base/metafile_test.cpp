// What is let through to the platform's own player of metafiles.
#include "base/metafile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace varnel {
namespace {

// Numbers of four bytes each, low byte first.
std::string Bytes(const std::vector<std::uint32_t>& numbers) {
  std::string bytes;
  for (const std::uint32_t number : numbers) {
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift);
  }
  return bytes;
}

// An inch by half an inch: a header of 88 bytes and the record that ends it.
std::string Enhanced() {
  std::vector<std::uint32_t> numbers(22);
  numbers[0] = 1;
  numbers[1] = 88;
  numbers[8] = 2540;
  numbers[9] = 1270;
  numbers[10] = 0x464D4520;
  numbers[12] = 88 + 20;
  numbers.insert(numbers.end(), {14, 20, 0, 0, 20});
  return Bytes(numbers);
}

// The same size, of a thousand units to the inch; numbers of two bytes.
std::string Placeable() {
  std::string bytes;
  for (const int number :
       {0xCDD7, 0x9AC6, 0,     0,  0, 1000, 500, 1000, 0, 0, 0,  // the first header
        1,      9,      0x300, 12, 0, 0,    3,   0,    0,        // the second
        3,      0,      0}) {                                    // the last record
    bytes += static_cast<char>(number);
    bytes += static_cast<char>(number >> 8);
  }
  return bytes;
}

TEST(MetafileFrame, SizesAreThoseOfTheHeader) {
  const MetafileFrame enhanced = ReadMetafileFrame(Enhanced());
  EXPECT_EQ(enhanced.kind, MetafileKind::kEnhanced);
  EXPECT_EQ(enhanced.size, (Size{96, 48}));
  const MetafileFrame placeable = ReadMetafileFrame(Placeable());
  EXPECT_EQ(placeable.kind, MetafileKind::kPlaceable);
  EXPECT_EQ(placeable.size, (Size{96, 48}));
}

TEST(MetafileFrame, WhatIsCutOffOrBrokenIsRefused) {
  std::minstd_rand random(3);
  for (const std::string& whole : {Enhanced(), Placeable()}) {
    for (std::size_t length = 0; length < whole.size(); ++length) {
      EXPECT_EQ(ReadMetafileFrame(whole.substr(0, length)).kind, MetafileKind::kNone) << length;
    }
    for (int i = 0; i < 20'000; ++i) {
      std::string broken = whole;
      for (int flips = 1 + i % 3; flips > 0; --flips) {
        broken[random() % broken.size()] = static_cast<char>(random());
      }
      const MetafileFrame frame = ReadMetafileFrame(broken);
      if (frame.kind == MetafileKind::kNone) continue;
      EXPECT_GE(frame.size.width, 1);
      EXPECT_GE(frame.size.height, 1);
    }
  }
  std::string endless = Enhanced();
  endless[88] = 15;  // the last record is another
  EXPECT_EQ(ReadMetafileFrame(endless).kind, MetafileKind::kNone);
  endless = Enhanced();
  endless[92] = 0;  // a record without length
  EXPECT_EQ(ReadMetafileFrame(endless).kind, MetafileKind::kNone);
}

}  // namespace
}  // namespace varnel
