// Steps of change to a picture that can be taken back and made again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

#include "base/geometry.h"
#include "base/image.h"

namespace varnel {

// A part of a picture as it was; a part of one value throughout keeps only that.
class CanvasTile {
 public:
  // `pixels`: those of `area`, in rows that begin `stride` pixels after each other.
  CanvasTile(const Rect& area, const std::uint32_t* pixels, std::size_t stride);
  // What `image` shows in `area`, which must lie inside.
  CanvasTile(const Rect& area, const Image& image);

  const Rect& area() const { return area_; }
  std::size_t bytes() const { return sizeof(*this) + pixels_.capacity() * sizeof(std::uint32_t); }
  bool Shows(const Image& image) const;
  // Puts the pixels back into `image`, which must hold the area.
  void PutInto(Image& image) const;

 private:
  std::span<const std::uint32_t> Row(int y, std::vector<std::uint32_t>& buffer) const;

  Rect area_;
  std::vector<std::uint32_t> pixels_;
};

// Remembers up to kMostSteps steps and kMostBytes, the newest always whatever its size: the oldest
// are forgotten first.
class CanvasHistory {
 public:
  static constexpr std::size_t kMostSteps = 50;
  static constexpr std::size_t kMostBytes = 64U << 20;

  // A new step changed what `before` shows; parts that `image` shows unchanged are left out, and
  // when nothing is left there is no step. What had been taken back is forgotten.
  void Add(std::vector<CanvasTile> before, const Image& image);
  void Forget();

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  std::size_t bytes() const { return bytes_; }

  // Takes the newest step back, or makes the last one that was taken back again, and returns what
  // that changed; empty when there is none. `image` may have grown since, but not shrunk.
  Rect Undo(Image& image) { return Swap(undo_, redo_, image); }
  Rect Redo(Image& image) { return Swap(redo_, undo_, image); }

 private:
  using Step = std::vector<CanvasTile>;
  Rect Swap(std::deque<Step>& from, std::deque<Step>& to, Image& image);
  void ForgetOldest(std::deque<Step>& steps);

  std::deque<Step> undo_;  // newest last
  std::deque<Step> redo_;
  std::size_t bytes_ = 0;
};

}  // namespace varnel
