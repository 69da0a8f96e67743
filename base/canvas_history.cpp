#include "base/canvas_history.h"

#include <algorithm>
#include <utility>

namespace varnel {
namespace {

std::size_t BytesOf(const std::vector<CanvasTile>& tiles) {
  std::size_t bytes = 0;
  for (const CanvasTile& tile : tiles) bytes += tile.bytes();
  return bytes;
}

template <class Pixels>
auto Part(Pixels row, const Rect& area) {
  return row.subspan(static_cast<std::size_t>(area.left), static_cast<std::size_t>(area.width()));
}

}  // namespace

CanvasTile::CanvasTile(const Rect& area, const std::uint32_t* pixels, std::size_t stride)
    : area_(area) {
  const auto width = static_cast<std::size_t>(area.width());
  const auto height = static_cast<std::size_t>(area.height());
  const auto row = [=](std::size_t y) { return std::span(pixels + y * stride, width); };
  std::uint32_t differences = 0;
  for (std::size_t y = 0; y < height && differences == 0; ++y) {
    // A whole row without a look in between, which is several pixels at once.
    for (const std::uint32_t pixel : row(y)) differences |= pixel ^ *pixels;
  }
  if (differences == 0) {
    pixels_.assign(1, *pixels);
    return;
  }
  pixels_.reserve(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    pixels_.insert(pixels_.end(), row(y).begin(), row(y).end());
  }
}

CanvasTile::CanvasTile(const Rect& area, const Image& image)
    : CanvasTile(area, image.Row(area.top).data() + area.left,
                 static_cast<std::size_t>(image.width())) {}

std::span<const std::uint32_t> CanvasTile::Row(int y, std::vector<std::uint32_t>& buffer) const {
  const auto width = static_cast<std::size_t>(area_.width());
  if (pixels_.size() > 1) {
    return std::span(pixels_).subspan(static_cast<std::size_t>(y - area_.top) * width, width);
  }
  buffer.assign(width, pixels_.front());
  return buffer;
}

bool CanvasTile::Shows(const Image& image) const {
  std::vector<std::uint32_t> buffer;
  for (int y = area_.top; y < area_.bottom; ++y) {
    if (!std::ranges::equal(Row(y, buffer), Part(image.Row(y), area_))) return false;
  }
  return true;
}

void CanvasTile::PutInto(Image& image) const {
  std::vector<std::uint32_t> buffer;
  for (int y = area_.top; y < area_.bottom; ++y) {
    std::ranges::copy(Row(y, buffer), Part(image.Row(y), area_).begin());
  }
}

void CanvasHistory::Add(std::vector<CanvasTile> before, const Image& image) {
  std::erase_if(before, [&](const CanvasTile& tile) { return tile.Shows(image); });
  if (before.empty()) return;
  while (!redo_.empty()) ForgetOldest(redo_);
  bytes_ += BytesOf(before);
  undo_.push_back(std::move(before));
  while (undo_.size() > kMostSteps || (bytes_ > kMostBytes && undo_.size() > 1)) {
    ForgetOldest(undo_);
  }
}

void CanvasHistory::Forget() {
  undo_.clear();
  redo_.clear();
  bytes_ = 0;
}

void CanvasHistory::ForgetOldest(std::deque<Step>& steps) {
  bytes_ -= BytesOf(steps.front());
  steps.pop_front();
}

Rect CanvasHistory::Swap(std::deque<Step>& from, std::deque<Step>& to, Image& image) {
  Rect changed;
  if (from.empty()) return changed;
  const Step old = std::move(from.back());
  from.pop_back();
  Step replaced;
  replaced.reserve(old.size());
  for (const CanvasTile& tile : old) {
    replaced.emplace_back(tile.area(), image);
    tile.PutInto(image);
    changed = Union(changed, tile.area());
  }
  bytes_ += BytesOf(replaced);
  bytes_ -= BytesOf(old);
  to.push_back(std::move(replaced));
  return changed;
}

}  // namespace varnel
