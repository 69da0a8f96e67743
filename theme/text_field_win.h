// A box for one line of text on a form that paints itself, in the colours of what it stands on.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "theme/text_painter_win.h"
#include "win/windows/control_hook.h"

namespace varnel {

// What a text field is like.
struct TextFieldKind {
  int most = 0;                   // the most it takes, in UTF-16 units
  bool digits_only = false;       // whatever else is typed or pasted is left out
  bool centred = false;           // its text stands in the middle
  bool chosen_whole = false;      // all of it is selected when the focus comes
  const wchar_t* hint = nullptr;  // shown while it is empty and without the focus
  bool bordered = false;          // by the system's own line
};

class TextField {
 public:
  TextField() = default;
  TextField(const TextField&) = delete;
  TextField& operator=(const TextField&) = delete;
  ~TextField();

  // `id` is the control's number in `parent`, which hands its messages to OnParentMessage. False
  // when the system refuses.
  bool Load(HWND parent, int id, const TextFieldKind& kind);

  // Places the field (pixels of the parent; an empty box hides it) and sets how it looks. What the
  // style's colour has too little contrast for is written in ink, never with a halo.
  void Place(const Rect& box, const TextStyle& style);

  // Shows `text` with the caret at its end; a field that shows it already is left alone. The form
  // is not told of this.
  void SetText(const std::wstring& text);
  std::wstring text() const;
  void SelectAll();

  HWND handle() const { return handle_; }
  bool HasFocus() const { return handle_ && ::GetFocus() == handle_; }

  // Deals with what a field tells its parent or asks of it: nothing when the form is to go on with
  // the message, as with EN_CHANGE after the user has changed the text.
  static std::optional<LRESULT> OnParentMessage(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  LRESULT Answer(const ControlMessage& message);
  static TextField* FromHandle(HWND handle);
  // True when the message has been dealt with.
  bool Intercept(UINT message);
  // Shows only what the field takes; false when it was the program that changed the text.
  bool OnChanged();

  ControlHook hook_{[this](const ControlMessage& message) { return Answer(message); }};
  HWND handle_ = nullptr;
  TextFieldKind kind_;
  TextStyle style_;
  UniqueFont font_;
  bool filling_ = false;        // the text is being set by the program
  bool click_chooses_ = false;  // the mouse button that is going down brings the focus
};

// How the system's own boxes look, for a field among such.
TextStyle SystemBoxStyle(const FontSpec& font);

// Answers the request of one of the system's own boxes for its colours (WM_CTLCOLOREDIT,
// WM_CTLCOLORSTATIC). A box has no halo: where its text needs help, it is in ink.
LRESULT ColourField(HDC dc, TextStyle style);

}  // namespace varnel
