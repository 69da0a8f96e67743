// The control words of RTF that the reader knows.
#pragma once

#include <cstdint>
#include <string_view>

namespace varnel {

// What a word does; its argument, where it has one, is told in brackets.
enum class RtfWord : std::uint8_t {
  kUnknown,
  kCharacter,    // stands for a character [the unit]
  kCell,         // ends a table's cell
  kRow,          // ends a table's row
  kDestination,  // makes its group something else than text [RtfDestination]
  kHeader,       // code page of the file [page, 0: the value]
  kDefaultFont,
  kDefaultTab,
  kUnicode,      // \uN
  kUnicodeSkip,  // \ucN
  kFont,
  kFontCharset,
  kFontPage,
  kRed,
  kGreen,
  kBlue,
  kPlain,
  kToggle,     // [CharToggle]
  kUnderline,  // [Underline]
  kScript,     // [Script]
  kRaised,     // [1 up, -1 down]
  kSize,
  kColour,
  kGround,
  kDirection,  // of letters [1 right to left]
  kParagraphDefaults,
  kAlignment,  // [Alignment]
  kLength,     // [ParagraphLength]
  kLineSpacing,
  kLineMultiple,
  kTab,
  kBarTab,
  kTabKind,        // [TabKind]
  kTabLeader,      // [leader]
  kParagraphFlag,  // [ParagraphFlag]
  kTable,
  kList,
  kListLevel,
  kNumbering,  // [Numbering]
  kNumberStart,
  kNumberGap,
  kListId,
  kLevelStyle,  // \levelnfc
  kLevelStart,
  kPictureKind,   // [PictureKind, -1: one that cannot be shown]
  kPictureValue,  // [PictureValue]
};

// What a group holds.
enum class RtfDestination : std::uint8_t {
  kText,
  kSkip,
  kFonts,
  kColours,
  kLists,  // the list table
  kList,   // one list of it
  kLevel,  // one level of a list
  kLevelText,
  kOverrides,
  kOverride,
  kPicture,
  kNumbering,     // \pn
  kNumberAfter,   // \pntxta
  kListText,      // the number or bullet as text, for readers that cannot number
  kObject,        // skipped but for its result
  kShape,         // skipped but for pictures
  kShapeResult,   // text, unless the shape gave its picture already
  kMargin,        // skipped, and missed
  kInstruction,   // of a field
  kOtherPicture,  // the picture before in a poorer form
  kWrapper        // text that belongs to a picture: \shppict, \shp
};

enum class CharToggle : std::uint8_t {
  kBold,
  kItalic,
  kStruck,
  kHidden,
  kCapitals,
  kSmallCapitals
};

enum class ParagraphLength : std::uint8_t { kLeft, kFirst, kRight, kBefore, kAfter };

enum class ParagraphFlag : std::uint8_t {
  kPageBreakBefore,
  kKeepTogether,
  kKeepWithNext,
  kRightToLeft,
  kLeftToRight
};

enum class PictureValue : std::uint8_t {
  kWidth,
  kHeight,
  kWidthTwips,
  kHeightTwips,
  kScaleX,
  kScaleY,
  kCropLeft,
  kCropTop,
  kCropRight,
  kCropBottom
};

struct RtfWordMeaning {
  RtfWord word = RtfWord::kUnknown;
  int argument = 0;
};

// `name` without backslash and number. Names are told apart by case, as in RTF.
RtfWordMeaning MeaningOf(std::string_view name);

}  // namespace varnel
