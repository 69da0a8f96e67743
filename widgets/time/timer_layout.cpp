#include "widgets/time/timer_layout.h"

#include <algorithm>
#include <string>

namespace varnel {
namespace {

constexpr int kMostFontHeight = 960;
constexpr int kLeastButton = 24;  // at 96 dpi, like the other lengths
constexpr int kMostButton = 64;
constexpr int kMostButtonWidth = 190;
constexpr int kLowPanel = 90;
constexpr int kLeastInterval = 12;
constexpr int kMostInterval = 28;
constexpr int kIntervalEms = 17;  // the width of the interval's row, a bit more than it needs
constexpr int kLeastDisplay = 36;

int MarginFor(Size panel, int dpi) {
  return Scaled(panel.height < Scaled(kLowPanel, dpi) ? 4 : 8, dpi);
}

TimerButtons ButtonRow(Size panel, int dpi, int margin) {
  TimerButtons row;
  const int height =
      std::clamp(panel.height / 5, Scaled(kLeastButton, dpi), Scaled(kMostButton, dpi));
  const int width =
      std::min({(panel.width - 3 * margin) / 2, 4 * height, Scaled(kMostButtonWidth, dpi)});
  const int top = std::max(0, panel.height - margin - height);
  const int left = (panel.width - 2 * width - margin) / 2;
  row.start = RectAt({left, top}, {width, height});
  row.stop = RectAt({left + width + margin, top}, {width, height});
  row.font_height = height * 9 / 20;
  return row;
}

// The room above a row of controls; large digits want more of it at their sides than controls do.
Rect RoomAbove(Size panel, int row_top, int margin) {
  const int side = margin * 7 / 4;
  return {side, margin / 2, panel.width - side, std::max(margin / 2 + 1, row_top - margin / 2)};
}

Rect CentredIn(const Rect& room, int left, Size size) {
  return RectAt({left, room.top + (room.height() - size.height) / 2}, size);
}

// The interval's row: a word, then a field and its unit three times.
void LayOutInterval(CountdownLayout& layout, Size panel, int font, int bottom) {
  const int height = 2 * font;
  const int label = font * 3;
  const int field = font * 5 / 2;
  const int unit = font * 2;
  const int gap = font / 3;  // the fields have an outline, which no label may cover
  int left = (panel.width - kIntervalEms * font) / 2;
  const Rect row{0, bottom - height, panel.width, bottom};
  layout.interval_font_height = font;
  layout.interval_label = CentredIn(row, left, {label - gap, height});
  left += label;
  for (int i = 0; i < 3; ++i) {
    layout.interval_fields[i] = CentredIn(row, left, {field, font * 13 / 10});
    left += field;
    layout.interval_units[i] = CentredIn(row, left + gap, {unit - 2 * gap, height});
    left += unit;
  }
}

}  // namespace

StopwatchLayout LayOutStopwatch(Size panel, int dpi, std::wstring_view text,
                                const TextMeasure& measure) {
  StopwatchLayout layout;
  const int margin = MarginFor(panel, dpi);
  layout.buttons = ButtonRow(panel, dpi, margin);
  layout.display = RoomAbove(panel, layout.buttons.start.top, margin);
  layout.font_height =
      FittingHeight(WithWidestDigits(text, measure),
                    {layout.display.width(), layout.display.height()}, kMostFontHeight, measure);
  return layout;
}

CountdownLayout LayOutCountdown(Size panel, int dpi, std::wstring_view digits,
                                const TextMeasure& measure) {
  CountdownLayout layout;
  const int margin = MarginFor(panel, dpi);
  layout.buttons = ButtonRow(panel, dpi, margin);
  int bottom = layout.buttons.start.top;
  const int interval =
      std::clamp(panel.height / 16, Scaled(kLeastInterval, dpi), Scaled(kMostInterval, dpi));
  const int row_height = 2 * interval + margin;
  if (bottom >= Scaled(kLeastDisplay, dpi) + row_height + margin &&
      panel.width >= kIntervalEms * interval + 2 * margin) {
    LayOutInterval(layout, panel, interval, bottom - margin);
    bottom -= row_height;
  }
  const Rect room = RoomAbove(panel, bottom, margin);
  const std::wstring field = WithWidestDigits(digits, measure);
  const auto extent = [&](int height) {
    const TextExtent one = measure.Measure(field, height);
    const int padded = one.width + height / 3;  // the field's own inner margins
    const int separator = measure.Measure(L":", height).width + height / 8;
    return std::array<int, 3>{padded, separator, one.height};
  };
  const auto size_at = [&](int height) {
    const auto [padded, separator, high] = extent(height);
    return Size{3 * padded + 2 * separator, high};
  };
  layout.font_height = LargestFontIn({room.width(), room.height()}, kMostFontHeight, size_at);
  if (layout.font_height == 0) return layout;
  const auto [padded, separator, high] = extent(layout.font_height);
  int left = (panel.width - 3 * padded - 2 * separator) / 2;
  for (int i = 0; i < 3; ++i) {
    layout.fields[i] = CentredIn(room, left, {padded, high});
    left += padded;
    if (i == 2) break;
    layout.separators[i] = CentredIn(room, left, {separator, high});
    left += separator;
  }
  return layout;
}

}  // namespace varnel
