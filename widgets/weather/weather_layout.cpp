#include "widgets/weather/weather_layout.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace varnel {
namespace {

// In pixels at 96 dpi. Text smaller than its least is not worth its room.
constexpr int kMargin = 8;
constexpr int kLowPanel = 90;
constexpr int kMostUnit = 480;
constexpr int kLeastUnit = 18;
constexpr int kLeastUnitWithCard = 28;
constexpr int kLeastWords = 12;
constexpr int kLeastForecast = 11;

// In hundredths of the unit, which is the temperature's font height.
constexpr int kSymbol = 125;
constexpr int kSymbolGap = 8;  // beside a picture
constexpr int kWords = 34;     // location and condition
constexpr int kForecastText = 28;
constexpr int kForecastIcon = 62;
constexpr int kPadding = 14;  // inside the card
constexpr int kGap = 18;
constexpr int kMostGap = 60;     // where there is room to spare
constexpr int kMostCard = 1000;  // the width of a card below

// How many hundredths of its height an area is wide before the card leaves its place below the
// rest.
constexpr int kBroad = 280;

constexpr int kReferenceHeight = 240;
constexpr std::size_t kMostLetters = 1000;
constexpr int kDays = 3;

int Part(int unit, int hundredths) {
  return std::max(1, unit * hundredths / 100);
}

// A text measured once, in a large font. Sizes taken from that are a little generous, because the
// widths of small letters are rounded. An empty text takes no room.
class ScaledText {
 public:
  ScaledText() = default;
  ScaledText(const std::wstring& text, const TextMeasure& measure)
      : letters_(static_cast<int>(std::min<std::size_t>(text.size(), kMostLetters))) {
    if (!text.empty()) extent_ = measure.Measure(text, kReferenceHeight);
  }

  bool empty() const { return extent_.height == 0; }
  Size At(int font) const {
    if (empty()) return {};
    return {extent_.width * font / kReferenceHeight + (letters_ + 1) / 2,
            extent_.height * font / kReferenceHeight + 1};
  }
  bool operator<(const ScaledText& other) const { return extent_.width < other.extent_.width; }

 private:
  TextExtent extent_;
  int letters_ = 0;
};

// A text that may be shown in any font from the least on.
struct Words {
  ScaledText text;
  int least_width = 0;  // in the least font, exactly
};

struct Texts {
  Words location, condition;
  ScaledText temperature;
  ScaledText seen_temperature;  // without outer blanks
  ScaledText date, temps;       // the widest of the days
  bool card() const { return !date.empty() || !temps.empty(); }
};

// Words that are too wide however little else is shown are left out at once.
Texts MeasureTexts(const WeatherLabels& labels, int width, int least_font,
                   const TextMeasure& measure) {
  const auto words = [&](const std::wstring& text) {
    const int least_width = measure.Measure(text, least_font).width;
    return least_width > width ? Words() : Words{{text, measure}, least_width};
  };
  Texts texts;
  texts.location = words(labels.location);
  texts.condition = words(labels.condition);
  texts.temperature = {labels.temperature, measure};
  texts.seen_temperature = {Trim(labels.temperature), measure};
  for (const ForecastSlot& slot : labels.forecast) {
    texts.date = std::max(texts.date, {slot.date, measure});
    texts.temps = std::max(texts.temps, {slot.temps, measure});
  }
  return texts;
}

// A line of words and its font.
struct Line {
  int font = 0;
  Size size;
};

enum class CardShape {
  kHigh,    // below the rest, the parts of a day one below the other
  kFlat,    // below the rest, the parts of a day side by side
  kBeside,  // at the right, a flat day below the other
};

// All of some texts, as large as an area allows.
class Arrangement {
 public:
  Arrangement(const Texts& texts, const Rect& area, int dpi, CardShape shape)
      : texts_(texts), area_(area), dpi_(dpi), shape_(shape) {
    const int most = Scaled(kMostUnit, dpi);
    const int unit =
        LargestHeight(most, most / 4, [this](int candidate) { return SetUnit(candidate); });
    const int least = Scaled(texts.card() ? kLeastUnitWithCard : kLeastUnit, dpi);
    SetUnit(unit < least ? 0 : unit);
  }

  // The temperature's font height; 0 when the texts do not all fit and can be read.
  int unit() const { return unit_; }
  WeatherLayout Place() const;

 private:
  bool SetUnit(int unit);
  bool SetLine(const Words& words, int width, Line& line) const;
  void SetCard();
  void PlaceRow(const Rect& row, WeatherLayout& layout) const;
  void PlaceCard(const Rect& card, WeatherLayout& layout) const;
  ForecastPlace DayIn(const Rect& slot) const;

