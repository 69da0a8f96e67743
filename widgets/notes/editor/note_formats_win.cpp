#include "widgets/notes/editor/note_formats_win.h"

#include <algorithm>
#include <limits>

#include "widgets/notes/note_settings.h"

namespace varnel {
namespace {

constexpr int kLeastPoints = 1;
constexpr int kMostPoints = 1638;
constexpr int kBulletGap = 360;  // twips between a bullet and its text

CharacterFormat BaseFormat(const Settings& settings, const Setting& font) {
  const auto points = ReadNumber(settings, kNoteFontSize, kLeastPoints, kMostPoints);
  const auto colour =
      ReadNumber(settings, kNoteFontColour, std::numeric_limits<Colour>::min(), kWhite);
  return {.bold = false,
          .italic = false,
          .underline = false,
          .strikeout = false,
          .half_points = static_cast<int>(points) * 2,
          .offset = 0,
          .colour = TextColourOf(static_cast<Colour>(colour)),
          .face = settings.Read(font)};
}

}  // namespace

TextColour TextColourOf(Colour colour) {
  if (colour >= 0) return {false, static_cast<COLORREF>(colour)};
  const int index = colour & 0xFF;
  if (index == COLOR_WINDOWTEXT) return {};
  return {false, ::GetSysColor(index)};
}

CharacterFormat NoteBaseFormat(const Settings& settings) {
  return BaseFormat(settings, kNoteFontName);
}

CharacterFormat ClearedFormat(const Settings& settings) {
  return BaseFormat(settings, kClearedFontName);
}

void NoteFormats::Set(const CharacterFormat& format) {
  if (editor_.rich()) editor_.edit().SetFormat(format);
}

void NoteFormats::Set(const RichParagraph& format) {
  if (editor_.rich()) editor_.edit().SetParagraph(format);
}

void NoteFormats::TextBoldSet() {
  Set({.bold = !characters().bold.value_or(false)});
}

void NoteFormats::TextItalicSet() {
  Set({.italic = !characters().italic.value_or(false)});
}

void NoteFormats::TextUnderlineSet() {
  Set({.underline = !characters().underline.value_or(false)});
}

void NoteFormats::SetFont(const std::wstring& face) {
  Set({.face = face});
}

void NoteFormats::SetPoints(int points) {
  Set({.half_points = std::clamp(points, kLeastPoints, kMostPoints) * 2});
}

void NoteFormats::SetColour(COLORREF colour) {
  Set({.colour = TextColour{false, colour}});
}

void NoteFormats::TextFontScriptSet(int index) {
  Set(CharacterFormat{.offset = ScriptOffset(index)});
}

void NoteFormats::QuickStyleSet(int index) {
  const QuickStyle& style = kQuickStyles.at(static_cast<std::size_t>(index));
  Set({.bold = style.bold, .italic = style.italic, .half_points = style.points * 2});
}

void NoteFormats::TextFormatClear() {
  if (!editor_.rich()) return;
  Set(RichParagraph{.numbering = RichNumbering::kNone});
  Set(ClearedFormat(settings_));
  TextFontScriptSet(1);
}

void NoteFormats::ClearWholeNote() {
  RichEdit& edit = editor_.edit();
  const RichRange selection = edit.Selection();
  edit.SelectAll();
  TextFormatClear();
  edit.Select(selection);
}

void NoteFormats::TextAlignmentSet(int option) {
  if (!editor_.rich()) return;
  editor_.edit().UseAdvancedTypography();
  Set(RichParagraph{.alignment = static_cast<RichAlignment>(option + 1)});
}

void NoteFormats::TextIndentIncr() {
  RECT client = {};
  ::GetClientRect(editor_.handle(), &client);
  const int dpi = static_cast<int>(::GetDpiForWindow(editor_.handle()));
  const int width = TwipsFromPixels(static_cast<int>(client.right), dpi);
  const int indent = paragraph().start_indent.value_or(0);
  Set(RichParagraph{.start_indent = varnel::TextIndentIncr(indent, width)});
}

void NoteFormats::TextIndentDecr() {
  const int indent = paragraph().start_indent.value_or(0);
  Set(RichParagraph{.start_indent = varnel::TextIndentDecr(indent)});
}

void NoteFormats::TextBullets() {
  const bool on = paragraph().numbering != RichNumbering::kBullets;
  Set(RichParagraph{.offset = on ? kBulletGap : 0,
                    .numbering = on ? RichNumbering::kBullets : RichNumbering::kNone});
}

void NoteFormats::TextLineSpacingSet(LineRule rule, double line, double before, double after) {
  const ParagraphSpacing spacing = TextLineSpacing(rule, line, before, after);
  Set(RichParagraph{
      .space_before = spacing.before,
      .space_after = spacing.after,
      .line_spacing = LineSpacing{static_cast<int>(spacing.rule), spacing.line_spacing}});
}

}  // namespace varnel
