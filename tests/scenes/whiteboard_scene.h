// What the whiteboard's scenes share.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/bmp.h"
#include "base/canvas.h"
#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "widgets/boards/pens.h"

namespace varnel::rig {

inline constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;
inline constexpr int kTolerance = 48;  // of red, for what lies on an edge

inline std::uint32_t PixelOf(int pen) {
  return OpaquePixel(PenAt(pen).colour);
}

// How many pixels have less ink than in `other`, by more than the edge of a line differs.
inline int Missing(const Image& board, const Image& other) {
  int count = 0;
  for (int y = 0; y < other.height(); ++y) {
    for (int x = 0; x < other.width(); ++x) {
      const int red = static_cast<int>(board.At(x, y) >> 16 & 0xFF);
      count += red - static_cast<int>(other.At(x, y) >> 16 & 0xFF) > kTolerance;
    }
  }
  return count;
}

// Around everything that is not white.
inline Rect InkOf(const Image& board) {
  Rect ink;
  for (int y = 0; y < board.height(); ++y) {
    for (int x = 0; x < board.width(); ++x) {
      if (board.At(x, y) != kWhitePixel) ink = Union(ink, {x, y, x + 1, y + 1});
    }
  }
  return ink;
}

class WhiteboardScene : public Scene {
 protected:
  void Start() {
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Whiteboard", L"True");
    ASSERT_TRUE(program().Start(L"/tray"));
    form_ = WaitForForm(program(), L"frmWBDwg");
    ASSERT_TRUE(form_);
    ::SetWindowPos(form_, nullptr, 100, 100, 620, 420, SWP_NOZORDER);
    ASSERT_TRUE(Activate(form_));
    StillPictureOf(form_);  // keys that come while it starts may miss their modifiers
    board_ = RectOf(Part(picMAINBOARD));
  }
  HWND Part(int id) const { return Control(form_, id); }
  std::wstring Name() const { return Text(Part(lblWhiteboard)); }
  int Rows() const { return static_cast<int>(Send(Part(lvwFILES), LVM_GETITEMCOUNT)); }
  void ClickRow(int row) const {
    const Rect list = RectOf(Part(lvwFILES));
    Click({list.left + 20, list.top + 68 * row + 20});
  }

  // Points of the board as points of the screen.
  void Draw(std::vector<Point> points, MouseButton button = MouseButton::kLeft) const {
    for (Point& point : points) point = OnScreen(point);
    Stroke(points, button);
  }
  Point OnScreen(Point point) const { return {board_.left + point.x, board_.top + point.y}; }
  // The colour that the screen shows there.
  Colour Shown(Point at) const {
    return static_cast<Colour>(Picture(RectAt(OnScreen(at), {1, 1})).At({0, 0}));
  }

  std::wstring Folder() { return root().folder() + L"\\wboard"; }
  // The boards that are files, without those in the hidden folder.
  std::vector<std::wstring> Files() {
    std::vector<std::wstring> files = FilesBelow(Folder());
    std::erase_if(files, [](const std::wstring& name) {
      return name.find(L'\\') != std::wstring::npos || !name.ends_with(L".bmp");
    });
    return files;
  }
  Image Saved(const std::wstring& name) {
    const auto bytes = FileBytes(Folder() + L"\\" + name);
    return bytes ? ReadBmp(*bytes).value_or(Image()) : Image();
  }
  bool Put(const std::wstring& name, std::uint32_t pixel) {
    return WriteBytes(Folder() + L"\\" + name, WriteBmp(Image(90, 60, pixel), BmpDepth::k24Bits));
  }
  // Saves and gives what is in the only file then.
  Image Save() {
    const auto before = Files();
    const std::string former =
        before.empty() ? "" : FileBytes(Folder() + L"\\" + before[0]).value();
    Chord({VK_CONTROL, 'S'});
    WaitUntil([&] {
      const auto now = Files();
      return !now.empty() && FileBytes(Folder() + L"\\" + now[0]).value_or("") != former;
    });
    return Files().empty() ? Image() : Saved(Files()[0]);
  }

  HWND form_ = nullptr;
  Rect board_;
};

inline std::vector<Point> Curve() {
  std::vector<Point> points;
  for (int i = 0; i <= 40; ++i) {
    points.push_back({30 + 8 * i, 120 - static_cast<int>(60 * std::sin(i * 0.16))});
  }
  return points;
}

inline Image Drawn(const Image& like, const std::vector<Point>& points, int pen, double width) {
  Canvas canvas(Canvas::kWhiteBoard);
  canvas.Load(Image(like.width(), like.height(), kWhitePixel));
  canvas.BeginStroke(PixelOf(pen), {width, width});
  for (std::size_t i = 1; i < points.size(); ++i) {
    canvas.DrawSegment({points[i - 1].x + 0.5, points[i - 1].y + 0.5},
                       {points[i].x + 0.5, points[i].y + 0.5});
  }
  canvas.EndStroke();
  return canvas.pixels();
}

}  // namespace varnel::rig