  int now_height() const { return location_.size.height + row_.height + condition_.size.height; }
  bool beside() const { return shape_ == CardShape::kBeside; }
  // What the card takes from the rest.
  int card_width() const { return beside() ? card_.width + 2 * gap() : 0; }
  int card_height() const { return beside() || !texts_.card() ? 0 : card_.height + gap(); }
  int gap() const { return Part(unit_, kGap); }
  int symbol_gap() const { return Part(unit_, kSymbolGap); }
  int symbol() const { return Part(unit_, kSymbol); }

  const Texts& texts_;
  Rect area_;
  int dpi_;
  CardShape shape_;
  int unit_ = 0;
  Line location_;
  Line condition_;
  Size row_;  // symbol and temperature
  Line date_;
  Line temps_;
  int icon_ = 0;
  Size day_;
  Size card_;  // at the least, a third of it for each day; empty without a forecast
};

bool Arrangement::SetUnit(int unit) {
  unit_ = unit;
  SetCard();
  const Size temperature = texts_.temperature.At(unit);
  row_ = {symbol() + 2 * symbol_gap() + temperature.width, std::max(symbol(), temperature.height)};
  const int width = area_.width() - card_width();
  return SetLine(texts_.location, width, location_) &&
         SetLine(texts_.condition, width, condition_) && row_.width <= width &&
         card_.width <= area_.width() && card_.height <= area_.height() &&
         now_height() + card_height() <= area_.height();
}

// Chooses a font that leaves the line no wider than `width`; false when none can be read.
bool Arrangement::SetLine(const Words& words, int width, Line& line) const {
  const int least = Scaled(kLeastWords, dpi_);
  const int wished = std::max(least, Part(unit_, kWords));
  line.font = std::max(least, LargestHeight(wished, wished, [&](int font) {
                         return words.text.At(font).width <= width;
                       }));
  line.size = words.text.At(line.font);
  return words.least_width <= width;
}

void Arrangement::SetCard() {
  card_ = {};
  if (!texts_.card()) return;
  icon_ = Part(unit_, kForecastIcon);
  date_.font = temps_.font = std::max(Scaled(kLeastForecast, dpi_), Part(unit_, kForecastText));
  date_.size = texts_.date.At(date_.font);
  temps_.size = texts_.temps.At(temps_.font);
  const int padding = 2 * Part(unit_, kPadding);
  const Size& date = date_.size;
  const Size& temps = temps_.size;
  if (shape_ == CardShape::kHigh) {
    day_ = {std::max({date.width, icon_, temps.width}), date.height + icon_ + temps.height};
  } else {
    day_ = {date.width + icon_ + temps.width + 2 * symbol_gap(),
            std::max({date.height, icon_, temps.height})};
  }
  card_ = beside() ? Size{padding + day_.width, padding + kDays * day_.height}
                   : Size{kDays * (day_.width + gap()), padding + day_.height};
}

WeatherLayout Arrangement::Place() const {
  WeatherLayout layout;
  Rect room = area_;
  if (beside()) {
    const int now_width = std::max({row_.width, location_.size.width, condition_.size.width});
    const int width = card_.width + (area_.width() - card_width() - now_width) / 4;
    const int height = std::min(std::max(now_height(), card_.height * 3 / 2), area_.height());
    room.right -= width + 2 * gap();
    PlaceCard(
        RectAt({area_.right - width, area_.top + (area_.height() - height) / 2}, {width, height}),
        layout);
  }
  const bool below = texts_.card() && !beside();
  const int blocks = 1 + !texts_.location.text.empty() + below;
  const int spare = room.height() - now_height() - card_height();
  const int step = std::min(spare / (blocks + 1), Part(unit_, kMostGap));
  int top = room.top + (spare - (blocks - 1) * step) / 2;
  const auto take = [&](int height) {
    const Rect row{room.left, top, room.right, top + height};
    top += height;
    return row;
  };
  if (!texts_.location.text.empty()) {
    layout.location = {take(location_.size.height), location_.font};
    top += step;
  }
  PlaceRow(take(row_.height), layout);
  if (!texts_.condition.text.empty()) {
    layout.condition = {take(condition_.size.height), condition_.font};
  }
  if (below) {
    top += step + gap();
    const int width = std::clamp(Part(unit_, kMostCard), card_.width, area_.width());
    PlaceCard(RectAt({area_.left + (area_.width() - width) / 2, top}, {width, card_.height}),
              layout);
  }
  return layout;
}

void Arrangement::PlaceRow(const Rect& row, WeatherLayout& layout) const {
  const auto part = [&row](int left, Size size) {
    return RectAt({left, row.top + (row.height() - size.height) / 2}, size);
  };
  // Centred is what can be seen; the temperature may end in a blank.
  const int seen = symbol() + symbol_gap() + texts_.seen_temperature.At(unit_).width;
  const int left = std::min(row.left + (row.width() - seen) / 2, row.right - row_.width);
  layout.symbol = {part(left, {symbol(), symbol()}), symbol()};
  layout.temperature = {part(left + symbol(), {row_.width - symbol(), row_.height}), unit_};
}

void Arrangement::PlaceCard(const Rect& card, WeatherLayout& layout) const {
  layout.pfrFORECAST = card;
  const int padding = Part(unit_, kPadding);
  const Rect inner{card.left, card.top + padding, card.right, card.bottom - padding};
  for (int i = 0; i < kDays; ++i) {
    Rect slot = inner;
    if (beside()) {
      slot.top = inner.top + inner.height() * i / kDays;
      slot.bottom = inner.top + inner.height() * (i + 1) / kDays;
    } else {
      slot.left = inner.left + inner.width() * i / kDays;
      slot.right = inner.left + inner.width() * (i + 1) / kDays;
    }
    layout.forecast[static_cast<std::size_t>(i)] = DayIn(slot);
  }
}

ForecastPlace Arrangement::DayIn(const Rect& slot) const {
  if (shape_ == CardShape::kHigh) {
    const int icon_top = slot.top + date_.size.height;
    return {{{slot.left, slot.top, slot.right, icon_top}, date_.font},
            {{slot.left, icon_top, slot.right, icon_top + icon_}, icon_},
            {{slot.left, icon_top + icon_, slot.right, slot.bottom}, temps_.font}};
  }
  const int date_left = slot.left + (slot.width() - day_.width) / 2;
  const int icon_left = date_left + date_.size.width + symbol_gap();
  const int temps_left = icon_left + icon_ + symbol_gap();
  return {{{date_left, slot.top, icon_left - symbol_gap(), slot.bottom}, date_.font},
          {{icon_left, slot.top, icon_left + icon_, slot.bottom}, icon_},
          {{temps_left, slot.top, temps_left + temps_.size.width, slot.bottom}, temps_.font}};
}

// Makes the font smaller where the text comes out wider than was reckoned.
void Shrink(LabelPlace& place, const std::wstring& text, const TextMeasure& measure) {
  while (place.font_height > 1 &&
         measure.Measure(text, place.font_height).width > place.box.width()) {
    --place.font_height;
  }
}

WeatherLayout Fitted(WeatherLayout layout, const WeatherLabels& labels,
                     const TextMeasure& measure) {
  Shrink(layout.location, labels.location, measure);
  Shrink(layout.temperature, labels.temperature, measure);
  Shrink(layout.condition, labels.condition, measure);
  for (std::size_t i = 0; i < layout.forecast.size(); ++i) {
    Shrink(layout.forecast[i].date, labels.forecast[i].date, measure);
    Shrink(layout.forecast[i].temps, labels.forecast[i].temps, measure);
  }
  return layout;
}

}  // namespace

