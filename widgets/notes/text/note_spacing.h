// The arithmetic of paragraphs and the texts below the editor.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/notes/rtf/rtf_document.h"
#include "widgets/notes/text/note_text.h"

namespace varnel {

// What the platform's paragraph record takes: before and after in twips, the line spacing as its
// rule says.
struct ParagraphSpacing {
  LineRule rule = LineRule::kSingle;
  std::int32_t line_spacing = 0;
  std::int32_t before = 0;
  std::int32_t after = 0;
  bool operator==(const ParagraphSpacing&) const = default;
};

struct NamedSpacing {
  std::wstring_view name;
  std::wstring_view lines;  // as shown for it; empty: the user's own number
  double line = 0;          // in lines; 0: the user's own number
  LineRule rule = LineRule::kMultiple;
};

// In the order of their list.
extern const std::array<NamedSpacing, 6> kNamedSpacings;

// `line` in lines, `before` and `after` in units of 50 twips; each product is rounded to the
// nearest whole number, halves away from zero, and limited to the record's 16 or 32 bits.
ParagraphSpacing TextLineSpacing(LineRule rule, double line, double before, double after);

// What the panel shows of a paragraph, numbers to one decimal with a point.
struct SpacingShown {
  std::size_t named = 0;              // index into kNamedSpacings
  std::optional<std::wstring> lines;  // told only where the spacing is the user's own
  std::wstring before;
  std::wstring after;
};

// Line spacings count 0.049 lines each, so that 1.15 lines come back as 1.1; space counts 0.02.
SpacingShown ShownSpacing(const ParagraphSpacing& spacing);

// An indent after one step, in twips. No step leads below 0, nor beyond the editor's width less
// 2,000 twips where that is reached already.
std::int32_t TextIndentIncr(std::int32_t indent, std::int32_t editor_width);
std::int32_t TextIndentDecr(std::int32_t indent);

// Raised and lowered letters by option, 0 raised, 1 normal, 2 lowered; in twips.
std::int32_t ScriptOffset(int option);
int ScriptOption(std::int32_t offset);

struct QuickStyle {
  int points = 12;
  bool bold = false;
  bool italic = false;
};
inline constexpr std::array<QuickStyle, 7> kQuickStyles = {{{18, true, false},
                                                            {16, true, true},
                                                            {16, true, false},
                                                            {14, true, true},
                                                            {14, true, false},
                                                            {12, true, false},
                                                            {12, false, false}}};

// In points.
inline constexpr std::array<int, 21> kFontSizes = {7,  8,  9,  10, 11, 12, 13, 14, 16, 18, 20,
                                                   22, 24, 26, 28, 32, 36, 40, 48, 60, 72};

// Whether a file's extension is one of those that can be inserted as a picture.
bool IsPictureFile(std::wstring_view path);

// The words and characters of the whole text, and of what is selected where something is.
std::wstring CountStatus(const TextCounts& text, const std::optional<TextCounts>& selected);
// `current` counts from 1.
std::wstring LineStatus(int current, int total);

}  // namespace varnel
