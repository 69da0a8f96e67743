// What the find panel does with its texts: a search that goes on from hit to hit, replacing, and
// the histories of both boxes.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"
#include "widgets/notes/editor/edited_note.h"
#include "widgets/notes/find/find_text.h"
#include "widgets/notes/text/text_edit.h"
#include "widgets/notes/text/text_words.h"

namespace varnel {

inline constexpr Setting kFindMatchCaseBox{L"frmNOTwg\\Details", L"Find Match Case", L"0"};
inline constexpr Setting kFindWholeWordBox{L"frmNOTwg\\Details", L"Find Whole Word", L"0"};
inline constexpr std::wstring_view kFindHistory = L"frmNOTwg\\Find";
inline constexpr std::wstring_view kReplaceHistory = L"frmNOTwg\\Replace";

inline constexpr NotesMessage kAllFound{L"Searching Has Now Been Completed",
                                        L"All references have been found."};
inline constexpr NotesMessage kAllReplaced{L"Searching Has Now Been Completed",
                                           L"All references have been replaced."};

// Texts that were searched for or put in, the newest first.
struct FindHistory {
  std::vector<std::wstring> entries;
  std::wstring edit_text;  // what stands in the box
};

// Puts a text at the top; entries that are equal to it, case included, go. An empty one is ignored.
void HistoryAdd(FindHistory& history, std::wstring_view text);
// Writes "List Total", the number of entries N, to `section` + "\Items Total", and to `section` +
// "\Details" "List 0", the box's text, and "List 1" to "List N", the entries, all trimmed.
void HistorySave(const FindHistory& history, std::wstring_view section, Settings& settings);
// Reads that back in the same order. At most kMostHistoryEntries are read; blank ones are left out.
FindHistory HistoryLoad(std::wstring_view section, const Settings& settings);
inline constexpr int kMostHistoryEntries = 1000;

// The search position and the rules of the three buttons. Texts are given anew with every call.
class FindSearch {
 public:
  // Where the next search starts. It is 0 at first and after a search that found nothing more.
  std::size_t position() const { return position_; }
  // The caret was moved by hand to here, or the search starts anew.
  void StartAt(std::size_t caret) { position_ = caret; }
  // Has the next search start at `caret` when it is for another text or has other options than the
  // last one.
  void Prepare(const TextFinder& finder, std::wstring_view wanted, std::size_t caret);

  // The next hit, which is selected then; nothing: kAllFound is shown.
  std::optional<TextRange> FindNext(std::wstring_view text, const TextFinder& finder);
  // The hit before the selection that begins at `caret`; nothing: kAllFound is shown.
  std::optional<TextRange> FindPrevious(std::wstring_view text, const TextFinder& finder,
                                        std::size_t caret);

  // What the Replace button does.
  struct Replacing {
    std::optional<TextRange> found;  // selected before the edit: the selection was no hit
    std::optional<TextEdit> edit;    // nothing: no further hit, kAllFound is shown
  };
  // `selection` is replaced when it is the search text, otherwise the next hit is.
  Replacing Replace(std::wstring_view text, TextRange selection, const TextFinder& finder,
                    std::wstring_view replacement);

  // All hits from the search position on, which is 0 afterwards unless it was stopped. When the
  // count is 0, kAllFound is shown, and then kAllReplaced in any case; the caret goes to the start.
  Replacements ReplaceEvery(std::wstring_view text, const TextFinder& finder,
                            std::wstring_view replacement,
                            const std::function<bool(std::size_t)>& go_on = nullptr);

  // The text was edited by something else: the position moves with what is behind it.
  void TextEdited(std::size_t at, std::size_t removed, std::size_t inserted);

  const std::wstring& last_text() const { return last_text_; }

 private:
  std::size_t position_ = 0;
  std::wstring last_text_;
  unsigned last_options_ = 0;
};

}  // namespace varnel
