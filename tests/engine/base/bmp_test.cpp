#include "base/bmp.h"

#include <gtest/gtest.h>

#include <random>

#include "base/canvas.h"
#include "base/ink_block.h"
#include "tests/support/bmp_samples.h"

namespace varnel {
namespace {

Image Noise(int width, int height, unsigned seed) {
  Image image(width, height);
  std::mt19937 random(seed);
  for (std::uint32_t& pixel : image.All()) pixel = 0xFF000000 | random();
  return image;
}

// Empty stretches, single pixels and areas of one value, of every opacity.
Image RandomSheet(int width, int height, unsigned seed) {
  Image sheet(width, height);
  std::mt19937 random(seed);
  auto pixels = sheet.All();
  for (std::size_t at = 0; at < pixels.size();) {
    const std::uint32_t pixel =
        MixPixels(0, 0xFF000000 | random(), random() % 2 * (random() % 256));
    for (std::size_t run = random() % 3 == 0 ? random() % 90'000 : random() % 4; run > 0; --run) {
      if (at < pixels.size()) pixels[at++] = pixel;
    }
  }
  return sheet;
}

TEST(Bmp, ReadsEveryKind) {
  for (const auto& [name, file] : test::AllBmpSamples()) {
    const auto image = ReadBmp(file);
    ASSERT_TRUE(image) << name;
    EXPECT_EQ(*image, test::SamplePicture()) << name;
    EXPECT_EQ(ReadBmp(file + "more"), image) << name;
  }
}

TEST(Bmp, WritesWhatItReads) {
  for (const int width : {1, 2, 3, 4, 50}) {
    const Image image = Noise(width, 7, 5);
    for (const BmpDepth depth : {BmpDepth::k24Bits, BmpDepth::k32Bits}) {
      const std::string file = WriteBmp(image, depth);
      EXPECT_EQ(ReadBmp(file), image);
      EXPECT_EQ(EndOfWrittenBmp(file), file.size());
      EXPECT_EQ(EndOfWrittenBmp(file + "x"), file.size());
    }
  }
  EXPECT_EQ(WriteBmp(Image(), BmpDepth::k24Bits), "");
  EXPECT_EQ(WriteBmp(Image(8193, 1), BmpDepth::k24Bits), "");
}

TEST(Bmp, SurvivesEveryDamage) {
  for (const auto& sample : test::AllBmpSamples()) {
    test::DamageInEveryWay(sample.second, [&](const std::string& damaged, bool cut) {
      const auto image = ReadBmp(damaged);
      // The sign at the end of run lengths may be missing.
      if (cut && damaged.size() + 2 < sample.second.size()) EXPECT_FALSE(image) << sample.first;
      if (image) EXPECT_LE(std::max(image->width(), image->height()), kLongestBmpSide);
    });
  }
}

TEST(Bmp, RefusesSizesThatTheFileCannotHold) {
  const auto with_size = [](unsigned width, unsigned height, std::string file) {
    std::string sizes;
    AppendLittleEndian(sizes, width, 4);
    AppendLittleEndian(sizes, height, 4);
    return file.replace(18, 8, sizes);
  };
  for (const auto& [name, file] : test::AllBmpSamples()) {
    if (name == "oldest header") continue;
    for (const auto& [width, height] : {std::pair{8192U, 8192U},
                                        {8193U, 1U},
                                        {0U, 2U},
                                        {3U, 0U},
                                        {0x80000000U, 1U},
                                        {3U, 0x80000000U},
                                        {65536U, 65536U}}) {
      EXPECT_FALSE(ReadBmp(with_size(width, height, file))) << name << ' ' << width;
    }
  }
}

TEST(InkBlock, ComesBackBehindAnyBitmap) {
  for (unsigned seed = 0; seed < 30; ++seed) {
    const int width = seed == 0 ? 1 : 40 + static_cast<int>(seed) * 13;
    const Ink ink{RandomSheet(width, seed == 1 ? 1 : 300, seed), static_cast<int>(seed % 7)};
    const std::string bitmap = WriteBmp(Noise(5, 4, seed), BmpDepth::k24Bits);
    const std::string file = WithInk(bitmap, ink);
    EXPECT_EQ(ReadBmp(file), ReadBmp(bitmap));
    const auto read = InkIn(file);
    ASSERT_TRUE(read) << seed;
    EXPECT_EQ(read->sheet, ink.sheet) << seed;
    EXPECT_EQ(read->first_weekday, ink.first_weekday);
  }
  EXPECT_LT(InkRuns(Image(2000, 1500)).size(), 1000U);
  EXPECT_LT(InkRuns(Noise(100, 100, 1)).size(), 40'010U);
}

TEST(InkBlock, IsNotFoundWhereAnythingWasChanged) {
  const std::string bitmap = WriteBmp(Noise(2, 2, 1), BmpDepth::k24Bits);
  const std::string file = WithInk(bitmap, {RandomSheet(9, 9, 4), 1});
  ASSERT_TRUE(InkIn(file));
  EXPECT_FALSE(InkIn(bitmap) || InkIn(file + '\0'));
  test::DamageInEveryWay(file, [&](const std::string& damaged, bool) {
    if (damaged != file) EXPECT_FALSE(InkIn(damaged));
  });
  EXPECT_EQ(WithInk(bitmap, {}), bitmap);
  EXPECT_EQ(WithInk("no bitmap", {Image(2, 2), 0}), "no bitmap");
}

TEST(InkBlock, RunsMustGiveTheSheetExactly) {
  using namespace std::string_view_literals;
  constexpr auto kFour = "\x03\x80\1\2\3\xFF"sv;
  EXPECT_EQ(SheetFromRuns(kFour, 2, 2), Image(2, 2, 0xFF030201));
  for (const auto& runs :
       {"\x02\x80\1\2\3\xFF"sv, "\x04\x80\1\2\3\xFF"sv, "\x03\x80\1\2\3"sv, "\x03\x80\1\2\3\2"sv,
        "\x03\0\0\0\0\0"sv, ""sv, "\x03"sv, "\x03\x80\1\2\3\xFF\0"sv}) {
    EXPECT_FALSE(SheetFromRuns(runs, 2, 2)) << testing::PrintToString(runs);
  }
  EXPECT_FALSE(SheetFromRuns(kFour, 0, 4) || SheetFromRuns(kFour, 8192, 8192) ||
               SheetFromRuns(kFour, -2, -2));
}

}  // namespace
}  // namespace varnel
