#include "widgets/notes/text/note_spacing.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace varnel {
namespace {

std::int32_t Rounded(double value, double most) {
  if (std::isnan(value)) return 0;
  return static_cast<std::int32_t>(std::lround(std::clamp(value, -most, most)));
}

// The nearest whole quotient of what is not negative, halves upwards.
std::int64_t Quotient(std::int64_t value, std::int64_t by) {
  return (value + by / 2) / by;
}

std::wstring TenthsText(std::int64_t tenths) {
  std::wstring text = std::to_wstring(tenths / 10);
  if (tenths % 10 != 0) text += L"." + std::to_wstring(tenths % 10);
  return text;
}

std::wstring Counted(int count, std::wstring_view one, std::wstring_view several) {
  return std::to_wstring(count) + std::wstring(count == 1 ? one : several);
}

}  // namespace

const std::array<NamedSpacing, 6> kNamedSpacings = {{
    {L"Single Spacing", L"1", 1, LineRule::kSingle},
    {L"1.15 Spacing", L"1.15", 1.15, LineRule::kMultiple},
    {L"1.25 Spacing", L"1.25", 1.25, LineRule::kMultiple},
    {L"One-and-a-half Spacing", L"1.5", 1.5, LineRule::kMultiple},
    {L"Double Spacing", L"2", 2, LineRule::kDouble},
    {L"Custom Spacing", L"", 0, LineRule::kMultiple},
}};

ParagraphSpacing TextLineSpacing(LineRule rule, double line, double before, double after) {
  constexpr double kMost = 2'000'000;
  return {rule, Rounded(line * 20, kMost), Rounded(before * 50, kMost), Rounded(after * 50, kMost)};
}

SpacingShown ShownSpacing(const ParagraphSpacing& spacing) {
  const auto shown = [](std::int32_t twips) {
    return TenthsText(Quotient(std::max(twips, 0), 5));  // 0.02 each, in tenths
  };
  SpacingShown result{5, std::nullopt, shown(spacing.before), shown(spacing.after)};
  switch (spacing.rule) {
    case LineRule::kSingle:
      result.named = 0;
      break;
    case LineRule::kOneAndHalf:
      result.named = 3;
      break;
    case LineRule::kDouble:
      result.named = 4;
      break;
    default:
      result.lines =
          TenthsText(Quotient(std::max<std::int64_t>(spacing.line_spacing, 0) * 49, 100));
      break;
  }
  return result;
}

std::int32_t TextIndentIncr(std::int32_t indent, std::int32_t editor_width) {
  return indent < editor_width - 2000 ? indent + 720 : indent;
}

std::int32_t TextIndentDecr(std::int32_t indent) {
  return indent > 720 ? indent - 720 : 0;
}

std::int32_t ScriptOffset(int option) {
  constexpr std::int32_t kRaised = 27;
  return option == 0 ? kRaised : option == 2 ? -kRaised : 0;
}

int ScriptOption(std::int32_t offset) {
  return offset > 0 ? 0 : offset < 0 ? 2 : 1;
}

bool IsPictureFile(std::wstring_view path) {
  constexpr std::wstring_view kExtensions[] = {L"BMP", L"JPG", L"GIF", L"WMF", L"PNG"};
  const std::size_t dot = path.rfind(L'.');
  if (dot == std::wstring_view::npos) return false;
  return std::ranges::any_of(kExtensions, [&](std::wstring_view extension) {
    return EqualsIgnoreCase(path.substr(dot + 1), extension);
  });
}

std::wstring CountStatus(const TextCounts& text, const std::optional<TextCounts>& selected) {
  const bool word = text.words == 1 || text.chars == 1;
  std::wstring status = std::to_wstring(text.words) + (word ? L" word (" : L" words (") +
                        Counted(text.chars, L" char). ", L" chars). ");
  if (!selected || selected->chars == 0) return status;
  const bool one = selected->words == 1;
  status += std::to_wstring(selected->words) + (one ? L" sel word (" : L" sel words (");
  status += std::to_wstring(selected->chars);
  return status += one && selected->chars == 1 ? L" sel char). " : L" sel chars). ";
}

std::wstring LineStatus(int current, int total) {
  return std::to_wstring(current) + L" of " + Counted(total, L" line. ", L" lines. ");
}

}  // namespace varnel
