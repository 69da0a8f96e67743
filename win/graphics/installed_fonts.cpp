#include "win/graphics/installed_fonts.h"

#include <windows.h>

#include <algorithm>

#include "win/system/handles.h"

namespace varnel {
namespace {

int CALLBACK Collect(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM faces) {
  reinterpret_cast<std::vector<std::wstring>*>(faces)->push_back(font->lfFaceName);
  return 1;
}

}  // namespace

std::vector<std::wstring> InstalledFontFaces() {
  std::vector<std::wstring> faces;
  const UniqueDc dc(::CreateCompatibleDC(nullptr));
  LOGFONTW every = {};
  every.lfCharSet = DEFAULT_CHARSET;
  ::EnumFontFamiliesExW(dc.get(), &every, &Collect, reinterpret_cast<LPARAM>(&faces), 0);
  // A face is listed once for every script that it has; the exact order groups those.
  std::ranges::sort(faces);
  faces.erase(std::ranges::unique(faces).begin(), faces.end());
  std::ranges::stable_sort(faces, [](const std::wstring& left, const std::wstring& right) {
    return ::lstrcmpiW(left.c_str(), right.c_str()) < 0;
  });
  return faces;
}

}  // namespace varnel
