// Where the clock's labels stand: the time as large as the panel allows, seconds over AM or PM at
// its right, the date centred below, the whole group in the middle. On a tall panel seconds and AM
// or PM stand below the time, on a broad one the date at the right of all, where that makes the
// time plainly larger.
#pragma once

#include "base/label_place.h"
#include "base/text_measure.h"
#include "widgets/time/clock_engine.h"

namespace varnel {

struct ClockLayout {
  LabelPlace time;     // lblPANECLOCK
  LabelPlace seconds;  // lblSECS
  LabelPlace marker;   // lblSTYLE
  LabelPlace date;     // lbl7Sept2010
  bool operator==(const ClockLayout&) const = default;
};

// The display with "0" for every digit. Displays of one shape have one layout, so a form lays out
// again only when the shape, the panel, its DPI or its font has changed.
ClockDisplay ShapeOf(const ClockDisplay& display);

// Which of a display's dates, for DateOf, goes into a strip of `room` pixels in a font of
// `font_height`, whatever its digits: the longest that does, or none of them.
std::size_t StripDate(const ClockDisplay& display, int room, int font_height,
                      const TextMeasure& measure);

// 0 is the date itself, 1 the first of its shorter forms; empty behind the last.
std::wstring DateOf(const ClockDisplay& display, std::size_t choice);

// Lays out what `display` shows on a panel of `panel` pixels at `dpi`. Nothing comes nearer to an
// edge than 8 px (at 96 dpi), overlaps or is cut off: what would be too small to read is left out,
// the date first, then the seconds, then AM or PM; a panel too small for any text shows none. Boxes
// hold their text with any digits, and the font does not change between hours of one and two
// digits.
ClockLayout LayOutClock(Size panel, int dpi, const ClockDisplay& display,
                        const TextMeasure& measure);

}  // namespace varnel
