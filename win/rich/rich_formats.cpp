#include "win/rich/rich_formats.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr int kTwipsPerHalfPoint = 10;

// A value that is one bit among the effects, with the same bit as its mask.
struct Effect {
  std::optional<bool> CharacterFormat::*value;
  DWORD bit;
};
constexpr Effect kEffects[] = {{&CharacterFormat::bold, CFE_BOLD},
                               {&CharacterFormat::italic, CFE_ITALIC},
                               {&CharacterFormat::underline, CFE_UNDERLINE},
                               {&CharacterFormat::strikeout, CFE_STRIKEOUT},
                               {&CharacterFormat::link, CFE_LINK}};

struct Length {
  std::optional<int> RichParagraph::*value;
  LONG PARAFORMAT2::*field;
  DWORD mask;
};
constexpr Length kLengths[] = {
    {&RichParagraph::start_indent, &PARAFORMAT2::dxStartIndent, PFM_STARTINDENT},
    {&RichParagraph::offset, &PARAFORMAT2::dxOffset, PFM_OFFSET},
    {&RichParagraph::right_indent, &PARAFORMAT2::dxRightIndent, PFM_RIGHTINDENT},
    {&RichParagraph::space_before, &PARAFORMAT2::dySpaceBefore, PFM_SPACEBEFORE},
    {&RichParagraph::space_after, &PARAFORMAT2::dySpaceAfter, PFM_SPACEAFTER}};

// The script's bits; both may be in the mask, only one in the effects.
void PutScript(CHARFORMAT2W& system, TextScript script) {
  system.dwMask |= CFM_SUPERSCRIPT;  // stands for both
  if (script == TextScript::kRaised) system.dwEffects |= CFE_SUPERSCRIPT;
  if (script == TextScript::kLowered) system.dwEffects |= CFE_SUBSCRIPT;
}

TextScript ScriptOf(DWORD effects) {
  if (effects & CFE_SUPERSCRIPT) return TextScript::kRaised;
  return effects & CFE_SUBSCRIPT ? TextScript::kLowered : TextScript::kNormal;
}

void PutColour(CHARFORMAT2W& system, const std::optional<TextColour>& colour, DWORD mask,
               DWORD automatic, COLORREF& field) {
  if (!colour) return;
  system.dwMask |= mask;
  if (colour->automatic) {
    system.dwEffects |= automatic;
  } else {
    field = colour->colour;
  }
}

std::optional<TextColour> ColourOf(const CHARFORMAT2W& system, DWORD mask, DWORD automatic,
                                   COLORREF field) {
  if (!(system.dwMask & mask)) return std::nullopt;
  if (system.dwEffects & automatic) return TextColour{};
  return TextColour{false, field};
}

}  // namespace

CHARFORMAT2W ToSystem(const CharacterFormat& format) {
  CHARFORMAT2W system = {};
  system.cbSize = sizeof system;
  for (const auto& [value, bit] : kEffects) {
    if (!(format.*value)) continue;
    system.dwMask |= bit;
    if (*(format.*value)) system.dwEffects |= bit;
  }
  if (format.half_points) {
    system.dwMask |= CFM_SIZE;
    system.yHeight = *format.half_points * kTwipsPerHalfPoint;
  }
  if (format.offset) {
    system.dwMask |= CFM_OFFSET;
    system.yOffset = *format.offset;
  }
  if (format.script) PutScript(system, *format.script);
  PutColour(system, format.colour, CFM_COLOR, CFE_AUTOCOLOR, system.crTextColor);
  PutColour(system, format.ground, CFM_BACKCOLOR, CFE_AUTOBACKCOLOR, system.crBackColor);
  if (format.face) {
    system.dwMask |= CFM_FACE | CFM_CHARSET;
    system.bCharSet = DEFAULT_CHARSET;
    format.face->copy(system.szFaceName, LF_FACESIZE - 1);
  }
  return system;
}

CharacterFormat FromSystem(const CHARFORMAT2W& system) {
  CharacterFormat format;
  for (const auto& [value, bit] : kEffects) {
    if (system.dwMask & bit) format.*value = (system.dwEffects & bit) != 0;
  }
  if (system.dwMask & CFM_SIZE) {
    format.half_points = static_cast<int>(system.yHeight) / kTwipsPerHalfPoint;
  }
  if (system.dwMask & CFM_OFFSET) format.offset = static_cast<int>(system.yOffset);
  if ((system.dwMask & CFM_SUPERSCRIPT) == CFM_SUPERSCRIPT) {
    format.script = ScriptOf(system.dwEffects);
  }
  format.colour = ColourOf(system, CFM_COLOR, CFE_AUTOCOLOR, system.crTextColor);
  format.ground = ColourOf(system, CFM_BACKCOLOR, CFE_AUTOBACKCOLOR, system.crBackColor);
  if (system.dwMask & CFM_FACE) format.face = system.szFaceName;
  return format;
}

PARAFORMAT2 ToSystem(const RichParagraph& format) {
  PARAFORMAT2 system = {};
  system.cbSize = sizeof system;
  for (const auto& [value, field, mask] : kLengths) {
    if (!(format.*value)) continue;
    system.dwMask |= mask;
    system.*field = *(format.*value);
  }
  if (format.alignment) {
    system.dwMask |= PFM_ALIGNMENT;
    system.wAlignment = static_cast<WORD>(*format.alignment);
  }
  if (format.line_spacing) {
    system.dwMask |= PFM_LINESPACING;
    system.bLineSpacingRule = static_cast<BYTE>(format.line_spacing->rule);
    system.dyLineSpacing = format.line_spacing->spacing;
  }
  if (format.numbering) {
    system.dwMask |= PFM_NUMBERING;
    system.wNumbering = static_cast<WORD>(*format.numbering);
  }
  if (format.numbering_start) {
    system.dwMask |= PFM_NUMBERINGSTART;
    system.wNumberingStart = static_cast<WORD>(*format.numbering_start);
  }
  if (format.tabs) {
    system.dwMask |= PFM_TABSTOPS;
    system.cTabCount =
        static_cast<SHORT>(std::min<std::size_t>(format.tabs->size(), MAX_TAB_STOPS));
    std::copy_n(format.tabs->begin(), system.cTabCount, system.rgxTabs);
  }
  return system;
}

RichParagraph FromSystem(const PARAFORMAT2& system) {
  RichParagraph format;
  for (const auto& [value, field, mask] : kLengths) {
    if (system.dwMask & mask) format.*value = static_cast<int>(system.*field);
  }
  if (system.dwMask & PFM_ALIGNMENT)
    format.alignment = static_cast<RichAlignment>(system.wAlignment);
  if (system.dwMask & PFM_LINESPACING) {
    format.line_spacing = {system.bLineSpacingRule, static_cast<int>(system.dyLineSpacing)};
  }
  if (system.dwMask & PFM_NUMBERING)
    format.numbering = static_cast<RichNumbering>(system.wNumbering);
  if (system.dwMask & PFM_NUMBERINGSTART) format.numbering_start = system.wNumberingStart;
  if (system.dwMask & PFM_TABSTOPS) {
    const int count = std::clamp<int>(system.cTabCount, 0, MAX_TAB_STOPS);
    format.tabs.emplace(system.rgxTabs, system.rgxTabs + count);
    // The upper byte tells the kind of tab, not its place.
    for (int& tab : *format.tabs) tab &= 0xFFFFFF;
  }
  return format;
}

}  // namespace varnel