WeatherLayout LayOutWeather(Size panel, int dpi, const WeatherLabels& labels,
                            const TextMeasure& measure) {
  const int margin = Scaled(panel.height < Scaled(kLowPanel, dpi) ? kMargin / 2 : kMargin, dpi);
  const Rect area = Inset({0, 0, panel.width, panel.height}, margin);
  const bool broad = area.width() * 100 > area.height() * kBroad;
  Texts texts = MeasureTexts(labels, area.width(), Scaled(kLeastWords, dpi), measure);
  for (const auto leave_out : std::initializer_list<void (*)(Texts&)>{
           [](Texts&) {}, [](Texts& all) { all.date = all.temps = {}; },
           [](Texts& all) { all.condition = {}; }, [](Texts& all) { all.location = {}; }}) {
    leave_out(texts);
    const Arrangement high(texts, area, dpi, CardShape::kHigh);
    const Arrangement flat(texts, area, dpi, CardShape::kFlat);
    const Arrangement beside(texts, area, dpi, CardShape::kBeside);
    const Arrangement& below = flat.unit() > high.unit() ? flat : high;
    const bool leaves = broad ? beside.unit() > below.unit() : below.unit() == 0;
    const Arrangement& best = leaves && texts.card() ? beside : below;
    if (best.unit() > 0) return Fitted(best.Place(), labels, measure);
  }
  return {};
}

}  // namespace varnel
