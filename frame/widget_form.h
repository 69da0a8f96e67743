// The frame that every widget's window has: title bar, panel, bottom strip, theme, place and menu.
#pragma once

#include <string>
#include <vector>

#include "frame/command_tools_form.h"
#include "frame/form_registry.h"
#include "frame/frame_layout.h"
#include "frame/save_reason.h"
#include "frame/services.h"
#include "frame/sight_win.h"
#include "frame/window_mover_win.h"
#include "theme/text_painter_win.h"
#include "theme/widget_paint.h"
#include "win/windows/painted_window.h"

namespace varnel {

class WidgetForm : public PaintedWindow, public LiveForm {
 public:
  // `entry` and the rows outlive the form; `index` is the widget's number or kManagerIndex. The
  // first of `menus` stands above the shared commands.
  WidgetForm(Services& services, const FormEntry& entry, int index,
             std::vector<CommandTable::Rows> menus = {});
  ~WidgetForm() override;

  // Makes the window, hidden, in its place and theme. False when the system refuses.
  bool Load();
  // Saves the place and removes the window.
  void Unload();
  void SavePlace() { mover_.Save(); }
  // Showing restores what is minimised.
  void Show(bool shown);
  Sight sight() const { return SightOf(handle()); }
  // Asks the user where closing would lose something; false when the form is to stay.
  virtual bool MayClose();
  // Saves the place, and in a widget its documents, drafts and histories; asks nothing.
  virtual void SaveState(SaveReason reason);

  const FormEntry& entry() const override { return entry_; }
  ThemeRecord& theme() override { return theme_; }
  void Form_Resize() override;
  void WidgetRefresh() override;
  void ApplyChrome() override;
  void SetSize(int width, int height) override;
  // The place as the user wished it.
  const Place& place() const { return mover_.place(); }
  // Goes to another place, and keeps it.
  void MoveTo(const Place& place) { mover_.Settle(place); }
  Rect Bounds() const override { return screen_rect(); }
  bool on_top() const override { return on_top_; }
  void SetOnTop(bool on) override;
  std::wstring Summary() const override { return {}; }

 protected:
  // What a widget adds to the frame. OnLoad makes its controls; OnShown starts what ticks.
  virtual void OnLoad() {}
  virtual void OnUnload() {}
  // What runs and would be lost with the form, as a sentence; empty for nothing.
  virtual std::wstring Unfinished() const { return {}; }
  // Places the controls on the panel (pixels of the window).
  virtual void LayOutPanel(const Rect&) {}
  // Brings the controls' texts up to date.
  virtual void RefreshContent() {}
  // Paints on the panel what is not a control.
  virtual void PaintPanel(Surface&, const Rect&) {}
  virtual void DrawPanelButton(const ButtonPainting& painting);
  // A button was clicked, or another control sent notification `code`.
  virtual void OnControl(int /*id*/, int /*code*/) {}
  virtual std::wstring StatusText() const { return {}; }
  // What the focus of the moment is to the widget's commands.
  virtual Focus FocusNow() const;
  // Sees each key message before the commands do; true when it is dealt with.
  virtual bool OnFirstKey(const MSG&) { return false; }
  // Whether the second of two quick clicks on a button counts like any other.
  virtual bool SecondClickCounts(int /*id*/) const { return true; }
  // The user wants the form closed.
  virtual void OnCloseButton();

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  bool OnKey(const MSG& message) final;

  // The widget's own commands, but for the one of its FormEntry.
  CommandTools& commands() { return commands_; }
  const CommandTools& commands() const { return commands_; }

  Services& services() const { return services_; }
  const FrameLayout& layout() const { return layout_; }
  // What the widget is painted with: colours are to be taken from here, not from theme().
  const WidgetPaint& paint() const { return paint_; }
  const ChromeColours& chrome() const { return paint_.chrome; }
  TextButtons& buttons() { return buttons_; }
  // A style for texts on the panel: the theme's panel font and colour.
  TextStyle PanelTextStyle(int font_height, Reads reads = Reads::kByItsHeight) const;
  void RepaintStatus();

 private:
  void CreateBarButtons();
  // The system's colours or the user's wishes have changed.
  void OnLookChanged();
  void Paint(Surface& surface) override;
  void OnCommand(int id, int code, HWND control);
  bool MoveByKey(const CommandKey& key, Focus focus);
  void RunCommand(int id);
  void ShowMenu(Point at);
  // The name of the widget's command that keeps it on top.
  std::wstring_view TopCommand() const;
  void OnContextMenu(LPARAM position);
  // True when the pointer has been given its shape.
  bool OnMouseOver(HWND control);
  // Closing, and coming into sight or going out of it; true when the message is dealt with.
  bool OnSightMessage(UINT message, WPARAM wparam, LPARAM lparam);
  // The user's wishes from outside the panel: task bar, Alt+F4. True when it was one of them.
  bool OnSystemCommand(WPARAM command);
  void OnLeftButtonDown(Point at);
  // The size, the resolution or the look has changed; false for other messages.
  bool OnChange(UINT message, WPARAM wparam);

  Services& services_;
  const FormEntry& entry_;
  const int index_;
  ThemeRecord theme_;
  WidgetPaint paint_;
  FrameLayout layout_;
  WindowMover mover_;
  bool on_top_ = false;
  HWND last_focus_ = nullptr;
  TextButtons buttons_;
  CommandTools commands_;
};

}  // namespace varnel
