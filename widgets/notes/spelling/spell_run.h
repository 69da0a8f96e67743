// One spelling check of a text: where it is, while the text changes around it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/notes/text/text_words.h"

namespace varnel {

// A check begins at the word that holds the caret, goes on to the end, wraps once and ends where it
// began. It keeps places only, so the text may be edited between two steps; each edit is told.
class SpellRun {
 public:
  // Begins a check; a caret beyond the end begins at the start of the text.
  void Start(std::wstring_view text, std::size_t caret);
  bool running() const { return running_; }
  // True once the check has gone on at the start of the text.
  bool wrapped() const { return wrapped_; }

  // Goes on to the next word for which `is_right` (given its letters) is false; nothing at the end
  // of the check, which is then over.
  std::optional<TextRange> Next(std::wstring_view text,
                                const std::function<bool(std::wstring_view)>& is_right);

  // The word that Next found last, where it stands now; nothing when there is none, or when it was
  // edited.
  const std::optional<TextRange>& current() const { return current_; }

  // At `at`, `removed` units of the text were replaced by `inserted`. An edit that touches the
  // current word, or the place where the check goes on, has that run of text checked again.
  void TextEdited(std::size_t at, std::size_t removed, std::size_t inserted);
  // The same for the replacement of the current word by the check itself, which is not checked.
  void WordReplaced(std::size_t inserted);

 private:
  std::size_t from_ = 0;  // where the check goes on
  std::size_t stop_ = 0;  // where it ends after the wrap
  bool running_ = false;
  bool wrapped_ = false;
  std::optional<TextRange> current_;
};

}  // namespace varnel
