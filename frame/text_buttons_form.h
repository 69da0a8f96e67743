// The small text buttons of a widget: real buttons that the form draws, with three looks.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/geometry.h"
#include "theme/text_painter_win.h"
#include "theme/widget_paint.h"
#include "win/windows/accessible.h"
#include "win/windows/control_hook.h"
#include "win/windows/timer.h"
#include "win/windows/tooltip.h"
#include "win/windows/window.h"

namespace varnel {

struct TextButton {
  int id = 0;
  HWND handle = nullptr;
  wchar_t glyph = 0;    // drawn in place of the window text; 0 draws the text
  bool on_bar = false;  // on the title bar, else on the panel
  bool tells_word = false;
  std::wstring key = {};  // which the tooltip tells behind the word
};

// What a button that is on or off stands for: several things may differ.
enum class ButtonCheck { kOff, kOn, kMixed };

// One button about to be drawn.
struct ButtonPainting {
  const TextButton& button;
  Surface& surface;  // already filled with the ground
  Rect bounds;       // of the surface
  ButtonLook look;
  ColourPair colours;  // of that look: face and outline
  bool focused;        // and the focus is to be seen
  bool enabled;
};

class TextButtons {
 public:
  // `owner` outlives the buttons.
  explicit TextButtons(Window& owner);

  // Makes a button with `word` as its window text, which is what it is called. False when the
  // system refuses.
  bool Add(int id, const std::wstring& word, wchar_t glyph, bool on_bar);
  const TextButton* Find(int id) const;
  // Without effect on an id that is no button's.
  void SetText(int id, std::wstring_view text);
  // What is drawn, and then told by a tooltip; 0: the text.
  void SetGlyph(int id, wchar_t glyph);
  void Place(int id, const Rect& box);  // pixels of the form
  void Enable(int id, bool on);
  // How those buttons stand that are on or off, for programs that read the screen aloud.
  void TellChecks(std::function<ButtonCheck(int id)> check_of);
  // Whether a tooltip tells the button's word; at first where a glyph stands in place of it.
  void TellWord(int id, bool on);
  // What the tooltips tell beside the words, asked for while the mouse is there; empty for nothing.
  void TellMore(std::function<std::wstring(int id)> more_of) { more_of_ = std::move(more_of); }
  // The key that does the same; the tooltip tells it behind the word.
  void TellKey(int id, std::wstring key);
  const std::vector<TextButton>& all() const { return buttons_; }

  // The button under the mouse, or null.
  const TextButton* hovered() const { return hovered_ ? Find(hovered_) : nullptr; }
  // The mouse is over `control` (any window). A button lights up until the mouse has left it.
  void OnMouseOver(HWND control);
  // The answer to kButtonAsked about one of the buttons; nothing about any other window.
  std::optional<LRESULT> OnAsked(HWND button, WPARAM wparam);
  // No button tells its word until the mouse comes to one.
  void HideTooltip() { tooltip_.Detach(); }

  // Whether the button that has the focus is to be seen to have it; not at first.
  void ShowFocus(bool shown);
  bool focus_shown() const { return focus_shown_; }

  ButtonLook LookOf(const TextButton& button, const DRAWITEMSTRUCT& item) const;
  // Draws the button that `item` is of: the title bar's here, the panel's by `draw_on_panel`.
  void Draw(Ui& ui, const DRAWITEMSTRUCT& item, const WidgetPaint& paint,
            const SystemColours& system,
            const std::function<void(const ButtonPainting&)>& draw_on_panel) const;
  void Repaint(int id) const;

 private:
  LRESULT Answer(const ControlMessage& message) const;
  std::wstring TooltipText(const TextButton& button) const;
  // Made when a program first asks for the button.
  Accessible& AccessibleOf(int id);
  void ShowTooltip(const TextButton& button);
  void HoverTick(Timer& timer);

  Window& owner_;
  ControlHook hook_;  // of all buttons, once their checks are told
  std::vector<TextButton> buttons_;
  std::function<ButtonCheck(int id)> check_of_;
  std::function<std::wstring(int id)> more_of_;
  int hovered_ = 0;  // the button under the mouse, or 0
  bool focus_shown_ = false;
  Timer tmrBARBTNS_;
  Timer tmrPANBTNS_;
  Tooltip tooltip_;
  std::map<int, std::unique_ptr<Accessible>> accessibles_;
};

// The painting of the one button of a widget that is more important than the others: its face is
// seen on any ground.
ButtonPainting Primary(const ButtonPainting& painting, const WidgetPaint& paint);

// The painting of a button that stands beside a more important one: at rest it has no face, only an
// outline.
ButtonPainting Quiet(const ButtonPainting& painting, const WidgetPaint& paint);

// A button's face with rounded corners, its outline, and the focus when it is to be seen.
void PaintButtonFace(const ButtonPainting& painting, int dpi);

// The same with the button's text or glyph on it; `height` is the em of its font, in pixels. A
// button that cannot be used now is quiet and faint.
void PaintTextButton(Ui& ui, const ButtonPainting& painting, const WidgetPaint& paint, int height,
                     int dpi);

}  // namespace varnel
