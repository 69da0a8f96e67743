#include "frame/pages/page_texts.h"

#include <algorithm>

#include "base/number_text.h"

namespace varnel {
namespace {

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

}  // namespace varnel
