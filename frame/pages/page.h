// Pages laid out for paper: what stands where on a sheet. All lengths are twips (1/1440 inch), from
// the sheet's upper left corner; whoever shows or prints a page scales them and measures nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/geometry.h"

namespace varnel {

struct PageFont {
  std::wstring name;     // empty: whatever the platform takes for notes
  int charset = 0;       // a platform number
  int half_points = 24;  // its size, at least 2
  bool bold = false;
  bool italic = false;
  bool operator==(const PageFont&) const = default;
};

// In twips, none below 0.
struct FontExtent {
  int ascent = 0;   // above the base line
  int descent = 0;  // below it
  int leading = 0;  // between two lines
};

// How wide text comes out, at the resolution of what it is printed on, whatever the resolution at
// which it is shown.
class PageMeasure {
 public:
  virtual ~PageMeasure() = default;
  virtual FontExtent Extent(const PageFont& font) = 0;
  // Sets ends[i] to where unit i of `text` ends, from the left edge of the text written alone (from
  // the right edge of one written right to left): never less than ends[i - 1]. A mark or the second
  // half of a pair ends where its letter does. `ends` is as long as `text`, which has no control
  // characters and is not empty.
  virtual void Measure(const PageFont& font, std::wstring_view text, std::span<int> ends) = 0;
};

// Text of a piece that is not from the source: a bullet, a leader, a hyphen at a line's end.
inline constexpr std::size_t kNoSource = static_cast<std::size_t>(-1);

// Letters of one font, colour and direction on one line.
struct PlacedText {
  int left = 0;
  int base_line = 0;      // from the sheet's top
  std::wstring text;      // in the order of reading, also from right to left
  std::vector<int> ends;  // of each unit, from `left`; with `right_to_left` from the right edge
  PageFont font;
  std::int32_t colour = 0;  // red in the low byte
  bool right_to_left = false;
  std::size_t source = kNoSource;  // the first unit's place in the source's text
  int width() const { return ends.empty() ? 0 : ends.back(); }
};

enum class RuleStyle : std::uint8_t { kSolid, kDotted, kDashed, kWave };

// A line or ground filled with one colour; a style runs along its width.
struct PlacedRule {
  Rect area;
  std::int32_t colour = 0;
  RuleStyle style = RuleStyle::kSolid;
};

// A picture, cropped as the source has it, drawn into `area`.
struct PlacedPicture {
  Rect area;
  std::size_t index = 0;  // among the source's pictures
};

// Painted in the order of the members. What stands higher than its line, or is too tall for a page,
// reaches beyond the column: painting is clipped to the sheet.
struct Page {
  std::vector<PlacedRule> grounds;
  std::vector<PlacedPicture> pictures;
  std::vector<PlacedText> texts;  // in the order of the source
  std::vector<PlacedRule> rules;  // lines under and through text, bars
};

struct PageCount {
  std::size_t pages = 0;  // at least 1
  bool settled = false;   // otherwise there are more, which are not laid out yet
  bool operator==(const PageCount&) const = default;
};

// Something that can be shown and printed page by page. It has one page at least.
class PageSource {
 public:
  virtual ~PageSource() = default;
  // What is laid out so far; asks nothing of the measure.
  virtual PageCount Count() const = 0;
  // Lays out until there are `pages` of them, or all that there are. Takes the time of the pages
  // that are new; a caller that must not wait asks for a few at a time.
  virtual PageCount Settle(std::size_t pages) = 0;
  // Page `index`, counted from 0, of at most Settle(index + 1).pages; the last one beyond that.
  virtual Page At(std::size_t index) = 0;
};

}  // namespace varnel
