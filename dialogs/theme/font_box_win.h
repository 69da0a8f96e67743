// The boxes in which the theme dialog has fonts chosen: a list of faces below a field to type in.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace varnel {

// Every face that a theme can have, each once, in the user's alphabetical order.
std::vector<std::wstring> OfferedFontFaces();

class FontBox {
 public:
  // Takes up the dialog's combo box, which is empty.
  void Attach(HWND box, const std::vector<std::wstring>& faces);
  // Shows that face, be it in the list or not.
  void Show(const std::wstring& face);
  // The face that is chosen now that the box has sent the notification `code`; nothing when that
  // chooses none. What is typed counts once it is the whole name of a font.
  std::optional<std::wstring> Chosen(int code) const;

 private:
  // The place in the list, or CB_ERR.
  LRESULT Find(const std::wstring& face) const;

  HWND box_ = nullptr;
};

}  // namespace varnel
