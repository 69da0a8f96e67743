// The system's dialog for choosing a colour.
#pragma once

#include <windows.h>

#include <array>
#include <optional>

namespace varnel {

class ColourPicker {
 public:
  // Opens the dialog with `start` chosen and waits. Nothing when the user cancelled.
  std::optional<COLORREF> Pick(HWND owner, COLORREF start);

 private:
  std::array<COLORREF, 16> own_colours_ = {};  // that the user mixed; the dialog asks for as many
};

}  // namespace varnel
