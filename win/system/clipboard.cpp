#include "win/system/clipboard.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "win/graphics/pictures.h"

namespace varnel {
namespace {

constexpr int kOpenTries = 10;
constexpr DWORD kOpenPauseMs = 10;

// The clipboard, open for the length of a scope.
class OpenedClipboard {
 public:
  // Programs that watch the clipboard look into it whenever it changes, each for a moment.
  explicit OpenedClipboard(HWND owner) {
    for (int attempt = 1; !(open_ = ::OpenClipboard(owner) != FALSE); ++attempt) {
      if (attempt == kOpenTries) return;
      ::Sleep(kOpenPauseMs);
    }
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() {
    if (open_) ::CloseClipboard();
  }
  explicit operator bool() const { return open_; }

 private:
  bool open_ = false;
};

UINT PngFormat() {
  return ::RegisterClipboardFormatW(L"PNG");
}

bool PutBytes(UINT format, std::string_view bytes) {
  HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  bool taken = false;
  if (void* target = memory ? ::GlobalLock(memory) : nullptr) {
    std::ranges::copy(bytes, static_cast<char*>(target));
    ::GlobalUnlock(memory);
    taken = ::SetClipboardData(format, memory) != nullptr;
  }
  // What the clipboard took belongs to it.
  if (memory && !taken) ::GlobalFree(memory);
  return taken;
}

bool PutText(const std::wstring& text) {
  return PutBytes(CF_UNICODETEXT, {reinterpret_cast<const char*>(text.c_str()),
                                   (text.size() + 1) * sizeof(wchar_t)});
}

// Rows from the bottom, as not every program takes others.
std::string DeviceIndependentBitmap(const Image& image) {
  BITMAPINFO info = BitmapInfoOf(image);
  info.bmiHeader.biHeight = image.height();
  std::string bytes(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  for (int y = image.height() - 1; y >= 0; --y) {
    const auto row = image.Row(y);
    bytes.append(reinterpret_cast<const char*>(row.data()), row.size_bytes());
  }
  return bytes;
}

bool PutPicture(const Image& picture) {
  const bool bitmap =
      PutBytes(CF_DIB, DeviceIndependentBitmap(OnGround(picture, RGB(255, 255, 255))));
  const std::string file = EncodePng(picture);
  return bitmap && (file.empty() || PutBytes(PngFormat(), file));
}

// Calls `use` with the bytes of that format, when the clipboard holds it and it is not larger.
template <class Use>
void WithBytes(UINT format, std::size_t most, Use use) {
  HANDLE memory = ::GetClipboardData(format);
  const std::size_t size = memory ? ::GlobalSize(memory) : 0;
  if (size == 0 || size > most) return;
  if (const void* source = ::GlobalLock(memory)) {
    use(std::string_view(static_cast<const char*>(source), size));
    ::GlobalUnlock(memory);
  }
}

// The colour table or masks between the header and the pixels, in bytes.
std::size_t TableBytes(const BITMAPINFOHEADER& header) {
  const bool masks = header.biCompression == BI_BITFIELDS && header.biSize == sizeof header;
  const bool table = header.biBitCount >= 1 && header.biBitCount <= 8;
  const std::size_t most = table ? std::size_t{1} << header.biBitCount : 0;
  const std::size_t colours = header.biClrUsed ? header.biClrUsed : most;
  return (masks ? 3 * sizeof(DWORD) : 0) + colours * sizeof(RGBQUAD);
}

// A file holds the same with one more header before it.
Image PictureOfBitmap(std::string_view bitmap) {
  BITMAPINFOHEADER header = {};
  if (bitmap.size() < sizeof header) return {};
  std::memcpy(&header, bitmap.data(), sizeof header);
  const std::size_t pixels = header.biSize + TableBytes(header);
  if (header.biSize < sizeof header || pixels > bitmap.size()) return {};
  BITMAPFILEHEADER file = {};
  file.bfType = 0x4D42;  // "BM"
  file.bfSize = static_cast<DWORD>(sizeof file + bitmap.size());
  file.bfOffBits = static_cast<DWORD>(sizeof file + pixels);
  std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
  bytes += bitmap;
  return DecodePicture(bytes).image;
}

Image PictureOfMetafile(HENHMETAFILE metafile) {
  std::string bytes(::GetEnhMetaFileBits(metafile, 0, nullptr), '\0');
  ::GetEnhMetaFileBits(metafile, static_cast<UINT>(bytes.size()),
                       reinterpret_cast<BYTE*>(bytes.data()));
  return DecodePicture(bytes).image;
}

}  // namespace

bool CopyContent(HWND owner, const ClipboardContent& content) {
  const OpenedClipboard clipboard(owner);
  if (!clipboard || !::EmptyClipboard()) return false;
  // The richest first: it is what a program takes that has no wish of its own.
  bool all = content.rtf.empty() || PutBytes(RtfFormat(), content.rtf + '\0');
  all = (content.picture.empty() || PutPicture(content.picture)) && all;
  return (content.text.empty() || PutText(content.text)) && all;
}

bool CopyText(HWND owner, const std::wstring& text) {
  return CopyContent(owner, {text});
}

std::wstring PastedText(HWND owner, std::size_t most) {
  std::wstring text;
  const OpenedClipboard clipboard(owner);
  if (!clipboard) return text;
  WithBytes(CF_UNICODETEXT, SIZE_MAX, [&](std::string_view bytes) {
    const auto* units = reinterpret_cast<const wchar_t*>(bytes.data());
    const std::size_t held = bytes.size() / sizeof(wchar_t);
    text.assign(units, std::find(units, units + std::min(held, most), L'\0'));
  });
  return text;
}

std::string PastedRtf(HWND owner, std::size_t most) {
  std::string rtf;
  const OpenedClipboard clipboard(owner);
  if (!clipboard) return rtf;
  WithBytes(RtfFormat(), most, [&rtf](std::string_view bytes) {
    // Some end it by a zero; its memory may be larger than it.
    rtf.assign(bytes.substr(0, bytes.find_last_not_of('\0') + 1));
  });
  return rtf;
}

Image PastedPicture(HWND owner) {
  Image picture;
  const OpenedClipboard clipboard(owner);
  if (!clipboard) return picture;
  WithBytes(PngFormat(), kMostPictureBytes,
            [&picture](std::string_view bytes) { picture = DecodePicture(bytes).image; });
  if (picture.empty()) {
    WithBytes(CF_DIB, kMostPictureBytes,
              [&picture](std::string_view bytes) { picture = PictureOfBitmap(bytes); });
  }
  if (picture.empty()) {
    if (HANDLE metafile = ::GetClipboardData(CF_ENHMETAFILE)) {
      picture = PictureOfMetafile(static_cast<HENHMETAFILE>(metafile));
    }
  }
  return picture;
}

std::vector<std::wstring> PastedFiles(HWND owner) {
  const OpenedClipboard clipboard(owner);
  HANDLE files = clipboard ? ::GetClipboardData(CF_HDROP) : nullptr;
  return files ? DroppedPaths(static_cast<HDROP>(files)) : std::vector<std::wstring>();
}

ClipboardOffer OfferOfClipboard() {
  const auto holds = [](UINT format) { return ::IsClipboardFormatAvailable(format) != FALSE; };
  return {holds(CF_UNICODETEXT), holds(RtfFormat()),
          holds(PngFormat()) || holds(CF_DIB) || holds(CF_ENHMETAFILE), holds(CF_HDROP)};
}

std::vector<std::wstring> DroppedPaths(HDROP drop) {
  constexpr UINT kCount = 0xFFFFFFFF;
  std::vector<std::wstring> paths(::DragQueryFileW(drop, kCount, nullptr, 0));
  for (UINT i = 0; i < paths.size(); ++i) {
    paths[i].resize(::DragQueryFileW(drop, i, nullptr, 0) + 1);
    paths[i].resize(::DragQueryFileW(drop, i, paths[i].data(), static_cast<UINT>(paths[i].size())));
  }
  return paths;
}

UINT RtfFormat() {
  return ::RegisterClipboardFormatW(L"Rich Text Format");
}

}  // namespace varnel
