// The captions of the stopwatch's and the countdown's text buttons.
#pragma once

#include <string_view>

namespace varnel::button_captions {

inline constexpr std::wstring_view kStart = L" Start ";
inline constexpr std::wstring_view kStop = L" Stop ";
inline constexpr std::wstring_view kPause = L" Pause ";
inline constexpr std::wstring_view kLapse = L" Lapse ";
inline constexpr std::wstring_view kResume = L" Resume ";
inline constexpr std::wstring_view kReset = L" Reset ";

}  // namespace varnel::button_captions
