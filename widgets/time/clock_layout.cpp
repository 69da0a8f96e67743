#include "widgets/time/clock_layout.h"

#include <algorithm>

#include "base/number_text.h"

namespace varnel {
namespace {

// In pixels at 96 dpi. Text smaller than its least is not worth its room.
constexpr int kMargin = 14;
constexpr int kSmallMargin = 8;
constexpr int kSmallPanel = 150;  // as high or as wide
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
constexpr int kDateGap = 30;

constexpr int kDateShare = 80;  // of the panel's width, in hundredths, where it can be read there
constexpr int kWorthIt = 115;   // the time's height in another arrangement, in hundredths

struct Arrangement {
  bool stacked = false;      // seconds and marker stand in a row below the time
  bool date_beside = false;  // the date stands at the right of everything else
};
constexpr Arrangement kUsual;
constexpr Arrangement kTall{true, false};
constexpr Arrangement kWide{false, true};

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

// Seconds over AM or PM at the right of the time, whose baseline starts at (0, 0).
void PlaceBeside(Group& group, const Texts& texts, int height, const TextMeasure& measure) {
  ClockLayout& layout = group.layout;
  const int left = layout.time.box.right + Part(height, kGap);
  if (!texts.marker.empty()) {
    const int font = Part(height, kMarker);
    const TextExtent marker = measure.Measure(texts.marker, font);
    layout.marker = group.Place(marker, font, {left, -marker.ascent});
  }
  if (!texts.seconds.empty()) {
    const int font = Part(height, kSeconds);
    const TextExtent seconds = measure.Measure(texts.seconds, font);
    const int top =
        layout.marker.shown() ? layout.marker.box.top - seconds.height : -seconds.ascent;
    layout.seconds = group.Place(seconds, font, {left, top});
  }
}

// Seconds and AM or PM in a row below the time, on one baseline.
void PlaceBelow(Group& group, const Texts& texts, int height, const TextMeasure& measure) {
  const int gap = Part(height, kGap);
  const int seconds_font = Part(height, kSeconds);
  const int marker_font = Part(height, kMarker);
  const TextExtent seconds = measure.Measure(texts.seconds, seconds_font);
  const TextExtent marker = measure.Measure(texts.marker, marker_font);
  const int width = seconds.width + (seconds.width && marker.width ? gap : 0) + marker.width;
  const int left = (group.bounds.left + group.bounds.right - width) / 2;
  const int baseline = group.bounds.bottom + std::max(seconds.ascent, marker.ascent);
  if (!texts.seconds.empty()) {
    group.layout.seconds = group.Place(seconds, seconds_font, {left, baseline - seconds.ascent});
  }
  if (!texts.marker.empty()) {
    group.layout.marker =
        group.Place(marker, marker_font, {left + width - marker.width, baseline - marker.ascent});
  }
}

Group Arrange(const Texts& texts, const Arrangement& arrangement, int height, int most_date,
              const TextMeasure& measure) {
  Group group;
  const TextExtent time = measure.Measure(texts.time, height);
  group.layout.time = group.Place(time, height, {0, -time.ascent});
  (arrangement.stacked ? PlaceBelow : PlaceBeside)(group, texts, height, measure);
  if (texts.date.empty()) return group;
  const int font = std::min(most_date, Part(height, kDate));
  const TextExtent date = measure.Measure(texts.date, font);
  const Rect& row = group.bounds;
  const Point corner =
      arrangement.date_beside
          ? Point{row.right + Part(height, kDateGap), (row.top + row.bottom - date.height) / 2}
          : Point{(row.left + row.right - date.width) / 2, row.bottom};
  group.layout.date = group.Place(date, font, corner);
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

// The largest layout of `texts` inside `area`, with a date of at most `most_date`; shows nothing
// when there is none.
ClockLayout LargestLayout(const Texts& texts, const Arrangement& arrangement, const Rect& area,
                          int most, int most_date, const TextMeasure& measure) {
  const Size room{area.width(), area.height()};
  Texts widest = texts;
  widest.time = WithFullHour(texts.time);
  const auto size_at = [&](int height) {
    const Rect bounds = Arrange(widest, arrangement, height, most_date, measure).bounds;
    return Size{bounds.width(), bounds.height()};
  };
  const int height = LargestFontIn(room, most, size_at);
  if (height == 0) return {};
  Group group = Arrange(texts, arrangement, height, most_date, measure);
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

// The usual arrangement, unless another makes the time plainly larger.
ClockLayout BestLayout(const Texts& texts, Size panel, int dpi, const TextMeasure& measure) {
  const int small = Scaled(kSmallPanel, dpi);
  const bool narrow = panel.width < small || panel.height < small;
  const Rect area =
      Inset({0, 0, panel.width, panel.height}, Scaled(narrow ? kSmallMargin : kMargin, dpi));
  const int most = Scaled(kMostTime, dpi);
  const Size room{area.width(), area.height()};
  const Size share{std::min(room.width, panel.width * kDateShare / 100), room.height};
  int most_date = FittingHeight(texts.date, share, Part(most, kDate), measure);
  if (most_date < Scaled(kLeastDate, dpi)) {
    most_date = FittingHeight(texts.date, room, Part(most, kDate), measure);
  }
  if (most_date == 0) return {};
  ClockLayout best = LargestLayout(texts, kUsual, area, most, most_date, measure);
  for (const Arrangement& other : {kTall, kWide}) {
    const ClockLayout layout = LargestLayout(texts, other, area, most, most_date, measure);
    const bool larger = layout.time.font_height * 100 > best.time.font_height * kWorthIt;
    if (larger && Readable(texts, layout, dpi)) best = layout;
  }
  return best;
}

}  // namespace

ClockDisplay ShapeOf(const ClockDisplay& display) {
  ClockDisplay shape = display;
  const auto blank = [](std::wstring& text) {
    for (wchar_t& unit : text) {
      if (IsDigit(unit)) unit = L'0';
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
  Texts texts{WithWidestDigits(display.time, measure),
              display.seconds_shown ? WithWidestDigits(display.seconds, measure) : L"",
              display.marker_shown ? display.marker : L"", WithWidestDigits(display.date, measure)};
  ClockLayout layout = BestLayout(texts, panel, dpi, measure);
  for (std::wstring* least_wanted : {&texts.date, &texts.seconds, &texts.marker}) {
    if (Readable(texts, layout, dpi)) break;
    if (least_wanted->empty()) continue;
    least_wanted->clear();
    layout = BestLayout(texts, panel, dpi, measure);
  }
  return layout;
}

}  // namespace varnel
