#include "tools/shots/sample_boards.h"

#include <cmath>
#include <numbers>
#include <vector>

#include "base/bmp.h"
#include "base/canvas.h"
#include "tests/rig/files.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_names.h"
#include "widgets/boards/pens.h"

namespace varnel::shots {
namespace {

class Sketch {
 public:
  explicit Sketch(Size size) : canvas_(Canvas::kWhiteBoard) { canvas_.Grow(size); }

  void Line(int pen, double width, const std::vector<PointF>& points) {
    canvas_.BeginStroke(OpaquePixel(PenAt(pen).colour), {width, width});
    for (std::size_t i = 1; i < points.size(); ++i) canvas_.DrawSegment(points[i - 1], points[i]);
    canvas_.EndStroke();
  }
  void Wave(int pen, double width, PointF from, double length, double height) {
    std::vector<PointF> points;
    for (int i = 0; i <= 60; ++i) {
      points.push_back({from.x + length * i / 60, from.y - height * std::sin(i * 0.11)});
    }
    Line(pen, width, points);
  }
  void Ring(int pen, double width, PointF centre, double radius) {
    std::vector<PointF> points;
    for (int i = 0; i <= 60; ++i) {
      const double turn = i * std::numbers::pi / 30;
      points.push_back({centre.x + radius * std::cos(turn), centre.y + radius * std::sin(turn)});
    }
    Line(pen, width, points);
  }
  void Save(const std::wstring& program_folder, const std::wstring& name) const {
    rig::WriteBytes(program_folder + std::wstring(kWhiteboardFolder.below_program) + name +
                        std::wstring(kBoardEnding),
                    WriteBmp(canvas_.pixels(), BmpDepth::k24Bits));
  }

 private:
  Canvas canvas_;
};

}  // namespace

void PlantBoards(const std::wstring& program_folder) {
  Sketch garden({270, 180});
  garden.Wave(5, 3, {16, 66}, 170, 40);
  garden.Line(0, 2, {{20, 104}, {110, 104}, {110, 164}, {20, 164}, {20, 104}});
  garden.Line(1, 2, {{124, 134}, {192, 134}, {181, 126}});
  garden.Line(1, 2, {{192, 134}, {181, 142}});
  garden.Ring(2, 3, {228, 40}, 18);
  garden.Wave(4, 3, {204, 152}, 56, 9);
  garden.Save(program_folder, L"Garden plan");
  Sketch shopping({400, 250});
  for (int i = 0; i < 4; ++i) {
    shopping.Wave(2, 3, {40, 50.0 + 48 * i}, 130.0 + 40 * (i % 3), 9);
    shopping.Line(0, 2, {{18, 44.0 + 48 * i}, {23, 50.0 + 48 * i}, {31, 36.0 + 48 * i}});
  }
  shopping.Save(program_folder, L"Shopping");
  Sketch black({500, 280});
  black.Wave(0, 6, {60, 180}, 360, 90);
  black.Save(program_folder, L"pic_20261120_101512");
  Sketch green({300, 220});
  green.Wave(4, 6, {40, 120}, 220, -70);
  green.Wave(6, 3, {40, 160}, 220, 40);
  green.Save(program_folder, L"pic_20261118_090233");
}

}  // namespace varnel::shots
