// A list on a widget's panel: it asks for the rows that are to be seen, so a long list costs no
// more than a short one.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "theme/chrome_colours.h"
#include "theme/text_painter_win.h"
#include "theme/thumb_bar_win.h"

namespace varnel {

struct SideListLook {
  TextStyle text;            // its ground is the list's
  Colour selected = kBlack;  // also of the scroll bar
  Colour selected_without_focus = kBlack;
  int row_height = 0;  // in pixels; 0: as high as the text asks
  bool operator==(const SideListLook&) const = default;
};

// A row that is to be painted.
struct SideRow {
  std::size_t index;
  Rect box;  // of the surface
  bool selected;
  bool current;    // the keyboard is at it, and in the list
  TextStyle text;  // its ground is what the row is to be filled with
};

// What a form tells its list, and is told by it. Rows are counted from 0.
class SideListOwner {
 public:
  virtual ~SideListOwner() = default;
  // What is read out of the row, and edited when it is renamed.
  virtual std::wstring RowText(std::size_t row) const = 0;
  // Where in a row that lies in `row` its text is edited; empty for the whole row.
  virtual Rect EditBox(const Rect& /*row*/) const { return {}; }
  // What a list without rows says in one line.
  virtual std::wstring EmptyText() const = 0;
  // Paints the row over the list's ground, which is there already.
  virtual void PaintRow(Surface& surface, const SideRow& row) = 0;
  // The user clicked the row, or came to it by the keyboard.
  virtual void OnRowChosen(std::size_t row) = 0;
  // The user gave the row another text. What becomes of it is the owner's; the list shows RowText.
  virtual void OnRowRenamed(std::size_t /*row*/, const std::wstring& /*text*/) {}
  // A row is no longer being renamed, whatever came of it. Until now its number had to stay.
  virtual void OnRenameEnded() {}
};

enum class SideListKind {
  kDocuments,  // one row is selected at a time, and can be renamed
  kLog,        // several can be selected; a list that shows its end goes on showing it
};

class SideList {
 public:
  SideList(Ui& ui, SideListOwner& owner)
      : ui_(ui), owner_(owner), bar_(ui, [this](int row) { ScrollTo(row); }) {}

  // Makes the list, hidden; `name` is what a screen reader calls it. False when the system refuses.
  bool Load(HWND parent, int id, const std::wstring& name, SideListKind kind);
  HWND handle() const { return handle_; }
  // A key that is pressed now goes to the list or to the box in which a row is renamed.
  bool HasFocus() const;

  // `place` in pixels of the parent; an empty one hides the list.
  void Place(const Rect& place, const SideListLook& look);

  // Shows `count` rows, scrolled to `visible`, or to the last one when there is no such row. Rows
  // that are still there stay selected. The keyboard is at `visible` while none is selected.
  void ShowRows(std::size_t count, std::size_t visible);
  // The same, scrolled to the last one, where all that is new stands at the end.
  void AddRows(std::size_t count);
  void RepaintRow(std::size_t row) const;

  // Selects `row` alone, without a call of OnRowChosen.
  void Select(std::size_t row);
  void SelectAll();
  void SelectNone();
  // The selected rows, in their order.
  std::vector<std::size_t> Selected() const;
  // The row that the keyboard is at.
  std::optional<std::size_t> Focused() const;

  // Has the row's text edited in place. Only in a list of documents.
  void Rename(std::size_t row);
  bool renaming() const { return renaming_; }

  // Scrolls by so many rows, towards the end when positive, as far as there are any.
  void ScrollBy(int rows) { ScrollTo(Range().first + rows); }

  // Sees each key message of the form. Keys that move in the list still have to reach it.
  void OnKey(const MSG& message);
  // Answers the list's notification.
  LRESULT OnNotify(NMHDR& header);

 private:
  std::optional<std::size_t> Next(int after, UINT flags) const;
  void SetCount(std::size_t count, std::size_t visible, DWORD flags);
  int RowHeight() const;
  ScrollRange Range() const;
  void ScrollTo(int row);
  bool AtEnd() const;
  void TakeHeight();
  void Arrange(bool at_end);
  void GiveText(LVITEMW& item) const;
  void DrawRow(HDC dc, std::size_t index);
  void DrawEmptyText(HDC dc);

  Ui& ui_;
  SideListOwner& owner_;
  SideListKind kind_ = SideListKind::kDocuments;
  HWND handle_ = nullptr;
  Rect place_;
  SideListLook look_;
  UniqueFont font_;      // gives the rows their height
  bool struck_ = false;  // a key that moves in the list is down
  bool renaming_ = false;
  ThumbBar bar_;
};

// Fills a row in the colour of its selection and frames it where the keyboard is at it: the plain
// look of a row.
void PaintRowGround(Surface& surface, const SideRow& row);

}  // namespace varnel
