#include "widgets/notes/rtf/rtf_formats.h"

#include <algorithm>
#include <cstdlib>

namespace varnel {
namespace {

constexpr std::int32_t kLongest =
    22 * 1440;  // the longest length that the platform's control takes
constexpr std::int32_t kTwipsPerLine = 240;

std::int32_t Length(std::int32_t value) {
  return std::clamp(value, -kLongest, kLongest);
}

void Toggle(CharToggle toggle, bool on, CharFormat& format) {
  switch (toggle) {
    case CharToggle::kBold:
      format.bold = on;
      return;
    case CharToggle::kItalic:
      format.italic = on;
      return;
    case CharToggle::kStruck:
      format.struck = on;
      return;
    case CharToggle::kHidden:
      format.hidden = on;
      return;
    case CharToggle::kCapitals:
      format.capitals = on;
      return;
    case CharToggle::kSmallCapitals:
      format.small_capitals = on;
      return;
  }
}

void SetLength(ParagraphLength length, std::int32_t value, ParagraphFormat& format) {
  switch (length) {
    case ParagraphLength::kLeft:
      format.left = Length(value);
      return;
    case ParagraphLength::kFirst:
      format.first = Length(value);
      return;
    case ParagraphLength::kRight:
      format.right = Length(value);
      return;
    case ParagraphLength::kBefore:
      format.space_before = std::max(0, Length(value));
      return;
    case ParagraphLength::kAfter:
      format.space_after = std::max(0, Length(value));
      return;
  }
}

void SetFlag(ParagraphFlag flag, bool on, ParagraphFormat& format) {
  switch (flag) {
    case ParagraphFlag::kPageBreakBefore:
      format.page_break_before = on;
      return;
    case ParagraphFlag::kKeepTogether:
      format.keep_together = on;
      return;
    case ParagraphFlag::kKeepWithNext:
      format.keep_with_next = on;
      return;
    case ParagraphFlag::kRightToLeft:
      format.right_to_left = true;
      return;
    case ParagraphFlag::kLeftToRight:
      format.right_to_left = false;
      return;
  }
}

void AddTab(std::int32_t at, ParagraphState& state) {
  TabStop stop = state.next_tab;
  state.next_tab = {};
  stop.at = Length(at);
  std::vector<TabStop>& tabs = state.format.tabs;
  const auto place = std::ranges::lower_bound(tabs, stop.at, {}, &TabStop::at);
  if (place != tabs.end() && place->at == stop.at) {
    *place = stop;
  } else if (tabs.size() < kMostTabStops) {
    tabs.insert(place, stop);
  }
}

}  // namespace

bool ApplyToCharacters(const RtfWordUse& use, CharFormat& format) {
  const bool on = !use.has_value || use.value != 0;
  switch (use.word) {
    case RtfWord::kToggle:
      Toggle(static_cast<CharToggle>(use.argument), on, format);
      return true;
    case RtfWord::kUnderline:
      format.underline = on ? static_cast<Underline>(use.argument) : Underline::kNone;
      return true;
    case RtfWord::kScript:
      format.script = on ? static_cast<Script>(use.argument) : Script::kNormal;
      return true;
    case RtfWord::kRaised: {
      constexpr std::int32_t kUsual = 6;
      const std::int32_t by = use.has_value ? std::clamp(use.value, -3276, 3276) : kUsual;
      format.raised = static_cast<std::int16_t>(by * use.argument);
      return true;
    }
    case RtfWord::kSize:
      if (!use.has_value) format.half_points = CharFormat().half_points;
      if (use.value > 0)
        format.half_points = static_cast<std::uint16_t>(std::clamp(use.value, 2, 3276));
      return true;
    case RtfWord::kDirection:
      format.right_to_left = use.argument == 1;
      return true;
    default:
      return false;
  }
}

bool ApplyToParagraph(const RtfWordUse& use, ParagraphState& state) {
  ParagraphFormat& format = state.format;
  const bool on = !use.has_value || use.value != 0;
  switch (use.word) {
    case RtfWord::kParagraphDefaults:
      state = {};
      return true;
    case RtfWord::kAlignment:
      format.alignment = static_cast<Alignment>(use.argument);
      return true;
    case RtfWord::kLength:
      SetLength(static_cast<ParagraphLength>(use.argument), use.value, format);
      return true;
    case RtfWord::kLineSpacing:
      state.line_spacing = use.value == 1000 ? 0 : Length(use.value);  // 1000: as the letters need
      return true;
    case RtfWord::kLineMultiple:
      state.line_multiple = on;
      return true;
    case RtfWord::kTab:
      AddTab(use.value, state);
      return true;
    case RtfWord::kBarTab:
      state.next_tab.kind = TabKind::kBar;
      AddTab(use.value, state);
      return true;
    case RtfWord::kTabKind:
      state.next_tab.kind = static_cast<TabKind>(use.argument);
      return true;
    case RtfWord::kTabLeader:
      state.next_tab.leader = static_cast<std::uint8_t>(use.argument);
      return true;
    case RtfWord::kParagraphFlag:
      SetFlag(static_cast<ParagraphFlag>(use.argument), on, format);
      return true;
    case RtfWord::kList:
      state.list = use.value;
      return true;
    case RtfWord::kListLevel:
      state.level = std::clamp(use.value, 0, 8);
      return true;
    default:
      return false;
  }
}

ParagraphFormat ResolvedFormat(const ParagraphState& state) {
  ParagraphFormat format = state.format;
  const std::int32_t spacing = state.line_spacing;
  if (spacing == 0) return format;
  if (!state.line_multiple) {
    format.line_rule = spacing > 0 ? LineRule::kAtLeast : LineRule::kExactly;
    format.line_spacing = std::abs(spacing);
    return format;
  }
  constexpr std::int32_t kLine = 20;  // twentieths
  const std::int32_t twentieths =
      std::max(1, (std::abs(spacing) * kLine + kTwipsPerLine / 2) / kTwipsPerLine);
  if (twentieths == 2 * kLine) {
    format.line_rule = LineRule::kDouble;
  } else if (twentieths != kLine) {
    format.line_rule = LineRule::kMultiple;
    format.line_spacing = twentieths;
  }
  return format;
}

bool ApplyToPicture(const RtfWordUse& use, RtfPicture& picture, bool& known) {
  if (use.word == RtfWord::kPictureKind) {
    known = use.argument >= 0;
    if (!known) return true;
    picture.kind = static_cast<PictureKind>(use.argument);
    const bool has_mode = picture.kind == PictureKind::kWmf && use.has_value;
    picture.metafile_mode = has_mode ? use.value : RtfPicture().metafile_mode;
    return true;
  }
  if (use.word != RtfWord::kPictureValue) return false;
  constexpr std::int32_t kMost = 1'000'000;
  const std::int32_t value = std::clamp(use.value, -kMost, kMost);
  const auto scale = [&] { return value < 1 ? 100 : std::min(value, 10'000); };
  switch (static_cast<PictureValue>(use.argument)) {
    case PictureValue::kWidth:
      picture.width = std::max(0, value);
      break;
    case PictureValue::kHeight:
      picture.height = std::max(0, value);
      break;
    case PictureValue::kWidthTwips:
      picture.width_twips = std::max(0, value);
      break;
    case PictureValue::kHeightTwips:
      picture.height_twips = std::max(0, value);
      break;
    case PictureValue::kScaleX:
      picture.scale_x = scale();
      break;
    case PictureValue::kScaleY:
      picture.scale_y = scale();
      break;
    case PictureValue::kCropLeft:
      picture.crop_left = value;
      break;
    case PictureValue::kCropTop:
      picture.crop_top = value;
      break;
    case PictureValue::kCropRight:
      picture.crop_right = value;
      break;
    case PictureValue::kCropBottom:
      picture.crop_bottom = value;
      break;
  }
  return true;
}

Numbering NumberingOfLevel(std::int32_t level_style) {
  switch (level_style) {
    case 0:
    case 5:   // 1st
    case 22:  // 01
      return Numbering::kArabic;
    case 1:
      return Numbering::kUpperRoman;
    case 2:
      return Numbering::kLowerRoman;
    case 3:
      return Numbering::kUpperLetter;
    case 4:
      return Numbering::kLowerLetter;
    case 23:
      return Numbering::kBullet;
    default:
      return Numbering::kNone;
  }
}

}  // namespace varnel
