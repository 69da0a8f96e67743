// Where the displays and buttons of stopwatch and countdown stand: the time as large as the panel
// allows, two text buttons in a row below it.
#pragma once

#include <array>
#include <string_view>

#include "base/geometry.h"
#include "base/text_measure.h"

namespace varnel {

// All in pixels of the panel; font heights are ems.
struct TimerButtons {
  Rect start;
  Rect stop;
  int font_height = 0;
};

struct StopwatchLayout {
  Rect display;
  int font_height = 0;
  TimerButtons buttons;
};

// `text` is what has to fit, whatever its digits.
StopwatchLayout LayOutStopwatch(Size panel, int dpi, std::wstring_view text,
                                const TextMeasure& measure);

struct CountdownLayout {
  std::array<Rect, 3> fields;      // hours, minutes, seconds
  std::array<Rect, 2> separators;  // between them
  int font_height = 0;
  // The row in which the interval is set; empty on a panel too low for it.
  Rect interval_label;
  std::array<Rect, 3> interval_fields;
  std::array<Rect, 3> interval_units;  // a unit after each field
  int interval_font_height = 0;
  TimerButtons buttons;
};

// `digits` is the longest text of a display field.
CountdownLayout LayOutCountdown(Size panel, int dpi, std::wstring_view digits,
                                const TextMeasure& measure);

}  // namespace varnel
