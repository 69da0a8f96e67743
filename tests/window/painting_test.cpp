// Painting by the platform: surfaces, text, and windows that paint themselves.
#include <random>

#include "base/image.h"
#include "tests/window/window_aid.h"
#include "theme/text_painter_win.h"
#include "win/windows/painted_window.h"

namespace varnel {
namespace {

class Painting : public ::testing::Test {
 protected:
  static constexpr Size kSize{160, 60};

  void Draw(Surface& surface, bool halo) {
    FillRectangle(surface.dc(), {0, 0, kSize.width, kSize.height}, RGB(160, 160, 160));
    PutImage(surface, {-10, 20}, Image(80, 60, 0xFF3070C0));
    TextStyle style;
    style.font = {L"Tahoma", 28, false};
    style.ground = 0xA0A0A0;
    style.colour = halo ? kWhite : kBlack;
    style.theme = 0x2060A0;
    EXPECT_EQ(WritingOf(style).halo.has_value(), halo);
    PaintText(ui_, surface, {4, 4, 150, 56}, L"Tuesday", style);
    FrameRectangle(surface.dc(), {0, 0, kSize.width, kSize.height}, RGB(1, 2, 3));
  }

  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
};

TEST_F(Painting, APartShowsWhatTheWholeShowsThere) {
  std::mt19937 random(3);
  const auto any = [&](int low, int high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  for (const bool halo : {false, true}) {
    Surface whole(kSize);
    Draw(whole, halo);
    for (int round = 0; round < 40; ++round) {
      const Rect part = RectAt({any(-20, 150), any(-20, 50)}, Size{any(1, 100), any(1, 60)});
      Surface partial(kSize, part);
      Draw(partial, halo);
      Surface target(kSize);
      partial.CopyTo(target.dc(), {0, 0});
      for (int i = 0; i < kSize.width * kSize.height; ++i) {
        const bool wanted = part.Contains({i % kSize.width, i / kSize.width});
        ASSERT_EQ(target.pixels()[i] & 0xFFFFFF, wanted ? whole.pixels()[i] & 0xFFFFFF : 0u)
            << i % kSize.width << ',' << i / kSize.width;
      }
    }
  }
}

TEST_F(Painting, TextStaysInItsBoxAndIsSeenOnAnyGround) {
  std::mt19937 random(4);
  for (int round = 0; round < 60; ++round) {
    const Colour ground = static_cast<Colour>(random() & 0xFFFFFF);
    Surface surface(kSize);
    FillRectangle(surface.dc(), {0, 0, kSize.width, kSize.height}, ground);
    const std::uint32_t plain = surface.pixels()[0];
    TextStyle style;
    style.font = {L"Tahoma", round % 2 ? 12 : 30, false};
    style.ground = ground;
    style.theme = static_cast<Colour>(random() & 0xFFFFFF);
    style.colour = ground;  // could not be seen at all
    style.prefer_ink = !IsLarge(style);
    const Rect box{30, 10, 130, 50};
    PaintText(ui_, surface, box, L"wwwwwwwwwwwwwwwwwwwwwwwwwwww", style);
    int changed = 0;
    for (int i = 0; i < kSize.width * kSize.height; ++i) {
      if (surface.pixels()[i] == plain) continue;
      ++changed;
      ASSERT_TRUE(box.Contains({i % kSize.width, i / kSize.width}));
    }
    EXPECT_GT(changed, 100);
  }
}

TEST_F(Painting, FiguresDoNotJumpInAFontThatGivesThemDifferentWidths) {
  // Where the colon ends, after narrow figures and after wide ones.
  const auto colon = [&](const std::wstring& text, Align align) {
    Surface surface(kSize);
    TextStyle style;
    style.font = {L"Small Fonts", 28, false};
    style.readable = false;
    style.tabular = true;
    style.align = align;
    PaintText(ui_, surface, {0, 0, kSize.width, kSize.height}, text, style);
    int last = 0;
    for (int i = 0; i < kSize.width * kSize.height; ++i) {
      if ((surface.pixels()[i] & 0xFFFFFF) != 0) last = std::max(last, i % kSize.width);
    }
    return last;
  };
  for (const Align align : {Align::kLeft, Align::kCentre, Align::kRight}) {
    EXPECT_EQ(colon(L"11:", align), colon(L"00:", align));
  }
}

class Striped : public PaintedWindow {
 public:
  explicit Striped(Ui& ui) : PaintedWindow(ui) {
    Creation creation;
    creation.class_name = L"VarnelStriped";
    creation.style = WS_POPUP | WS_VISIBLE;
    creation.place = {60, 60, 260, 160};
    EXPECT_TRUE(Create(creation));
  }
  std::vector<Rect> wanted;

 private:
  void Paint(Surface& surface) override { wanted.push_back(surface.wanted()); }
};

TEST_F(Painting, AWindowPaintsNoMoreThanIsInvalid) {
  Striped window(ui_);
  ::UpdateWindow(window.handle());
  window.wanted.clear();
  const RECT strip = {10, 80, 190, 100};
  ::InvalidateRect(window.handle(), &strip, FALSE);
  ::UpdateWindow(window.handle());
  EXPECT_EQ(window.wanted, std::vector<Rect>({{10, 80, 190, 100}}));
}

}  // namespace
}  // namespace varnel
