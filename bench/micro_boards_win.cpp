// Timings of boards against what the platform does by itself, by turns in one run.
#include <windows.h>

#include <span>

#include "base/bmp.h"
#include "bench/micro.h"
#include "bench/on_disk.h"
#include "bench/strokes.h"
#include "win/files/disk_files.h"
#include "win/graphics/surface.h"

namespace varnel::bench {
namespace {

double SegmentAgainstGdi(int width) {
  const std::vector<PointF> points = StrokePoints();
  Canvas canvas(Canvas::kWhiteBoard);
  canvas.Grow(kStrokeBoard);
  Surface surface(kStrokeBoard);
  const UniquePen pen(::CreatePen(PS_SOLID, width, RGB(0, 119, 255)));
  const SelectedObject selected(surface.dc(), pen.get());
  // Turns so short that they are seldom interrupted by other programs.
  constexpr std::size_t kPoints = 40;
  std::size_t turn = 0;
  std::span<const PointF> part;
  const auto smooth = [&] {
    part = std::span(points).subspan(turn++ % 49 * kPoints, kPoints);
    DrawStroke(canvas, part, width);
  };
  const auto plain = [&] {
    for (std::size_t i = 1; i < part.size(); ++i) {
      ::MoveToEx(surface.dc(), static_cast<int>(part[i - 1].x), static_cast<int>(part[i - 1].y),
                 nullptr);
      ::LineTo(surface.dc(), static_cast<int>(part[i].x), static_cast<int>(part[i].y));
    }
    ::GdiFlush();
  };
  return Ratio(smooth, plain, 2000);
}

// With all that saving does, the picture made and the old file kept until the new one is on the
// disk, against writing the same bytes over a file.
double SaveAgainstPlainWrite(bool flushed) {
  Image board(kStrokeBoard.width, kStrokeBoard.height, Canvas::kWhiteBoard);
  const std::wstring path = TemporaryPath(L"varnel bench board.bmp");
  const std::wstring plain = TemporaryPath(L"varnel bench plain.bmp");
  DiskFiles files;
  const std::string bytes = WriteBmp(board, BmpDepth::k24Bits);
  const double ratio = Ratio([&] { files.Replace(path, WriteBmp(board, BmpDepth::k24Bits)); },
                             [&] { WritePlainly(plain, bytes, flushed); });
  files.Remove(path);
  files.Remove(plain);
  return ratio;
}

}  // namespace

std::vector<Probe> BoardPlatformProbes() {
  return {{"stroke segment against GDI, 2 px", "x", [] { return SegmentAgainstGdi(2); }},
          {"stroke segment against GDI, 3 px", "x", [] { return SegmentAgainstGdi(3); }},
          {"stroke segment against GDI, 6 px", "x", [] { return SegmentAgainstGdi(6); }},
          {"stroke segment against GDI, 20 px", "x", [] { return SegmentAgainstGdi(20); }},
          {"full-HD board saved, against a plain write", "x",
           [] { return SaveAgainstPlainWrite(false); }},
          {"full-HD board saved, against a plain write that is flushed too", "x",
           [] { return SaveAgainstPlainWrite(true); }},
          {"10,000 boards listed and sorted, against FindFirstFile", "x",
           [] { return ListAgainstFindFile(L".bmp", {L".bmp"}); }}};
}

}  // namespace varnel::bench
