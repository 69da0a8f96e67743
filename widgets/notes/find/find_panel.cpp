#include "widgets/notes/find/find_panel.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/setting_lists.h"
#include "base/text.h"

namespace varnel {

void HistoryAdd(FindHistory& history, std::wstring_view text) {
  if (text.empty()) return;
  std::wstring entry(text);  // it may be one of those that go
  std::erase(history.entries, entry);
  history.entries.insert(history.entries.begin(), std::move(entry));
}

void HistorySave(const FindHistory& history, std::wstring_view section, Settings& settings) {
  const std::size_t count = history.entries.size();
  settings.Write(ListTotalSection(section), kListTotal, NumberText(static_cast<long long>(count)));
  for (std::size_t n = 0; n <= count; ++n) {
    const std::wstring& value = n == 0 ? history.edit_text : history.entries[n - 1];
    settings.Write(ListItemSection(section), ListItemName(static_cast<long long>(n)), Trim(value));
  }
}

FindHistory HistoryLoad(std::wstring_view section, const Settings& settings) {
  FindHistory history;
  const auto total = WholeNumber(settings.Read(ListTotalSection(section), kListTotal, L"0"));
  const long long count = std::clamp<long long>(total.value_or(0), 0, kMostHistoryEntries);
  history.edit_text = settings.Read(ListItemSection(section), ListItemName(0), L"");
  for (std::size_t n = 1; n <= static_cast<std::size_t>(count); ++n) {
    std::wstring entry =
        settings.Read(ListItemSection(section), ListItemName(static_cast<long long>(n)), L"");
    if (!entry.empty()) history.entries.push_back(std::move(entry));
  }
  return history;
}

void FindSearch::Prepare(const TextFinder& finder, std::wstring_view wanted, std::size_t caret) {
  if (wanted != last_text_ || finder.options() != last_options_) position_ = caret;
  last_text_ = wanted;
  last_options_ = finder.options();
}

std::optional<TextRange> FindSearch::FindNext(std::wstring_view text, const TextFinder& finder) {
  const auto at = finder.Next(TextFinder::Text(text, finder), position_);
  position_ = at ? *at + finder.length() : 0;
  if (!at) return std::nullopt;
  return TextRange{*at, position_};
}

std::optional<TextRange> FindSearch::FindPrevious(std::wstring_view text, const TextFinder& finder,
                                                  std::size_t caret) {
  const auto at = finder.Last(TextFinder::Text(text, finder), caret);
  if (!at) {
    position_ = 0;
    return std::nullopt;
  }
  position_ = *at + finder.length();
  return TextRange{*at, position_};
}

FindSearch::Replacing FindSearch::Replace(std::wstring_view text, TextRange selection,
                                          const TextFinder& finder, std::wstring_view replacement) {
  selection.end = std::min(selection.end, text.size());
  selection.begin = std::min(selection.begin, selection.end);
  Replacing done;
  if (!finder.Equals(text.substr(selection.begin, selection.end - selection.begin))) {
    done.found = FindNext(text, finder);
    if (!done.found) return done;
    selection = *done.found;
  }
  const std::size_t length = selection.end - selection.begin;
  done.edit = TextEdit{selection.begin, length, std::wstring(replacement)};
  TextEdited(selection.begin, length, replacement.size());
  return done;
}

Replacements FindSearch::ReplaceEvery(std::wstring_view text, const TextFinder& finder,
                                      std::wstring_view replacement,
                                      const std::function<bool(std::size_t)>& go_on) {
  Replacements all = ReplaceAll(text, finder, replacement, position_, go_on);
  if (!all.stopped) position_ = 0;
  return all;
}

void FindSearch::TextEdited(std::size_t at, std::size_t removed, std::size_t inserted) {
  if (position_ <= at) return;
  position_ = position_ >= at + removed ? position_ - removed + inserted : at;
}

}  // namespace varnel
