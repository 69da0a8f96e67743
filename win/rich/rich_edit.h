// The system's editor for formatted text, with the habits that differ between its versions evened
// out. Positions count UTF-16 units from 0; a line end counts as one, a picture too.
#pragma once

#include <windows.h>

#include <shellapi.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/geometry.h"
#include "win/rich/rich_formats.h"
#include "win/rich/rich_guard.h"
#include "win/rich/rich_picture.h"
#include "win/windows/control_hook.h"

namespace varnel {

struct RichRange {
  int from = 0;
  int to = 0;  // behind the last
  bool empty() const { return from >= to; }
  bool operator==(const RichRange&) const = default;
};

class RichEdit {
 public:
  enum class Scope { kAll, kSelection };

  // What the owner is told; what is empty is left to the control, except that nothing is ever
  // pasted or dropped without its owner.
  struct Events {
    std::function<void()> on_change;           // the text or a format, also by the program
    std::function<void(RichRange)> on_select;  // selection or caret
    // The mouse is over text with the link format: WM_LBUTTONUP, WM_SETCURSOR and the like.
    std::function<void(RichRange, UINT message)> on_link;
    std::function<void()> on_paste;         // by key or message; the owner pastes or does not
    std::function<bool(bool cut)> on_copy;  // true when the owner has filled the clipboard
    std::function<void(std::vector<std::wstring> paths, int position)> on_files;
    RtfGate may_drop;
    std::function<void(int notches)> on_zoom;  // the wheel was turned with Ctrl held
  };

  // Whether this system's control writes raised letters (\up, \dn) in twips, not half points.
  static bool WritesRaisedInTwips();
  // Whether it writes the distance of all lines from the first as \li, and its place as \fi.
  static bool SwapsIndents();

  explicit RichEdit(Events events) : events_(std::move(events)) {}
  RichEdit(const RichEdit&) = delete;
  RichEdit& operator=(const RichEdit&) = delete;
  ~RichEdit();

  // Makes the control, empty, in the format given, with undo of `undo_steps`, taking text of any
  // length. The thread has to be in a ComApartment. `style` adds to that of a text box of many
  // lines. False when the system refuses or has no such control.
  bool Create(HWND parent, int id, DWORD style, const CharacterFormat& format,
              int undo_steps = 200);
  HWND handle() const { return handle_; }

  // To be called by the parent: WM_NOTIFY and WM_COMMAND of this control.
  LRESULT OnNotify(const NMHDR& header);
  void OnCommand(int code);

  // --- content

  // Asked while a text goes in, with the percentage that the control has taken; false stops it.
  using GoOn = std::function<bool(int percent)>;
  // Puts formatted text in; false when it is none, is cut off or was stopped, and then what could
  // be read is in the control. The control must never see formatted text that nobody has looked
  // through: deep nesting ends some versions of it.
  bool PutRtf(std::string_view rtf, Scope scope = Scope::kAll, const GoOn& go_on = nullptr);
  // Puts plain text in, with line ends of any kind, in the format at that place.
  bool PutText(std::wstring_view text, Scope scope = Scope::kAll, const GoOn& go_on = nullptr);
  // Replaces what is selected; one step to undo.
  void Replace(const std::wstring& text);
  // What is in the control. Both throw where it does not give all of that.
  std::string Rtf(Scope scope = Scope::kAll) const;
  // With lines that end in CR LF.
  std::wstring Text(Scope scope = Scope::kAll) const;
  // One unit for each position, with lines that end in CR.
  std::wstring Units(RichRange range) const;
  int Length() const;

  // --- selection and places

  RichRange Selection() const;
  void Select(RichRange range);
  void SelectAll() { Select({0, Length()}); }
  // The end of the selection at which the caret blinks.
  int Caret() const;
  void ScrollToCaret();
  // The first occurrence within the range, or the last when it is searched backwards; an empty
  // range when there is none. The control knows upper and lower case of A to Z only.
  struct FindOptions {
    bool match_case = false;
    bool whole_words = false;
    bool backwards = false;
  };
  RichRange Find(const std::wstring& text, RichRange within, FindOptions options) const;
  // Lines as they are wrapped, counted from 0.
  int LineOf(int position) const;
  int LineCount() const;
  int LineStart(int line) const;
  // In pixels of the control's client area.
  Point PointOf(int position) const;
  int PositionAt(Point point) const;
  Point ScrollPosition() const;
  void SetScrollPosition(Point point);

