#include "widgets/notes/rtf/rtf_header_tables.h"

#include <algorithm>
#include <utility>

#include "widgets/notes/rtf/code_pages.h"

namespace varnel {

void RtfFontTable::Begin(std::int32_t number) {
  const auto known = indices_.find(number);
  if (known != indices_.end()) {
    entry_ = known->second;
    fonts_[*entry_] = {};
    pages_[*entry_] = {};
    return;
  }
  entry_.reset();
  if (fonts_.size() >= kMostFonts) return;
  entry_ = fonts_.size();
  indices_.emplace(number, static_cast<std::uint16_t>(*entry_));
  fonts_.emplace_back();
  pages_.emplace_back();
}

void RtfFontTable::SetCharset(std::int32_t charset) {
  if (!entry_) return;
  fonts_[*entry_].charset = std::clamp(charset, 0, 255);
  pages_[*entry_].has_charset = true;
}

void RtfFontTable::SetPage(std::int32_t page) {
  if (entry_) pages_[*entry_].own = page;
}

void RtfFontTable::AddToName(wchar_t unit) {
  if (!entry_) return;
  if (unit == L';') {
    entry_.reset();
    return;
  }
  // What RTF means something by cannot be part of a face's name.
  const bool allowed = unit >= L' ' && unit != L'{' && unit != L'}' && unit != L'\\';
  std::wstring& name = fonts_[*entry_].name;
  if (allowed && name.size() < kLongestName && !(name.empty() && unit == L' ')) name += unit;
}

std::uint16_t RtfFontTable::IndexOf(std::int32_t number) const {
  const auto found = indices_.find(number);
  return found == indices_.end() ? 0 : found->second;
}

int RtfFontTable::PageOf(std::uint16_t index, int system_page) const {
  if (index >= fonts_.size()) return system_page;
  const Page& page = pages_[index];
  if (page.own > 0) return page.own;
  return page.has_charset ? CodePageOfCharset(fonts_[index].charset, system_page) : system_page;
}

int RtfFontTable::PageOfEntry(int system_page) const {
  const int page = entry_ ? PageOf(static_cast<std::uint16_t>(*entry_), system_page) : system_page;
  return page == kSymbolCodePage ? system_page : page;
}

std::vector<RtfFont> RtfFontTable::Take() {
  if (fonts_.empty()) fonts_.emplace_back();
  return std::move(fonts_);
}

void RtfColourTable::Set(RtfWord channel, std::int32_t value) {
  const int shift = channel == RtfWord::kRed ? 0 : channel == RtfWord::kGreen ? 8 : 16;
  if (entry_ == kAutomaticColour) entry_ = 0;
  entry_ = (entry_ & ~(0xFF << shift)) | std::clamp(value, 0, 255) << shift;
}

void RtfColourTable::EndEntry() {
  if (colours_.size() < kMostColours) colours_.push_back(entry_);
  entry_ = kAutomaticColour;
}

std::int32_t RtfColourTable::At(std::int32_t number) const {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < colours_.size() ? colours_[index] : kAutomaticColour;
}

void RtfListTable::BeginLevel() {
  if (!lists_.empty() && lists_.back().size() < kMostLevels) lists_.back().emplace_back();
}

void RtfListTable::AddToLevelText(wchar_t unit) {
  // The text is the number's place, a control character, between others; ";" ends it.
  if (lists_.empty() || lists_.back().empty() || unit == L';') return;
  lists_.back().back().end = unit == L'.' || unit == L')' ? unit : L'\0';
}

void RtfListTable::Apply(const RtfWordUse& use) {
  if (lists_.empty()) return;
  if (use.word == RtfWord::kListId) lists_by_id_.emplace(use.value, lists_.size() - 1);
  if (lists_.back().empty()) return;
  Level& level = lists_.back().back();
  if (use.word == RtfWord::kLevelStyle) level.numbering = NumberingOfLevel(use.value);
  if (use.word == RtfWord::kLevelStart) level.start = std::clamp(use.value, 0, 32'767);
}

void RtfListTable::ApplyToOverride(const RtfWordUse& use) {
  if (use.word == RtfWord::kListId) override_.id = use.value;
  if (use.word == RtfWord::kList) override_.number = use.value;
}

void RtfListTable::Number(std::int32_t list, std::int32_t level, ParagraphFormat& format) const {
  const auto id = ids_.find(list);
  if (id == ids_.end()) return;
  const auto found = lists_by_id_.find(id->second);
  if (found == lists_by_id_.end()) return;
  const std::vector<Level>& levels = lists_[found->second];
  if (static_cast<std::size_t>(level) >= levels.size()) return;
  const Level& used = levels[static_cast<std::size_t>(level)];
  format.numbering = used.numbering;
  if (used.numbering == Numbering::kNone || used.numbering == Numbering::kBullet) return;
  format.number_start = used.start;
  format.number_end = used.end;
}

}  // namespace varnel
