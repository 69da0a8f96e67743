#include "tests/rig/picture.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "tests/rig/files.h"
#include "tests/rig/forms.h"
#include "tests/rig/wait.h"
#include "win/graphics/pictures.h"
#include "win/system/com.h"
#include "win/system/handles.h"

namespace varnel::rig {
namespace {

COLORREF ColourOf(std::uint32_t pixel) {
  return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
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

Picture Picture::FromFile(const std::wstring& path) {
  const ComApartment apartment;
  const Image image = DecodePicture(FileBytes(path).value_or("")).image;
  Picture picture;
  picture.size_ = {image.width(), image.height()};
  for (const std::uint32_t pixel : image.All()) picture.pixels_.push_back(pixel & 0xFFFFFF);
  return picture;
}

COLORREF Picture::At(Point point) const {
  const bool inside =
      point.x >= 0 && point.y >= 0 && point.x < size_.width && point.y < size_.height;
  return inside ? ColourOf(pixels_[static_cast<std::size_t>(point.y * size_.width + point.x)]) : 0;
}

int Picture::CountNear(const Rect& part, COLORREF colour, int tolerance) const {
  int count = 0;
  for (int y = std::max(part.top, 0); y < std::min(part.bottom, size_.height); ++y) {
    for (int x = std::max(part.left, 0); x < std::min(part.right, size_.width); ++x) {
      count += AreNear(At({x, y}), colour, tolerance);
    }
  }
  return count;
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

bool AreNear(COLORREF one, COLORREF other, int tolerance) {
  const auto near_in = [&](int shift) {
    return std::abs(static_cast<int>(one >> shift & 0xFF) -
                    static_cast<int>(other >> shift & 0xFF)) <= tolerance;
  };
  return near_in(0) && near_in(8) && near_in(16);
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

}  // namespace varnel::rig
