// Names of boards.
#pragma once

#include <string>

#include "base/wall_clock.h"

namespace varnel {

// The name of a board that is saved for the first time at `time`: "pic_20240131_154502".
std::wstring NewBoardName(const LocalTime& time);

inline constexpr std::wstring_view kBoardEnding = L".bmp";
inline constexpr std::wstring_view kNewBoard = L"New Board";

}  // namespace varnel
