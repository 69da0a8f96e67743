// The ink of a month as it is kept in the month's file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/image.h"
#include "base/ink_block.h"
#include "widgets/boards/month.h"

namespace varnel {

// The most bytes that a month's file may have.
inline constexpr std::size_t kMostMonthBytes = std::size_t{512} << 20;

// On a sheet of kSheetSize.
using MonthInk = Ink;

// A sheet without ink.
MonthInk NoInk(int first_weekday);

// The ink in a month's file. It comes on the grid that begins with `first_weekday`, unless some of
// it would have no place there. A bitmap without ink is taken as a picture of the grid, whatever
// its size, and becomes the ink itself. Nothing where the file is neither.
std::optional<MonthInk> MonthInkIn(std::string_view file, Month month, int first_weekday);

// The month's file: `picture` as any program shows it, with the ink after it.
std::string MonthFileBytes(const Image& picture, const MonthInk& ink);
// The same for this program alone, as small as it can be.
std::string MonthDraftBytes(const MonthInk& ink);

// The ink on a grid with another first weekday: that of a day goes with the day, that of a day's
// name with the name. Nothing where a day with ink would not be in the grid any more.
std::optional<MonthInk> Rearranged(const MonthInk& ink, Month month, int first_weekday);

}  // namespace varnel
