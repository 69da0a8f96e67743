// The settings of the calendar.
#pragma once

#include "base/settings.h"

namespace varnel {

inline constexpr Setting kCalendarPen{L"frmCALwg\\Details", L"pen-Color-index", L"0"};
inline constexpr Setting kCalendarPenWidth{L"frmCALwg\\Details", L"pen-width-index", L"2"};
inline constexpr Setting kCalendarTextSize{L"frmCALwg\\Details", L"text-size", L"10"};  // points
inline constexpr Setting kCalendarTextWrap{L"frmCALwg\\Details", L"text-wrap", L"1"};   // check box

}  // namespace varnel
