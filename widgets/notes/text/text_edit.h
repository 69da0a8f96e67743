// A change of a text, as searches and checks hand it on.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace varnel {

// `length` units at `position` give way to `text`. Lists of edits are in order, do not overlap, and
// all positions are those of the text before the first of them.
struct TextEdit {
  std::size_t position = 0;
  std::size_t length = 0;
  std::wstring text;
  bool operator==(const TextEdit&) const = default;
};

// The text after all edits; each lies within `text`.
inline std::wstring WithEdits(std::wstring_view text, std::span<const TextEdit> edits) {
  std::wstring edited;
  edited.reserve(text.size());
  std::size_t done = 0;
  for (const TextEdit& edit : edits) {
    edited += text.substr(done, edit.position - done);
    edited += edit.text;
    done = edit.position + edit.length;
  }
  edited += text.substr(done);
  return edited;
}

}  // namespace varnel
