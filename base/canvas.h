// A picture that is drawn on by hand: strokes, objects laid on it, clearing, and taking back.
#pragma once

#include <cstdint>
#include <vector>

#include "base/canvas_history.h"
#include "base/capsule.h"
#include "base/geometry.h"
#include "base/image.h"
#include "base/pixel_mix.h"

namespace varnel {

// Pixels are premultiplied: each colour is already weakened by its opacity and never more than it.
// So an opaque board and a transparent sheet are one thing with another ground, and a pen whose
// pixel is 0 takes ink away. Every change says which pixels it may have changed. A picture keeps
// all its pixels when what shows it gets smaller: it only ever grows.
class Canvas {
 public:
  static constexpr int kLongestSide = 8192;
  static constexpr std::uint32_t kWhiteBoard = 0xFFFFFFFF;
  static constexpr std::uint32_t kClearSheet = 0;

  explicit Canvas(std::uint32_t ground) : ground_(ground) {}

  const Image& pixels() const { return pixels_; }
  Size size() const { return {pixels_.width(), pixels_.height()}; }

  // Shows `pixels` from now on; what was drawn before cannot be taken back any more. Sides beyond
  // kLongestSide are cut off.
  Rect Load(Image pixels);
  // Makes the picture at least as large as `least`, with ground where nothing was, but no side
  // longer than kLongestSide. A stroke that is being drawn goes on as a step of its own.
  Rect Grow(Size least);

  // A stroke is one step of undo. Its segments never darken each other: every pixel is mixed once,
  // by the largest share that any of them covers. Segments outside a stroke draw nothing.
  void BeginStroke(std::uint32_t pixel, PenTip tip);
  // In pixels; the centre of the first pixel is {0.5, 0.5}. Equal points leave a dot.
  Rect DrawSegment(PointF from, PointF to);
  void EndStroke();
  bool drawing() const { return drawing_; }

  // Lays `object` (premultiplied) over the picture with its upper left at `corner`; what lies
  // outside is left out. One step, which ends a stroke.
  Rect Merge(const Image& object, Point corner);
  // Back to ground; one step, which ends a stroke.
  Rect Clear();

  // The last step back, or the last that was taken back again; empty when there is none. An open
  // stroke ends first, and is the step that Undo takes back.
  Rect Undo();
  Rect Redo();
  bool CanUndo() const { return history_.CanUndo() || drawing_; }
  bool CanRedo() const { return history_.CanRedo() && !drawing_; }

 private:
  static constexpr int kTile = Capsule::kSquare;
  static constexpr int kTilesAcross = kLongestSide / kTile;

  static constexpr std::size_t kTilePixels = std::size_t{kTile} * kTile;

  Rect Whole() const { return {0, 0, pixels_.width(), pixels_.height()}; }
  static std::size_t IndexAt(int across, int down);
  Rect TileArea(int across, int down) const;
  std::vector<CanvasTile> TilesOf(const Rect& area) const;
  std::size_t TileOfStroke(int across, int down);
  void DrawInTile(const Capsule& capsule, const Capsule::RowReach& rows, int across, int down);
  void MixRow(std::size_t tile, int y, int left, int right);
  void KeepStroke();

  std::uint32_t ground_;
  Image pixels_;
  CanvasHistory history_;
  bool drawing_ = false;
  std::uint32_t pen_pixel_ = 0;
  PenTip pen_tip_;
  // The tiles of the picture that the stroke has come to, and of each all pixels: as they were
  // then, and what the stroke covers of them. Kept from stroke to stroke, as memory is slow to be
  // had.
  struct StrokeTile {
    Rect area;
    Rect touched;  // what of it the stroke may have changed
  };
  std::vector<StrokeTile> stroke_;
  std::vector<std::uint32_t> before_;
  std::vector<std::uint8_t> covered_;
  std::vector<int> stroke_index_;  // of each tile of the largest picture; 0: not come to yet, else
                                   // one more than its place in `stroke_`
};

}  // namespace varnel
