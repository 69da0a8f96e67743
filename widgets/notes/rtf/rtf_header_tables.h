// The tables at the head of an RTF file: fonts, colours, lists.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "widgets/notes/rtf/rtf_document.h"
#include "widgets/notes/rtf/rtf_formats.h"

namespace varnel {

class RtfFontTable {
 public:
  static constexpr std::size_t kMostFonts = 32'767;
  static constexpr std::size_t kLongestName = 31;  // the platform's limit of face names

  // Begins the entry of that number; a second one of the same number replaces the first.
  void Begin(std::int32_t number);
  void SetCharset(std::int32_t charset);
  void SetPage(std::int32_t page);
  void AddToName(wchar_t unit);  // ";" ends the entry

  // The index of a font among all(), 0 where the table has no such number.
  std::uint16_t IndexOf(std::int32_t number) const;
  // The code page of the font at an index.
  int PageOf(std::uint16_t index, int system_page) const;
  // The page of the entry that is being read.
  int PageOfEntry(int system_page) const;
  // The fonts; one without a name where the table has none.
  std::vector<RtfFont> Take();

 private:
  struct Page {
    std::int32_t own = 0;  // \cpg; 0: the charset's
    bool has_charset = false;
  };

  std::vector<RtfFont> fonts_;
  std::vector<Page> pages_;
  std::unordered_map<std::int32_t, std::uint16_t> indices_;
  std::optional<std::size_t> entry_;
};

class RtfColourTable {
 public:
  static constexpr std::size_t kMostColours = 65'536;

  void Set(RtfWord channel, std::int32_t value);
  void EndEntry();
  // kAutomaticColour where the table has no such number.
  std::int32_t At(std::int32_t number) const;

 private:
  std::vector<std::int32_t> colours_;
  std::int32_t entry_ = kAutomaticColour;
};

class RtfListTable {
 public:
  void BeginList() { lists_.emplace_back(); }
  void BeginLevel();
  void AddToLevelText(wchar_t unit);
  // A list's or level's word; the words of overrides come as such.
  void Apply(const RtfWordUse& use);
  void BeginOverride() { override_ = {}; }
  void ApplyToOverride(const RtfWordUse& use);
  void EndOverride() { ids_.emplace(override_.number, override_.id); }

  // Gives the format the numbering of a list's level, where there is one.
  void Number(std::int32_t list, std::int32_t level, ParagraphFormat& format) const;

 private:
  struct Level {
    Numbering numbering = Numbering::kNone;
    std::int32_t start = 1;
    wchar_t end = 0;
  };
  struct Override {
    std::int32_t number = 0;
    std::int32_t id = 0;
  };

  static constexpr std::size_t kMostLevels = 9;

  std::vector<std::vector<Level>> lists_;               // the levels of each
  std::unordered_map<std::int32_t, std::int32_t> ids_;  // by \ls
  std::unordered_map<std::int32_t, std::size_t> lists_by_id_;
  Override override_;
};

}  // namespace varnel
