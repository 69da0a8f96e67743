// Timings of the boards' engines.
#include <vector>

#include "base/bmp.h"
#include "base/canvas.h"
#include "bench/micro.h"
#include "bench/strokes.h"

namespace varnel::bench {
namespace {

Image FullHd() {
  Image board(kStrokeBoard.width, kStrokeBoard.height, Canvas::kWhiteBoard);
  for (int y = 0; y < board.height(); ++y) {
    for (int x = y % 7; x < board.width(); x += 7) {
      board.Set(x, y, 0xFF000000U | static_cast<std::uint32_t>(x * y));
    }
  }
  return board;
}

double DrawStrokes(double width) {
  Canvas canvas(Canvas::kWhiteBoard);
  canvas.Grow(kStrokeBoard);
  const std::vector<PointF> points = StrokePoints();
  return 1e6 / static_cast<double>(points.size() - 1) *
         SecondsFor([&] { DrawStroke(canvas, points, width); });
}

double SaveBoard() {
  const Image board = FullHd();
  return 1e3 * SecondsFor([&] { Keep(WriteBmp(board, BmpDepth::k24Bits)); });
}

double LoadBoard() {
  const std::string file = WriteBmp(FullHd(), BmpDepth::k24Bits);
  return 1e3 * SecondsFor([&] { Keep(ReadBmp(file)); });
}

}  // namespace

std::vector<Probe> BoardProbes() {
  return {{"stroke segment, 2 px wide", "us", [] { return DrawStrokes(2); }},
          {"stroke segment, 6 px wide", "us", [] { return DrawStrokes(6); }},
          {"stroke segment, 20 px wide", "us", [] { return DrawStrokes(20); }},
          {"board of 1920 x 1080 px to a bitmap in memory", "ms", SaveBoard},
          {"and back", "ms", LoadBoard}};
}

}  // namespace varnel::bench
