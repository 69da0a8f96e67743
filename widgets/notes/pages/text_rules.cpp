#include "widgets/notes/pages/text_rules.h"

#include <algorithm>

#include "widgets/notes/pages/line_ends.h"

namespace varnel {
namespace {

constexpr int kTwipsPerHalfPoint = 10;
constexpr int kThinnest = 8;

struct Underlining {
  RuleStyle style = RuleStyle::kSolid;
  int thickness = 1;  // of the usual one
};

Underlining LookOf(Underline underline) {
  switch (underline) {
    case Underline::kDotted:
      return {RuleStyle::kDotted, 1};
    case Underline::kDashed:
      return {RuleStyle::kDashed, 1};
    case Underline::kThick:
      return {RuleStyle::kSolid, 2};
    case Underline::kWave:
      return {RuleStyle::kWave, 3};
    default:
      return {};
  }
}

// One line below the text from unit `begin` up to `end`.
void Underscore(const PlacedText& text, std::size_t begin, std::size_t end, const Rect& whole,
                Underline underline, Page& page) {
  const int from = begin == 0 ? 0 : text.ends[begin - 1];
  const int to = text.ends[end - 1];
  Rect area = whole;
  area.left = text.right_to_left ? whole.right - to : whole.left + from;
  area.right = text.right_to_left ? whole.right - from : whole.left + to;
  const Underlining look = LookOf(underline);
  const int thickness = area.height();
  area.bottom = area.top + thickness * look.thickness;
  page.rules.push_back({area, text.colour, look.style});
  if (underline != Underline::kDouble) return;
  area.top += 2 * thickness;
  area.bottom += 2 * thickness;
  page.rules.push_back({area, text.colour, look.style});
}

// The same below each word.
void UnderscoreWords(const PlacedText& text, const Rect& whole, Page& page) {
  for (std::size_t begin = 0; begin < text.text.size();) {
    std::size_t end = begin;
    while (end < text.text.size() && !IsLineBlank(text.text[end])) ++end;
    if (end > begin) Underscore(text, begin, end, whole, Underline::kSingle, page);
    begin = end + 1;
  }
}

}  // namespace

std::int32_t PrintedColour(const CharFormat& format) {
  return format.colour == kAutomaticColour ? 0 : format.colour;
}

void AddTextRules(const CharFormat& format, const NoteFont& font, const PlacedText& text,
                  Page& page) {
  if (text.width() <= 0) return;
  const int em = font.font.half_points * kTwipsPerHalfPoint;
  const int thickness = std::max(em / 18, kThinnest);
  const auto strip = [&](int top, int height) {
    return Rect{text.left, top, text.left + text.width(), top + height};
  };
  if (format.ground != kAutomaticColour) {
    const FontExtent& extent = font.extent;
    const Rect area = strip(text.base_line - extent.ascent, extent.ascent + extent.descent);
    page.grounds.push_back({area, format.ground});
  }
  const Rect under = strip(text.base_line + em / 10, thickness);
  if (format.underline == Underline::kWords) {
    UnderscoreWords(text, under, page);
  } else if (format.underline != Underline::kNone) {
    Underscore(text, 0, text.ends.size(), under, format.underline, page);
  }
  if (format.struck) {
    page.rules.push_back({strip(text.base_line - em * 3 / 10, thickness), text.colour});
  }
}

}  // namespace varnel
