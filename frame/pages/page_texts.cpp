#include "frame/pages/page_texts.h"

#include <algorithm>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr int kHalfPoints = 18;
constexpr int kGap = 240;        // between two texts of a line, at least
constexpr int kBandInset = 170;  // 3 mm: what a printer can hardly reach

std::wstring Value(wchar_t letter, const PageFields& fields) {
  switch (letter) {
    case L'P':
      return NumberText(fields.page);
    case L'N':
      return NumberText(fields.pages);
    case L'T':
      return fields.title;
    case L'F':
      return fields.file;
    case L'D':
      return fields.date;
    default:
      return fields.time;
  }
}

PageLine LineOf(const PageLine& line, const PageTexts& texts, const PageFields& fields) {
  PageLine filled;
  if (texts.from_second_page && fields.page < 2) return filled;
  std::ranges::transform(line, filled.begin(),
                         [&](const std::wstring& text) { return FilledIn(text, fields); });
  return filled;
}

// A text as wide as it may be, with an ellipsis where it had to be cut.
PlacedText Fitted(const std::wstring& text, const PageFont& font, int width, PageMeasure& measure) {
  PlacedText placed;
  placed.font = font;
  placed.text = text;
  placed.ends.resize(text.size());
  measure.Measure(font, text, placed.ends);
  if (placed.width() <= width) return placed;
  const std::wstring dots = L"\u2026";
  int dots_width = 0;
  measure.Measure(font, dots, std::span(&dots_width, 1));
  const auto kept = static_cast<std::size_t>(
      std::ranges::upper_bound(placed.ends, width - dots_width) - placed.ends.begin());
  placed.text = text.substr(0, kept) + dots;
  placed.ends.resize(kept);
  placed.ends.push_back(placed.width() + dots_width);
  return placed;
}

std::wstring WithoutControls(std::wstring text) {
  std::ranges::replace_if(
      text, [](wchar_t unit) { return unit < L' ' || unit == L'\x7F'; }, L' ');
  return text;
}

void AddLine(Page& page, const PageLine& line, const Rect& band, PageMeasure& measure) {
  const PageFont font{L"Arial", 0, kHalfPoints, false, false};
  const FontExtent extent = measure.Extent(font);
  std::array<PlacedText, 3> texts;
  std::array<int, 3> widths{};
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i].empty()) continue;
    texts[i] = Fitted(WithoutControls(line[i]), font, band.width(), measure);
    widths[i] = texts[i].width();
  }
  const auto spans = PlaceTexts(widths, band.width());
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (widths[i] == 0) continue;
    if (spans[i].width < widths[i]) {
      texts[i] = Fitted(WithoutControls(line[i]), font, spans[i].width, measure);
    }
    // Cut texts have what was left over on the side where they do not begin.
    const int rest = std::max(spans[i].width - texts[i].width(), 0);
    texts[i].left = band.left + spans[i].left + rest * static_cast<int>(i) / 2;
    texts[i].base_line = (band.top + band.bottom + extent.ascent - extent.descent) / 2;
    page.texts.push_back(std::move(texts[i]));
  }
}

}  // namespace

std::wstring FilledIn(std::wstring_view text, const PageFields& fields) {
  std::wstring filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const wchar_t next = text[at] == L'&' && at + 1 < text.size() ? text[at + 1] : L'\0';
    const wchar_t letter = next >= L'a' && next <= L'z' ? static_cast<wchar_t>(next - 32) : next;
    if (std::ranges::find(kPageFields, letter, &PageField::letter) != kPageFields.end()) {
      filled += Value(letter, fields);
      ++at;
    } else {
      filled += text[at];
      if (next == L'&') ++at;
    }
  }
  return filled;
}

PageLine HeaderOf(const PageTexts& texts, const PageFields& fields) {
  return LineOf(texts.header, texts, fields);
}

PageLine FooterOf(const PageTexts& texts, const PageFields& fields) {
  return LineOf(texts.footer, texts, fields);
}

std::array<TextSpan, 3> PlaceTexts(const std::array<int, 3>& widths, int room) {
  auto [left, centre, right] = widths;
  if (centre > 0) {
    const int sides = left > 0 || right > 0 ? room / 4 : 0;
    centre = std::min(centre, std::max(room - 2 * sides, 0));
    const int side = std::max((room - centre) / 2 - kGap, 0);
    left = std::min(left, side);
    right = std::min(right, side);
  } else if (left > 0 && right > 0 && left + right + kGap > room) {
    const int both = std::max(room - kGap, 0);
    const int least = std::min({left, right, both / 2});
    (left < right ? left : right) = least;
    (left < right ? right : left) = both - least;
  }
  left = std::min(left, room);
  right = std::min(right, room);
  return {{{0, left}, {(room - centre) / 2, centre}, {room - right, right}}};
}

Rect HeaderBand(const PageSetup& setup) {
  const Rect column = ColumnOf(setup);
  return {column.left, std::min(kBandInset, column.top), column.right, column.top};
}

Rect FooterBand(const PageSetup& setup) {
  const Rect column = ColumnOf(setup);
  return {column.left, column.bottom, column.right,
          std::max(setup.paper.height - kBandInset, column.bottom)};
}

void AddPageTexts(Page& page, const PageSetup& setup, const PageFields& fields,
                  PageMeasure& measure) {
  AddLine(page, HeaderOf(setup.texts, fields), HeaderBand(setup), measure);
  AddLine(page, FooterOf(setup.texts, fields), FooterBand(setup), measure);
}

}  // namespace varnel