  // --- formats

  CharacterFormat SelectionFormat() const;
  CharacterFormat DefaultFormat() const;
  void SetFormat(const CharacterFormat& format, Scope scope = Scope::kSelection);
  // That of text to come where there is none.
  void SetDefaultFormat(const CharacterFormat& format);
  RichParagraph SelectionParagraph() const;
  void SetParagraph(const RichParagraph& format);
  // Needed for justified text.
  void UseAdvancedTypography();

  // --- undo

  bool CanUndo() const;
  bool CanRedo() const;
  void Undo();
  void Redo();
  void ForgetUndo();
  // What is typed from now on is a step of its own.
  void EndTypingStep();

  // --- look and behaviour

  void SetReadOnly(bool on);
  void SetGround(const TextColour& colour);
  void WrapToWindow(bool on);
  // Left and right, in pixels.
  void SetMargins(int left, int right);
  // In percent, 10 to 500; 0 percent answered by the control counts as 100.
  void SetZoom(int percent);
  int Zoom() const;
  // Gives addresses the link format as they are typed; the owner decides which ones it opens.
  void MarkAddresses(bool on);

  // Called after each painting of the control; null: nothing is.
  void TellPainted(std::function<void()> painted) { painted_ = std::move(painted); }

  // --- pictures

  bool InsertPicture(const SharedMetafile& look, Size size, std::uint32_t id);
  std::vector<RichPicture> Pictures() const;

  // While it lives, lines are not wrapped: a long text is put in several times faster that way.
  class Unwrapped {
   public:
    explicit Unwrapped(RichEdit& edit) : edit_(edit) { edit_.WrapToWindow(false); }
    Unwrapped(const Unwrapped&) = delete;
    Unwrapped& operator=(const Unwrapped&) = delete;
    ~Unwrapped() { edit_.WrapToWindow(true); }

   private:
    RichEdit& edit_;
  };

  // Whether the program itself changes the text: the owner is not told meanwhile, and the control
  // does not paint. May be nested.
  class Quietly {
   public:
    explicit Quietly(RichEdit& edit);
    Quietly(const Quietly&) = delete;
    Quietly& operator=(const Quietly&) = delete;
    ~Quietly();

   private:
    RichEdit& edit_;
  };

  // A new, empty control takes the place of the one that is there, with the same default format,
  // look and behaviour; handle() is its handle. The former one stays in sight, untouched, until the
  // new one is kept, so that a text on its way in can still be given up. Besides, some versions
  // need minutes to empty a control of a long text, and no time to make another. Throws where the
  // system refuses. Not while a Quietly lives, nor may one outlive it.
  class Anew {
   public:
    explicit Anew(RichEdit& edit);
    Anew(const Anew&) = delete;
    Anew& operator=(const Anew&) = delete;
    ~Anew();  // unless kept, the former control is back
    void Keep();

   private:
    void PutBack();

    RichEdit& edit_;
    HWND former_;
    int caret_;
    RichRange selection_;
    LONG pictures_;
  };

 private:
  LRESULT Answer(const ControlMessage& message);
  void KeepUndoSafe();
  bool Intercept(UINT message, WPARAM wparam, LPARAM lparam);
  bool OnKey(WPARAM key);
  bool OnWheel(WPARAM wparam);
  void Paste();
  bool Copy(bool cut);
  void OnDrop(HDROP drop);
  LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return ::SendMessageW(handle_, message, wparam, lparam);
  }
  template <class Record>
  LRESULT SendTo(UINT message, WPARAM wparam, Record& record) const {
    return Send(message, wparam, reinterpret_cast<LPARAM>(&record));
  }
  CharacterFormat FormatOf(WPARAM scope) const;
  bool StreamIn(UINT format, std::string_view bytes, const GoOn& go_on) const;
  std::string StreamOut(UINT format) const;
  ComPointer<IRichEditOle> Ole() const;

  Events events_;
  ControlHook hook_{[this](const ControlMessage& message) { return Answer(message); }};
  HWND handle_ = nullptr;
  int undo_steps_ = 0;
  std::function<void()> painted_;
  int quiet_ = 0;
  int caret_ = 0;  // where it was seen last
  RichRange last_selection_;
  LONG pictures_seen_ = 0;
  int wheel_turn_ = 0;  // not yet a whole notch
};

}  // namespace varnel
