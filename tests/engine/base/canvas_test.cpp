#include "base/canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <span>
#include <utility>
#include <vector>

namespace varnel {
namespace {

constexpr std::uint32_t kBlack = 0xFF000000;

// How much of a pixel lies within the shape, by many samples.
double ExactShare(PointF from, PointF to, PenTip tip, int x, int y) {
  constexpr int kSide = 16;
  const double stretch = tip.width / tip.height;
  const double dx = to.x - from.x, dy = (to.y - from.y) * stretch;
  const double squared = dx * dx + dy * dy;
  int inside = 0;
  for (int i = 0; i < kSide * kSide; ++i) {
    const double px = x + (i % kSide + 0.5) / kSide - from.x;
    const double py = (y + (i / kSide + 0.5) / kSide - from.y) * stretch;
    const double at = squared > 0 ? std::clamp((px * dx + py * dy) / squared, 0.0, 1.0) : 0;
    const double off_x = px - at * dx, off_y = py - at * dy;
    inside += off_x * off_x + off_y * off_y <= tip.width * tip.width / 4;
  }
  return static_cast<double>(inside) / (kSide * kSide);
}

struct Error {
  double sum = 0;
  int pixels = 0;  // that an edge crosses
  double ink = 0;
  double exact_ink = 0;
};

void Compare(PointF from, PointF to, PenTip tip, Error& error) {
  Canvas sheet(Canvas::kClearSheet);
  sheet.Grow({60, 60});
  sheet.BeginStroke(kBlack, tip);
  const Rect changed = sheet.DrawSegment(from, to);
  const Rect seen = Inset(changed, -2);
  for (int y = seen.top; y < seen.bottom; ++y) {
    for (int x = seen.left; x < seen.right; ++x) {
      const double share = (sheet.pixels().At(x, y) >> 24) / 255.0;
      const double exact = ExactShare(from, to, tip, x, y);
      if (!changed.Contains({x, y})) EXPECT_EQ(exact, 0) << x << ' ' << y;
      error.ink += share;
      error.exact_ink += exact;
      if ((share == 0 && exact == 0) || (share == 1 && exact == 1)) continue;
      error.sum += std::fabs(share - exact);
      ++error.pixels;
    }
  }
}

TEST(Canvas, LineCoversWhatItShould) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(22, 38), around(-9, 9);
  for (const PenTip tip : {PenTip{1, 1}, {2, 2}, {3, 3}, {6, 6}, {20, 20}, {3, 5}, {7, 4}}) {
    Error error;
    for (int i = 0; i < 12; ++i) {
      const PointF from{place(random), place(random)};
      const PointF to{from.x + around(random), from.y + around(random)};
      Compare(from, i == 0 ? from : to, tip, error);
    }
    EXPECT_LT(error.sum / error.pixels, 0.01) << tip.width << " x " << tip.height;
    EXPECT_NEAR(error.ink / error.exact_ink, 1, 0.01) << tip.width << " x " << tip.height;
  }
}

// Whole pictures for steps, whole rows for segments.
class PlainCanvas {
 public:
  PlainCanvas(Size size, std::uint32_t ground)
      : ground_(ground), pixels_(size.width, size.height, ground) {}

  const Image& pixels() const { return pixels_; }
  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }

  void Stroke(std::uint32_t pixel, PenTip tip, const std::vector<PointF>& points) {
    Mask covered(pixels_.width(), pixels_.height());
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
      const Capsule capsule(points[i], points[i + 1], tip);
      for (int y = 0; y < covered.height(); ++y) {
        for (int x = 0; x < covered.width(); ++x) {
          covered.Set(x, y, std::max(covered.At(x, y), capsule.CoverageAt(x, y)));
        }
      }
    }
    Change(
        [&](int x, int y, std::uint32_t old) { return MixPixels(old, pixel, covered.At(x, y)); });
  }
  void Merge(const Image& object, Point corner) {
    Change([&](int x, int y, std::uint32_t old) {
      return PixelOver(old, object.At(x - corner.x, y - corner.y));
    });
  }
  void Clear() {
    Change([&](int, int, std::uint32_t) { return ground_; });
  }
  void Undo() { Swap(undo_, redo_); }
  void Redo() { Swap(redo_, undo_); }

 private:
  template <class Rule>
  void Change(Rule rule) {
    Image changed = pixels_;
    for (int y = 0; y < pixels_.height(); ++y) {
      for (int x = 0; x < pixels_.width(); ++x) changed.Set(x, y, rule(x, y, pixels_.At(x, y)));
    }
    if (changed == pixels_) return;
    redo_.clear();
    undo_.push_back(std::exchange(pixels_, std::move(changed)));
    if (undo_.size() > CanvasHistory::kMostSteps) undo_.erase(undo_.begin());
  }
  void Swap(std::vector<Image>& from, std::vector<Image>& to) {
    if (from.empty()) return;
    to.push_back(std::exchange(pixels_, from.back()));
    from.pop_back();
  }

  std::uint32_t ground_;
  Image pixels_;
  std::vector<Image> undo_, redo_;
};

// What changed must lie within what was said to have changed.
void ExpectOnlyWithin(const Rect& changed, const Image& before, const Image& after) {
  for (int y = 0; y < after.height(); ++y) {
    for (int x = 0; x < after.width(); ++x) {
      ASSERT_TRUE(changed.Contains({x, y}) || before.At(x, y) == after.At(x, y)) << x << ' ' << y;
    }
  }
}

