// A board as its user works it: pens and strokes, and an object that floats over it until it is
// merged.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "base/axis_map.h"
#include "base/canvas.h"
#include "widgets/boards/pens.h"

namespace varnel {

enum class FloatKind { kText, kPicture, kIcon };
enum class BoardButton { kLeft, kRight };

// The object at so many times its natural size, premultiplied; empty where that cannot be made.
using FloatSource = std::function<Image(double scale)>;

// Places and rectangles are in pixels as the board is shown, from its upper left; a rectangle that
// is returned is what has to be painted anew.
class DrawingBoard {
 public:
  // What the smallest and the largest object is of its natural size.
  static constexpr double kLeastScale = 0.1, kMostScale = 10;

  // `ground`: Canvas::kWhiteBoard, where the eraser paints white, or Canvas::kClearSheet, where it
  // takes ink away.
  explicit DrawingBoard(std::uint32_t ground) : ground_(ground), canvas_(ground) {}

  // "DRAW", "TEXT", "PICTURE" or "ICON": what a click on the board does.
  std::wstring_view BoardMode() const;
  int PenColorIndex() const { return PenColorIndex_; }  // kEraser and above: the eraser
  std::wstring_view PenColorName() const { return PenAt(PenColorIndex_).name; }
  bool MouseIsDown() const { return MouseIsDown_; }
  bool BoardModified() const { return BoardModified_; }
  int pen_width() const { return pen_width_; }
  // How often the picture has changed so far.
  std::uint64_t changes() const { return changes_; }
  // All pixels that there are; the board may be smaller.
  const Image& pixels() const { return canvas_.pixels(); }
  // The board: the picture as it was loaded, all that was drawn beyond it, and at least what is
  // seen.
  Size size() const;
  Image Picture() const;

  // Shows another picture, with nothing to undo and nothing unsaved. An object that floats is
  // dropped.
  void Load(Image pixels);
  // The same with a board on which nothing is drawn yet; it is as large as what is seen.
  void LoadEmpty(Size seen);
  // So much of the board is seen from now on. All pixels stay.
  void Fit(Size seen);
  void MarkSaved() { BoardModified_ = false; }
  void MarkModified() { BoardModified_ = true; }

  // A board that is shown at another size than it is kept at. By default the two are the same.
  void ShowBy(AxisMap across, AxisMap down);

  // An object that floats is dropped, and what is drawn from now on has the pen.
  Rect SetPen(int index);
  void SetPenWidth(int pixels) { pen_width_ = SanePenWidth(pixels); }

  // Either button draws, and a click leaves a dot; the left one merges a text, either one all else
  // that floats. A press that merged something draws nothing.
  Rect MouseDown(Point at, BoardButton button);
  // Draws on while a button is held, or takes the object along.
  Rect MouseMove(Point at);
  // The button was released, or the mouse is no longer the board's: the stroke ends as it is.
  void MouseUp();
  bool drawing() const { return canvas_.drawing(); }

  // Floats an object in the middle of `view` until the mouse takes it along; one before it is
  // dropped. False, with all as it was, where the source gives nothing.
  bool BoardInsertObject(FloatKind kind, FloatSource source, const Rect& view);
  bool floating() const { return floating_; }
  FloatKind float_kind() const { return kind_; }
  const Image& picFLOAT() const { return picFLOAT_; }
  Rect FloatBox() const;
  // The mouse, when it comes, holds it where it then is.
  Rect MoveFloat(int across, int down);
  Rect ScaleFloat(int steps);  // larger when positive
  Rect MergeFloat();
  Rect DropFloat();

  Rect Clear();
  Rect Undo();
  Rect Redo();
  bool CanUndo() const { return canvas_.CanUndo(); }
  bool CanRedo() const { return canvas_.CanRedo(); }

 private:
  PointF Kept(Point shown) const;
  Rect Shown(const Rect& kept) const;
  PenTip TipAt(Point shown) const;
  Rect Draw(Point to);
  Rect PutFloat(Point corner);
  Rect Changed(const Rect& kept);

  std::uint32_t ground_;
  Canvas canvas_;
  AxisMap across_, down_;
  bool scaled_ = false;
  int PenColorIndex_ = 0;
  int pen_width_ = kDefaultPenWidth;
  bool MouseIsDown_ = false;
  bool BoardModified_ = false;
  std::uint64_t changes_ = 0;
  Size seen_;
  Size drawn_;         // from the upper left; what has to be kept
  PointF last_point_;  // where the next segment begins, in pixels as they are kept

  bool floating_ = false;
  FloatKind kind_ = FloatKind::kText;
  FloatSource source_;
  Image picFLOAT_;
  int scale_steps_ = 0;
  Point corner_;  // of the object
  Point hold_;    // where the mouse holds it, from its corner
};

}  // namespace varnel
