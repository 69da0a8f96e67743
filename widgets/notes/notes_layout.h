// Where the parts of the notes widget lie on its panel.
#pragma once

#include <functional>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// The tools of the strip, by their numbers.
enum NoteTool {
  kToolNew,
  kToolSave,
  kToolFind,
  kToolFonts,  // this and the next two are for formatted notes
  kToolParagraph,
  kToolPicture,
  kToolText,
  kToolSpelling,
  kToolList,
  kToolCount
};

struct NotesWishes {
  std::vector<int> tools;  // that there are
  bool list = true;
  // The rows that the open panel needs in a width in pixels; empty while none is open.
  std::function<int(int width)> panel_rows = {};
};

// In pixels of the widget's panel; what is left out is empty.
struct NotesLayout {
  std::vector<Rect> tools;  // by their numbers
  Rect open_panel;
  Rect search;
  Rect list;
  Rect document;  // the paper
  Rect editor;    // on it
};

NotesLayout LayOutNotes(Size panel, int dpi, const NotesWishes& wishes);

}  // namespace varnel
