// What the widgets with boards have in common: the board's window, its pens and tools, objects put
// on it, and the commands of menu and keys.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/settings.h"
#include "frame/bar_label_win.h"
#include "frame/widget_form.h"
#include "widgets/boards/board_document.h"
#include "widgets/boards/board_surface_win.h"

namespace varnel {

// By which one widget with a board differs from another.
struct BoardTraits {
  Setting pen, pen_width, text_size;
  std::wstring_view commands;  // how their names begin
  int title_label;             // numbers of controls: the board's name on the title bar,
  int pen_label;               // the pen on the bottom strip,
  int width_tool;              // and the button of the pen's width
};

class BoardForm : public WidgetForm, protected BoardSurfaceOwner {
 public:
  bool MayClose() override;
  void SaveState(SaveReason reason) override;

 protected:
  // `traits` and `rows` outlive the form; `ground` as for a DrawingBoard.
  BoardForm(Services& services, const FormEntry& entry, int index, const BoardTraits& traits,
            CommandTable::Rows rows, std::uint32_t ground);

  virtual BoardDocument& document() = 0;
  const BoardDocument& document() const { return const_cast<BoardForm*>(this)->document(); }
  // The whole board as a picture.
  virtual Image PictureOfBoard() = 0;
  // The width to which a text is wrapped, in pixels of the board.
  virtual int TextWidth() const { return picMAINBOARD_.View().width(); }

  // What stands at the left of the strip, beside the pen.
  virtual std::wstring StripText() const { return StatusText(); }

  void OnLoad() override;
  void OnUnload() override;
  void RefreshContent() override;
  std::wstring StatusText() const override;
  bool OnFirstKey(const MSG& message) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void OnBoardChanged() override;

  // Places, in pixels of the window; what is empty is hidden.
  void PlaceButton(int id, const Rect& box);
  void PlacePens(const Rect& panel, const std::array<Rect, kPens>& pens, const Rect& pen_menu);
  void PlaceTitle(const std::wstring& title);
  void PlacePenLabel();
  // How the board's window looks.
  BoardSurfaceLook SurfaceLook() const;
  // The frame around the board.
  void PaintBoardFrame(Surface& surface, const Rect& frame) const;
  // A pen, the width, or a tool that shows its glyph, pressed while `on`.
  void DrawTool(const ButtonPainting& painting, bool on);

  void SetPen(int index);
  void SetPenWidth(int pixels);

  // Brings what depends on a change up to date a little later.
  void AfterChange(const Rect& shown);
  // Floats an object over the board. Text is as wide as it is, but for `wrap_width` pixels (0:
  // any).
  void FloatText(const std::wstring& text, int points, int wrap_width);
  void FloatPicture(FloatKind kind, const FloatSource& source);
  void FloatPicture(const Image& straight);
  void FloatPictureFile(const std::wstring& path);
  void Copy();
  void Paste();
  // Ends a stroke, and drops an object that floats.
  void PutDown();
  void Clear() { AfterChange(board_.Clear()); }
  void Undo() { AfterChange(board_.Undo()); }
  void Redo() { AfterChange(board_.Redo()); }
  void TellTrouble(std::wstring trouble);

  DrawingBoard board_;
  BoardSurface picMAINBOARD_;
  Timer tmrDRAW_;
  Timer draft_timer_;

 private:
  std::wstring NameOf(std::wstring_view command) const;
  void BindCommands();
  void DropPens();
  void DropWidths();
  bool OnFloatKey(WPARAM key);
  std::wstring PenText() const;
  void DrawPen(const ButtonPainting& painting, int pen);
  void DrawWidth(const ButtonPainting& painting);
  void Dot(Surface& surface, const Rect& box, int diameter, Colour face, Colour outline) const;

  const BoardTraits& traits_;
  BarLabel title_label_;
  ThemedLabel pen_label_;
};

}  // namespace varnel
