#include "widgets/boards/drawing_board.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/resample.h"

namespace varnel {
namespace {

constexpr double kScaleStep = 1.1;
// Pixels around a place that the filter of a scaled picture may change.
constexpr int kFilterReach = 3;

int Rounded(double place) {
  return static_cast<int>(std::lround(place));
}

}  // namespace

std::wstring_view DrawingBoard::BoardMode() const {
  if (!floating_) return L"DRAW";
  switch (kind_) {
    case FloatKind::kText:
      return L"TEXT";
    case FloatKind::kPicture:
      return L"PICTURE";
    case FloatKind::kIcon:
      break;
  }
  return L"ICON";
}

void DrawingBoard::Load(Image pixels) {
  DropFloat();
  MouseUp();
  drawn_ = {pixels.width(), pixels.height()};
  canvas_.Load(std::move(pixels));
  canvas_.Grow(seen_);
  BoardModified_ = false;
}

void DrawingBoard::LoadEmpty(Size seen) {
  seen_ = {std::clamp(seen.width, 1, Canvas::kLongestSide),
           std::clamp(seen.height, 1, Canvas::kLongestSide)};
  Load(Image(seen_.width, seen_.height, ground_));
  drawn_ = {};
}

void DrawingBoard::Fit(Size seen) {
  seen_ = seen;
  canvas_.Grow(seen);
}

Size DrawingBoard::size() const {
  const Size all = canvas_.size();
  return {std::min(all.width, std::max(seen_.width, drawn_.width)),
          std::min(all.height, std::max(seen_.height, drawn_.height))};
}

Image DrawingBoard::Picture() const {
  const Size part = size();
  if (part == canvas_.size()) return pixels();
  Image picture(part.width, part.height);
  for (int y = 0; y < part.height; ++y) {
    std::ranges::copy(pixels().Row(y).first(static_cast<std::size_t>(part.width)),
                      picture.Row(y).begin());
  }
  return picture;
}

void DrawingBoard::ShowBy(AxisMap across, AxisMap down) {
  across_ = std::move(across);
  down_ = std::move(down);
  scaled_ = true;
}

PointF DrawingBoard::Kept(Point shown) const {
  return {across_.Kept(shown.x + 0.5), down_.Kept(shown.y + 0.5)};
}

Rect DrawingBoard::Shown(const Rect& kept) const {
  if (!scaled_ || kept.empty()) return kept;
  return Inset({static_cast<int>(std::floor(across_.Shown(kept.left))),
                static_cast<int>(std::floor(down_.Shown(kept.top))),
                static_cast<int>(std::ceil(across_.Shown(kept.right))),
                static_cast<int>(std::ceil(down_.Shown(kept.bottom)))},
               -kFilterReach);
}

// As large where the picture is kept as the pen is where it is shown.
PenTip DrawingBoard::TipAt(Point shown) const {
  const AxisMap::Part& across = across_.PartAt(shown.x);
  const AxisMap::Part& down = down_.PartAt(shown.y);
  return {pen_width_ * across.kept_length / across.shown_length,
          pen_width_ * down.kept_length / down.shown_length};
}

Rect DrawingBoard::Changed(const Rect& kept) {
  if (kept.empty()) return kept;
  BoardModified_ = true;
  ++changes_;
  if (kept != Rect{0, 0, pixels().width(), pixels().height()}) {
    drawn_ = {std::max(drawn_.width, kept.right), std::max(drawn_.height, kept.bottom)};
  }
  return Shown(kept);
}

Rect DrawingBoard::SetPen(int index) {
  PenColorIndex_ = index < 0 ? 0 : index;
  return DropFloat();
}

// --- the mouse

Rect DrawingBoard::MouseDown(Point at, BoardButton button) {
  MouseIsDown_ = true;
  if (floating_) {
    if (kind_ == FloatKind::kText && button != BoardButton::kLeft) return {};
    if (kind_ != FloatKind::kText) MouseIsDown_ = false;
    return MergeFloat();
  }
  const bool erases = PenColorIndex_ >= kEraser;
  canvas_.BeginStroke(erases ? ground_ : OpaquePixel(PenAt(PenColorIndex_).colour), TipAt(at));
  last_point_ = Kept(at);
  return Draw(at);
}

Rect DrawingBoard::MouseMove(Point at) {
  if (floating_) return PutFloat({at.x - hold_.x, at.y - hold_.y});
  return canvas_.drawing() ? Draw(at) : Rect{};
}

Rect DrawingBoard::Draw(Point to) {
  const PointF from = std::exchange(last_point_, Kept(to));
  return Changed(canvas_.DrawSegment(from, last_point_));
}

void DrawingBoard::MouseUp() {
  MouseIsDown_ = false;
  canvas_.EndStroke();
}

// --- the object that floats

bool DrawingBoard::BoardInsertObject(FloatKind kind, FloatSource source, const Rect& view) {
  Image image = source(1);
  if (image.empty()) return false;
  MouseUp();
  floating_ = true;
  kind_ = kind;
  source_ = std::move(source);
  picFLOAT_ = std::move(image);
  scale_steps_ = 0;
  hold_ = {picFLOAT_.width() / 2, picFLOAT_.height() / 2};
  corner_ = {(view.left + view.right) / 2 - hold_.x, (view.top + view.bottom) / 2 - hold_.y};
  return true;
}

Rect DrawingBoard::FloatBox() const {
  return floating_ ? RectAt(corner_, {picFLOAT_.width(), picFLOAT_.height()}) : Rect{};
}

Rect DrawingBoard::PutFloat(Point corner) {
  if (!floating_ || corner == corner_) return {};
  const Rect former = FloatBox();
  corner_ = corner;
  return Union(former, FloatBox());
}

Rect DrawingBoard::MoveFloat(int across, int down) {
  hold_ = {hold_.x - across, hold_.y - down};
  return PutFloat({corner_.x + across, corner_.y + down});
}

Rect DrawingBoard::ScaleFloat(int steps) {
  if (!floating_) return {};
  const double scale = std::pow(kScaleStep, scale_steps_ + steps);
  if (scale < kLeastScale || scale > kMostScale) return {};
  Image image = source_(scale);
  if (image.empty()) return {};
  const Rect former = FloatBox();
  const Point held{corner_.x + hold_.x, corner_.y + hold_.y};
  hold_ = {hold_.x * image.width() / picFLOAT_.width(),
           hold_.y * image.height() / picFLOAT_.height()};
  corner_ = {held.x - hold_.x, held.y - hold_.y};
  picFLOAT_ = std::move(image);
  scale_steps_ += steps;
  return Union(former, FloatBox());
}

Rect DrawingBoard::MergeFloat() {
  if (!floating_) return {};
  const Rect box = FloatBox();
  Rect kept = box;
  if (scaled_) {
    kept = {Rounded(across_.Kept(box.left)), Rounded(down_.Kept(box.top)),
            Rounded(across_.Kept(box.right)), Rounded(down_.Kept(box.bottom))};
    if (kind_ == FloatKind::kIcon) {
      // An icon is made anew, as large as it is kept: it may be shown larger later.
      const double enlarged = std::max(static_cast<double>(kept.width()) / box.width(),
                                       static_cast<double>(kept.height()) / box.height());
      Image sharp = source_(std::pow(kScaleStep, scale_steps_) * enlarged);
      if (!sharp.empty()) picFLOAT_ = std::move(sharp);
    }
    picFLOAT_ = Resampled(picFLOAT_, {kept.width(), kept.height()});
  }
  const Rect changed = Changed(canvas_.Merge(picFLOAT_, {kept.left, kept.top}));
  DropFloat();
  return Union(box, changed);
}

Rect DrawingBoard::DropFloat() {
  const Rect box = FloatBox();
  floating_ = false;
  picFLOAT_ = Image();
  source_ = nullptr;
  return box;
}

// --- the whole

Rect DrawingBoard::Clear() {
  return Changed(canvas_.Clear());
}

Rect DrawingBoard::Undo() {
  return Changed(canvas_.Undo());
}

Rect DrawingBoard::Redo() {
  return Changed(canvas_.Redo());
}

}  // namespace varnel
