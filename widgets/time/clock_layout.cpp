#include "widgets/time/clock_layout.h"

#include <algorithm>

namespace varnel {
namespace {

// In pixels at 96 dpi. Text smaller than its least is not worth its room.
constexpr int kMargin = 8;
constexpr int kMostTime = 960;
constexpr int kLeastTime = 20;
constexpr int kLeastSeconds = 10;
constexpr int kLeastMarker = 9;
constexpr int kLeastDate = 11;

// In hundredths of the time's font height. Seconds and marker together stay below the time's
// digits in common fonts.
constexpr int kSeconds = 45;
constexpr int kMarker = 30;
constexpr int kDate = 30;
constexpr int kGap = 10;

int Part(int height, int hundredths) {
  return std::max(1, height * hundredths / 100);
}

// The labels' texts; an empty one is left out.
struct Texts {
  std::wstring time;
  std::wstring seconds;
  std::wstring marker;
  std::wstring date;
};

struct Group {
  ClockLayout layout;
  Rect bounds;  // of every place made so far

  LabelPlace Place(const TextExtent& extent, int font_height, Point corner) {
    const Rect box = RectAt(corner, {extent.width, extent.height});
    bounds = {std::min(bounds.left, box.left), std::min(bounds.top, box.top),
              std::max(bounds.right, box.right), std::max(bounds.bottom, box.bottom)};
    return {box, font_height};
  }
};

// The group with the time's baseline starting at (0, 0).
Group Arrange(const Texts& texts, int height, int most_date, const TextMeasure& measure) {
  Group group;
  ClockLayout& layout = group.layout;
  const TextExtent time = measure.Measure(texts.time, height);
  layout.time = group.Place(time, height, {0, -time.ascent});
  const int stack = time.width + Part(height, kGap);
  if (!texts.marker.empty()) {
    const int font = Part(height, kMarker);
    const TextExtent marker = measure.Measure(texts.marker, font);
    layout.marker = group.Place(marker, font, {stack, -marker.ascent});
  }
  if (!texts.seconds.empty()) {
    const int font = Part(height, kSeconds);
    const TextExtent seconds = measure.Measure(texts.seconds, font);
    const int top =
        layout.marker.shown() ? layout.marker.box.top - seconds.height : -seconds.ascent;
    layout.seconds = group.Place(seconds, font, {stack, top});
  }
  if (!texts.date.empty()) {
    const int font = std::min(most_date, Part(height, kDate));
    const TextExtent date = measure.Measure(texts.date, font);
    const int middle = (group.bounds.left + group.bounds.right) / 2;
    layout.date = group.Place(date, font, {middle - date.width / 2, group.bounds.bottom});
  }
  return group;
}

// A time whose hour has one digit, as it is with two.
std::wstring WithFullHour(const std::wstring& time) {
  return time.find(L':') == 1 ? time.front() + time : time;
}

void MoveTo(LabelPlace& place, Point offset) {
  if (!place.shown()) return;
  place.box = RectAt({place.box.left + offset.x, place.box.top + offset.y},
                     {place.box.width(), place.box.height()});
}

// The largest layout of `texts` inside `area`; shows nothing when there is none.
ClockLayout LargestLayout(const Texts& texts, const Rect& area, int most,
                          const TextMeasure& measure) {
  const Size room{area.width(), area.height()};
  const int most_date = FittingHeight(texts.date, room, Part(most, kDate), measure);
  if (most_date == 0) return {};
  Texts widest = texts;
  widest.time = WithFullHour(texts.time);
  const auto size_at = [&](int height) {
    const Rect bounds = Arrange(widest, height, most_date, measure).bounds;
    return Size{bounds.width(), bounds.height()};
  };
  const int height = LargestFontIn(room, most, size_at);
  if (height == 0) return {};
  Group group = Arrange(texts, height, most_date, measure);
  const Point offset{area.left + (room.width - group.bounds.width()) / 2 - group.bounds.left,
                     area.top + (room.height - group.bounds.height()) / 2 - group.bounds.top};
  for (LabelPlace* place :
       {&group.layout.time, &group.layout.seconds, &group.layout.marker, &group.layout.date}) {
    MoveTo(*place, offset);
  }
  return group.layout;
}

bool Readable(const Texts& texts, const ClockLayout& layout, int dpi) {
  const auto reaches = [dpi](const std::wstring& text, const LabelPlace& place, int least) {
    return text.empty() || place.font_height >= Scaled(least, dpi);
  };
  return reaches(texts.time, layout.time, kLeastTime) &&
         reaches(texts.seconds, layout.seconds, kLeastSeconds) &&
         reaches(texts.marker, layout.marker, kLeastMarker) &&
         reaches(texts.date, layout.date, kLeastDate);
}

}  // namespace

ClockDisplay ShapeOf(const ClockDisplay& display) {
  ClockDisplay shape = display;
  const auto blank = [](std::wstring& text) {
    for (wchar_t& unit : text) {
      if (unit >= L'0' && unit <= L'9') unit = L'0';
    }
  };
  for (std::wstring* text : {&shape.time, &shape.seconds, &shape.marker, &shape.date}) blank(*text);
  for (std::wstring& text : shape.shorter_dates) blank(text);
  return shape;
}

std::size_t StripDate(const ClockDisplay& display, int room, int font_height,
                      const TextMeasure& measure) {
  std::size_t choice = 0;
  const auto fits = [&](const std::wstring& date) {
    return measure.Measure(WithWidestDigits(date, measure), font_height).width <= room;
  };
  if (fits(display.date)) return choice;
  for (const std::wstring& date : display.shorter_dates) {
    ++choice;
    if (fits(date)) return choice;
  }
  return choice + 1;
}

std::wstring DateOf(const ClockDisplay& display, std::size_t choice) {
  if (choice == 0) return display.date;
  return choice <= display.shorter_dates.size() ? display.shorter_dates[choice - 1] : L"";
}

ClockLayout LayOutClock(Size panel, int dpi, const ClockDisplay& display,
                        const TextMeasure& measure) {
  const Rect area = Inset({0, 0, panel.width, panel.height}, Scaled(kMargin, dpi));
  Texts texts{WithWidestDigits(display.time, measure),
              display.seconds_shown ? WithWidestDigits(display.seconds, measure) : L"",
              display.marker_shown ? display.marker : L"", WithWidestDigits(display.date, measure)};
  ClockLayout layout = LargestLayout(texts, area, Scaled(kMostTime, dpi), measure);
  for (std::wstring* least_wanted : {&texts.date, &texts.seconds, &texts.marker}) {
    if (Readable(texts, layout, dpi)) break;
    if (least_wanted->empty()) continue;
    least_wanted->clear();
    layout = LargestLayout(texts, area, Scaled(kMostTime, dpi), measure);
  }
  return layout;
}

}  // namespace varnel