Image RandomObject(std::mt19937& random) {
  Image object(1 + static_cast<int>(random() % 30), 1 + static_cast<int>(random() % 30));
  for (std::uint32_t& pixel : object.All()) {
    const std::uint32_t opacity = random() % 3 == 0 ? random() % 256 : random() % 2 * 255;
    pixel = MixPixels(0, 0xFF000000 | random() % 0x1000000, opacity);
  }
  return object;
}

void DoTheSameTenThousandTimes(std::uint32_t ground) {
  std::mt19937 random(11);
  Canvas canvas(ground);
  canvas.Grow({70, 40});
  PlainCanvas plain({70, 40}, ground);
  const auto place = [&] { return static_cast<double>(random() % 3200) / 32 - 15; };
  for (int i = 0; i < 5000 && !testing::Test::HasFailure(); ++i) {
    const Image before = canvas.pixels();
    const unsigned choice = random() % 16;
    Rect changed;
    if (choice < 7) {
      const std::uint32_t pixel = random() % 4 == 0 ? ground : kBlack | random() % 0x1000000;
      const PenTip tip{1.0 + random() % 9, 1.0 + random() % 9};
      std::vector<PointF> points(2 + random() % 4, {place(), place()});
      for (PointF& point : std::span(points).subspan(random() % 2)) point = {place(), place()};
      canvas.BeginStroke(pixel, tip);
      for (std::size_t at = 0; at + 1 < points.size(); ++at) {
        changed = Union(changed, canvas.DrawSegment(points[at], points[at + 1]));
      }
      if (random() % 2 == 0) canvas.EndStroke();  // otherwise what comes next ends it
      plain.Stroke(pixel, tip, points);
    } else if (choice < 9) {
      const Image object = RandomObject(random);
      const Point corner{static_cast<int>(random() % 100) - 20,
                         static_cast<int>(random() % 60) - 15};
      changed = canvas.Merge(object, corner);
      plain.Merge(object, corner);
    } else if (choice < 10) {
      changed = canvas.Clear();
      plain.Clear();
    } else if (choice < 14) {
      changed = canvas.Undo();
      plain.Undo();
    } else {
      changed = canvas.Redo();
      plain.Redo();
    }
    ASSERT_TRUE(canvas.pixels() == plain.pixels()) << i << " by choice " << choice;
    ExpectOnlyWithin(changed, before, canvas.pixels());
    if (!canvas.drawing()) {
      EXPECT_EQ(canvas.CanUndo(), plain.CanUndo());
      EXPECT_EQ(canvas.CanRedo(), plain.CanRedo());
    }
  }
}

TEST(Canvas, DrawsMergesAndTakesBackAsAPlainModelOnABoard) {
  DoTheSameTenThousandTimes(Canvas::kWhiteBoard);
}

TEST(Canvas, DrawsMergesAndTakesBackAsAPlainModelOnASheet) {
  DoTheSameTenThousandTimes(Canvas::kClearSheet);
}

TEST(Canvas, KeepsItsPixelsWhenItGrowsAndTakesBackWhatWasDrawnBefore) {
  Canvas board(Canvas::kWhiteBoard);
  board.Grow({100, 50});
  board.BeginStroke(kBlack, {4, 4});
  board.DrawSegment({95, 45}, {99, 49});
  EXPECT_EQ(board.Grow({80, 90}), (Rect{0, 0, 100, 90}));
  EXPECT_EQ(board.Grow({10, 10}), Rect{});
  EXPECT_EQ(board.pixels().At(97, 47), kBlack);
  board.DrawSegment({50, 85}, {50, 85});  // the same stroke
  EXPECT_EQ(board.pixels().At(50, 85), kBlack);
  board.Undo();
  board.Undo();
  EXPECT_FALSE(board.CanUndo());
  EXPECT_EQ(board.pixels(), Image(100, 90, Canvas::kWhiteBoard));
  board.Redo();
  EXPECT_EQ(board.pixels().At(97, 47), kBlack);
  EXPECT_EQ(board.Grow({9000, 9000}).width(), Canvas::kLongestSide);
}

TEST(Canvas, ForgetsTheOldestStepsBeyondItsMemory) {
  Canvas board(Canvas::kWhiteBoard);
  board.Grow({1600, 1200});  // 7.3 MB, but a step on plain ground takes hardly any
  Image noise(1600, 1200);
  std::mt19937 random(3);
  for (std::uint32_t& pixel : noise.All()) pixel = kBlack | random() % 0x1000000;
  for (int i = 0; i < 20; ++i) board.Merge(noise, {-i, 0});
  int steps = 0;
  for (; board.CanUndo(); ++steps) board.Undo();
  EXPECT_EQ(steps, 8);
}

TEST(Canvas, IsNotLedAstrayByPlacesThatAreNone) {
  Canvas board(Canvas::kWhiteBoard);
  EXPECT_EQ(board.DrawSegment({1, 1}, {2, 2}), Rect{});
  board.Grow({64, 64});
  board.BeginStroke(kBlack, {NAN, -4});
  EXPECT_EQ(board.DrawSegment({NAN, 3}, {5, 5}), Rect{});
  board.BeginStroke(kBlack, {2, 2});
  EXPECT_EQ(board.DrawSegment({3, 3}, {INFINITY, 5}), Rect{});
  board.DrawSegment({-1e300, 32.5}, {1e300, 32.5});
  EXPECT_EQ(board.pixels().At(5, 32), kBlack);
  EXPECT_EQ(board.Merge(Image(4, 4, kBlack), {2'147'483'647, -2'147'483'647}), Rect{});
  EXPECT_EQ(board.Merge(Image(), {0, 0}), Rect{});
}

}  // namespace
}  // namespace varnel
