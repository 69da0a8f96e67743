// Marks over the hits of a search in the editor.
#pragma once

#include <string>
#include <string_view>

#include "widgets/notes/find/find_text.h"
#include "win/rich/rich_edit.h"

namespace varnel {

// They are painted over the control alone, so neither text nor formats nor undo know of them. Only
// what is in sight is searched.
class FindMarks {
 public:
  // `edit` outlives it.
  explicit FindMarks(RichEdit& edit);
  FindMarks(const FindMarks&) = delete;
  FindMarks& operator=(const FindMarks&) = delete;
  ~FindMarks();

  // Marks the hits of `wanted`, whatever is typed meanwhile; of an empty text there are none.
  void Show(std::wstring_view wanted, unsigned options);
  // At most kMost in sight are marked, none in a note longer than kLongest units, where each
  // painting would take a noticeable time; the selection has a look of its own.
  static constexpr std::size_t kMost = 400;
  static constexpr int kLongest = 100'000;

 private:
  void Paint();
  void PaintHit(HDC dc, RichRange hit) const;

  RichEdit& edit_;
  std::wstring wanted_;
  unsigned options_ = 0;
};

}  // namespace varnel
