// A formatted text in memory: what the RTF reader makes, and what is written, laid out and counted.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varnel {

// Characters of RtfDocument::text that stand for more than themselves.
inline constexpr wchar_t kParagraphEnd = L'\r';
inline constexpr wchar_t kLineBreak = L'\v';
inline constexpr wchar_t kPageBreak = L'\f';
inline constexpr wchar_t kObject = static_cast<wchar_t>(0xFFFC);  // a picture

// A colour with red in the low byte, or this: the system's text or window colour.
inline constexpr std::int32_t kAutomaticColour = -1;

inline constexpr int kSymbolCharset = 2;

struct RtfFont {
  std::wstring name;
  int charset = 0;  // a platform number: 0 western, 1 the system's, kSymbolCharset, 238 ...
  bool operator==(const RtfFont&) const = default;
};

enum class Underline : std::uint8_t {
  kNone,
  kSingle,
  kWords,
  kDouble,
  kDotted,
  kDashed,
  kThick,
  kWave
};
enum class Script : std::uint8_t { kNormal, kSuper, kSub };

struct CharFormat {
  std::uint16_t font = 0;          // index into RtfDocument::fonts
  std::uint16_t half_points = 24;  // 2 to 3276
  std::int16_t raised = 0;         // half points above the base line, below it when negative
  bool bold = false;
  bool italic = false;
  bool struck = false;
  bool hidden = false;
  bool capitals = false;
  bool small_capitals = false;
  bool right_to_left = false;
  Underline underline = Underline::kNone;
  Script script = Script::kNormal;
  std::int32_t colour = kAutomaticColour;
  std::int32_t ground = kAutomaticColour;  // behind the letters
  auto operator<=>(const CharFormat&) const = default;
};

enum class Alignment : std::uint8_t { kLeft, kRight, kCentre, kJustified };

// The platform's line spacing rules, by its numbers.
enum class LineRule : std::uint8_t {
  kSingle,
  kOneAndHalf,
  kDouble,
  kAtLeast,  // twips
  kExactly,  // twips
  kMultiple  // twentieths of a line
};

enum class TabKind : std::uint8_t { kLeft, kCentre, kRight, kDecimal, kBar };

struct TabStop {
  std::int32_t at = 0;  // twips from the paragraph's left edge of the column
  TabKind kind = TabKind::kLeft;
  std::uint8_t leader = 0;  // 0 none, 1 dots, 2 hyphens, 3 line, 4 thick line, 5 equal signs
  auto operator<=>(const TabStop&) const = default;
};

// The platform's numbering styles, by its numbers.
enum class Numbering : std::uint8_t {
  kNone,
  kBullet,
  kArabic,
  kLowerLetter,
  kUpperLetter,
  kLowerRoman,
  kUpperRoman
};

inline constexpr std::size_t kMostTabStops = 32;

// Lengths in twips.
struct ParagraphFormat {
  Alignment alignment = Alignment::kLeft;
  bool right_to_left = false;
  bool page_break_before = false;
  bool keep_together = false;
  bool keep_with_next = false;
  std::int32_t left = 0;   // all lines but the first
  std::int32_t first = 0;  // the first line, from `left`; negative for a hanging one
  std::int32_t right = 0;
  std::int32_t space_before = 0;
  std::int32_t space_after = 0;
  LineRule line_rule = LineRule::kSingle;
  std::int32_t line_spacing = 0;  // twips or twentieths, as `line_rule` says; else 0
  Numbering numbering = Numbering::kNone;
  std::int32_t number_start = 1;  // of bullets always 1
  wchar_t number_end = L'.';  // what follows the number: "." or ")", or 0 for nothing; of bullets 0
  std::int32_t number_gap = 0;  // between number or bullet and text; 0: up to the next tab stop
  std::vector<TabStop> tabs;    // ascending, at most kMostTabStops
  auto operator<=>(const ParagraphFormat&) const = default;
};

enum class PictureKind : std::uint8_t { kPng, kJpeg, kEmf, kWmf, kDib, kBitmap };

struct RtfPicture {
  std::size_t at = 0;  // its kObject in the text
  PictureKind kind = PictureKind::kPng;
  std::string bytes;  // as the file had them: a whole PNG, a WMF without placeable header ...
  std::int32_t metafile_mode = 8;  // WMF: its mapping mode
  std::int32_t width = 0;          // as stored: pixels, or for metafiles 1/100 mm; 0 unknown
  std::int32_t height = 0;
  std::int32_t width_twips = 0;  // wished size before scaling; 0: not said
  std::int32_t height_twips = 0;
  std::int32_t scale_x = 100;  // percent, 1 to 10,000
  std::int32_t scale_y = 100;
  std::int32_t crop_left = 0;  // twips of the wished size
  std::int32_t crop_top = 0;
  std::int32_t crop_right = 0;
  std::int32_t crop_bottom = 0;
  bool operator==(const RtfPicture&) const = default;
};

// From `begin` up to the next run's begin, or the text's end.
struct RtfRun {
  std::size_t begin = 0;
  std::uint32_t format = 0;  // index into RtfDocument::char_formats
  bool operator==(const RtfRun&) const = default;
};

// From `begin` up to and with the kParagraphEnd before the next one, or the text's end.
struct RtfParagraph {
  std::size_t begin = 0;
  std::uint32_t format = 0;  // index into RtfDocument::paragraph_formats
  bool operator==(const RtfParagraph&) const = default;
};

// What a file held that this document cannot hold, so that saving it would lose it.
struct RtfLosses {
  bool objects = false;  // embedded programs' data; the picture shown for it is kept
  bool tables = false;   // their text is kept, a tab between cells
  bool margins = false;  // headers, footers, footnotes, remarks
  bool links = false;    // addresses behind text; the text is kept
  bool operator==(const RtfLosses&) const = default;
};

struct RtfDocument {
  // UTF-16 units in every build, one kParagraphEnd between two paragraphs and none after the last:
  // the very text that the platform's rich edit control has for the same file.
  std::wstring text;
  std::vector<RtfFont> fonts;  // never empty once read
  std::vector<CharFormat> char_formats;
  std::vector<ParagraphFormat> paragraph_formats;
  std::vector<RtfRun> runs;              // ascending; empty when the text is
  std::vector<RtfParagraph> paragraphs;  // ascending, the first at 0; at least one
  std::vector<RtfPicture> pictures;      // ascending
  RtfLosses losses;
  std::int32_t default_tab = 720;  // twips between tab stops after the last of a paragraph
};

}  // namespace varnel
