// Formats of letters and paragraphs in a rich edit control. In what the control answers, an empty
// value means that the text asked about has several; in what it is told, that the value stays.
// Lengths are in twips (1/1440 inch).
#pragma once

#include <windows.h>

#include <richedit.h>

#include <optional>
#include <string>
#include <vector>

namespace varnel {

struct TextColour {
  bool automatic = true;  // the system's colour for text; for a ground, none of its own
  COLORREF colour = 0;    // counts only when not automatic
  bool operator==(const TextColour&) const = default;
};

enum class TextScript { kNormal, kRaised, kLowered };

struct CharacterFormat {
  std::optional<bool> bold = {};
  std::optional<bool> italic = {};
  std::optional<bool> underline = {};
  std::optional<bool> strikeout = {};
  std::optional<bool> link = {};
  std::optional<int> half_points = {};  // twice the size in points
  std::optional<int> offset = {};       // from the base line; up when positive
  std::optional<TextScript> script = {};
  std::optional<TextColour> colour = {};
  std::optional<TextColour> ground = {};
  std::optional<std::wstring> face = {};  // at most 31 units
  bool operator==(const CharacterFormat&) const = default;
};

// The platform's own numbers.
enum class RichAlignment { kLeft = 1, kRight = 2, kCentre = 3, kJustified = 4 };
enum class RichNumbering {
  kNone = 0,
  kBullets = 1,
  kFigures = 2,
  kSmallLetters = 3,
  kCapitals = 4,
  kSmallRoman = 5,
  kCapitalRoman = 6
};

// Rule 0, 1 and 2 are one, one and a half and two lines, 3 at least and 4 exactly `spacing` twips,
// 5 `spacing` twentieths of a line.
struct LineSpacing {
  int rule = 0;
  int spacing = 0;
  bool operator==(const LineSpacing&) const = default;
};

struct RichParagraph {
  std::optional<RichAlignment> alignment = {};
  std::optional<int> start_indent = {};  // of the first line
  std::optional<int> offset = {};        // of the other lines, from the first one
  std::optional<int> right_indent = {};
  std::optional<int> space_before = {};
  std::optional<int> space_after = {};
  std::optional<LineSpacing> line_spacing = {};
  std::optional<RichNumbering> numbering = {};
  std::optional<int> numbering_start = {};
  std::optional<std::vector<int>> tabs = {};  // from the left, at most 32
  bool operator==(const RichParagraph&) const = default;
};

CHARFORMAT2W ToSystem(const CharacterFormat& format);
CharacterFormat FromSystem(const CHARFORMAT2W& format);
PARAFORMAT2 ToSystem(const RichParagraph& format);
RichParagraph FromSystem(const PARAFORMAT2& format);

}  // namespace varnel
