#include "win/windows/colour_picker.h"

#include <commdlg.h>

#include "win/system/late_function.h"

namespace varnel {

std::optional<COLORREF> ColourPicker::Pick(HWND owner, COLORREF start) {
  auto* choose = LateFunction<BOOL WINAPI(CHOOSECOLORW*)>(L"comdlg32.dll", "ChooseColorW");
  CHOOSECOLORW request = {};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.rgbResult = start;
  request.lpCustColors = own_colours_.data();
  request.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
  if (!choose || !choose(&request)) return std::nullopt;
  return request.rgbResult;
}

}  // namespace varnel
