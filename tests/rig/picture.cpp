#include "tests/rig/picture.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "tests/rig/files.h"
#include "tests/rig/forms.h"
#include "tests/rig/wait.h"
#include "win/handles.h"

namespace varnel::rig {
namespace {

COLORREF ColourOf(std::uint32_t pixel) {
  return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

bool IsNear(COLORREF one, COLORREF other, int tolerance) {
  for (int shift = 0; shift < 24; shift += 8) {
    const int difference =
        static_cast<int>(one >> shift & 0xFF) - static_cast<int>(other >> shift & 0xFF);
    if (std::abs(difference) > tolerance) return false;
  }
  return true;
}

// 32 bits a pixel, rows from the top down.
BITMAPINFOHEADER HeaderFor(Size size) {
  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = size.width;
  header.biHeight = -size.height;
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biCompression = BI_RGB;
  return header;
}

template <class Record>
std::string_view BytesOf(const Record& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

}  // namespace

Picture::Picture(const Rect& part) {
  if (part.empty()) return;
  size_ = {part.width(), part.height()};
  pixels_.resize(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height));
  BITMAPINFO info = {};
  info.bmiHeader = HeaderFor(size_);
  HDC screen = ::GetDC(nullptr);
  {
    const UniqueDc memory(::CreateCompatibleDC(screen));
    void* bits = nullptr;
    const UniqueBitmap bitmap(::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const SelectedObject selected(memory.get(), bitmap.get());
    ::BitBlt(memory.get(), 0, 0, size_.width, size_.height, screen, part.left, part.top, SRCCOPY);
    ::GdiFlush();
    const auto* first = static_cast<const std::uint32_t*>(bits);
    std::transform(first, first + pixels_.size(), pixels_.begin(),
                   [](std::uint32_t pixel) { return pixel & 0xFFFFFF; });
  }
  ::ReleaseDC(nullptr, screen);
}

COLORREF Picture::At(Point point) const {
  if (!RectAt({0, 0}, size_).Contains(point)) return 0;
  return ColourOf(
      pixels_[static_cast<std::size_t>(point.y) * static_cast<std::size_t>(size_.width) +
              static_cast<std::size_t>(point.x)]);
}

int Picture::Count(COLORREF colour, int tolerance) const {
  return static_cast<int>(std::count_if(pixels_.begin(), pixels_.end(), [=](std::uint32_t pixel) {
    return IsNear(ColourOf(pixel), colour, tolerance);
  }));
}

std::map<COLORREF, int> Picture::Colours() const {
  std::map<COLORREF, int> counts;
  for (const std::uint32_t pixel : pixels_) ++counts[ColourOf(pixel)];
  return counts;
}

COLORREF Picture::MainColour() const {
  const std::map<COLORREF, int> counts = Colours();
  const auto most = std::max_element(
      counts.begin(), counts.end(),
      [](const auto& one, const auto& other) { return one.second < other.second; });
  return most == counts.end() ? 0 : most->first;
}

Picture Picture::Part(const Rect& part) const {
  const Rect cut = {std::max(part.left, 0), std::max(part.top, 0),
                    std::min(part.right, size_.width), std::min(part.bottom, size_.height)};
  Picture result;
  if (cut.empty()) return result;
  result.size_ = {cut.width(), cut.height()};
  for (int y = cut.top; y < cut.bottom; ++y) {
    const auto row = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * size_.width;
    result.pixels_.insert(result.pixels_.end(), row + cut.left, row + cut.right);
  }
  return result;
}

bool Picture::Save(const std::wstring& path) const {
  const BITMAPINFOHEADER header = HeaderFor(size_);
  const std::size_t size = pixels_.size() * sizeof(std::uint32_t);
  BITMAPFILEHEADER file = {};
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof file + sizeof header;
  file.bfSize = file.bfOffBits + static_cast<DWORD>(size);
  std::string bytes(BytesOf(file));
  bytes += BytesOf(header);
  bytes.append(reinterpret_cast<const char*>(pixels_.data()), size);
  return WriteBytes(path, bytes);
}

Picture PictureOfScreen() {
  return Picture({0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)});
}

Picture PictureOf(HWND window) {
  return Picture(RectOf(window));
}

Picture StillPictureOf(HWND window, int still) {
  return WaitUntilStill([window] { return PictureOf(window); }, still);
}

int Differences(const Picture& one, const Picture& other) {
  const auto pixels = [](const Picture& picture) {
    return picture.size().width * picture.size().height;
  };
  if (!(one.size() == other.size())) return std::max(pixels(one), pixels(other));
  int count = 0;
  for (int y = 0; y < one.size().height; ++y) {
    for (int x = 0; x < one.size().width; ++x) {
      if (one.At({x, y}) != other.At({x, y})) ++count;
    }
  }
  return count;
}

}  // namespace varnel::rig
