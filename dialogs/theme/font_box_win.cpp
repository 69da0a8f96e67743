#include "dialogs/theme/font_box_win.h"

#include "theme/font_list.h"
#include "theme/theme_record.h"
#include "win/graphics/fonts.h"
#include "win/graphics/installed_fonts.h"
#include "win/windows/window_text.h"

namespace varnel {

std::vector<std::wstring> OfferedFontFaces() {
  std::vector<std::wstring> faces = InstalledFontFaces();
  // The program's own symbols have no letters, and are not installed.
  std::erase_if(faces, [](const std::wstring& face) {
    return face == kIconFontName || !IsFontOffered(face);
  });
  return faces;
}

void FontBox::Attach(HWND box, const std::vector<std::wstring>& faces) {
  box_ = box;
  ::SendMessageW(box_, WM_SETREDRAW, FALSE, 0);
  ::SendMessageW(box_, CB_LIMITTEXT, kLongestFontName, 0);
  for (const std::wstring& face : faces) {
    ::SendMessageW(box_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(face.c_str()));
  }
  ::SendMessageW(box_, WM_SETREDRAW, TRUE, 0);
}

void FontBox::Show(const std::wstring& face) {
  if (WindowText(box_) == face) return;
  const LRESULT place = Find(face);
  ::SendMessageW(box_, CB_SETCURSEL, place, 0);
  if (place == CB_ERR) ::SetWindowTextW(box_, face.c_str());
}

std::optional<std::wstring> FontBox::Chosen(int code) const {
  if (code != CBN_EDITCHANGE && code != CBN_SELCHANGE) return std::nullopt;
  const LRESULT place =
      code == CBN_EDITCHANGE ? Find(WindowText(box_)) : ::SendMessageW(box_, CB_GETCURSEL, 0, 0);
  if (place == CB_ERR) return std::nullopt;
  std::wstring face(::SendMessageW(box_, CB_GETLBTEXTLEN, place, 0), L'\0');
  ::SendMessageW(box_, CB_GETLBTEXT, place, reinterpret_cast<LPARAM>(face.data()));
  return face;
}

LRESULT FontBox::Find(const std::wstring& face) const {
  return ::SendMessageW(box_, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(face.c_str()));
}

}  // namespace varnel
