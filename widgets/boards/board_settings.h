// The settings of the whiteboard.
#pragma once

#include "base/settings.h"

namespace varnel {

inline constexpr Setting kBoardPen{L"frmWBDwg\\Details", L"pen-Color-index", L"0"};
inline constexpr Setting kBoardPenWidth{L"frmWBDwg\\Details", L"pen-width-index", L"2"};
inline constexpr Setting kBoardList{L"frmWBDwg\\Details", L"Show-Side-Bar", L"True"};
inline constexpr Setting kBoardTextSize{L"frmWBDwg\\Details", L"text-size", L"18"};  // points

inline constexpr int kTextSizes[] = {8, 10, 12, 14, 18, 24, 36, 48, 72};  // in points

}  // namespace varnel
