// The manager: one tile a widget, which opens and closes it.
#pragma once

#include "core/manager_layout.h"
#include "core/widget_states.h"
#include "frame/widget_form.h"

namespace varnel {

// The widgets' forms, as the manager needs them.
class WidgetHost {
 public:
  virtual ~WidgetHost() = default;
  // Whether this build has the widget at all.
  virtual bool Available(int index) const = 0;
  virtual bool LoadWidget(int index) = 0;
  // Asks the widget's form; false also while another question of the kind stands open.
  virtual bool MayClose(int index) = 0;
  virtual void UnloadWidget(int index) = 0;
  virtual void ShowWidget(int index, bool shown) = 0;
  // kHidden for a widget that is not open.
  virtual Sight SightOfWidget(int index) const = 0;
  // Brings the shown widgets before other windows.
  virtual void BringToFront() = 0;
  // Puts `manager` and the widgets, as far as they are shown, side by side.
  virtual void ArrangeAll(WidgetForm& manager) = 0;
};

class ManagerForm : public WidgetForm, private WidgetWindows {  // frmVRNwg
 public:
  ManagerForm(Services& services, WidgetHost& host);

  // Paints the tiles' glyphs and stars.
  void ShowIcons();
  void ThemeRefresh();
  void WidgetCheck(int index) { states_.WidgetCheck(index); }
  void WidgetCheckOnLoad(int index) { states_.WidgetCheckOnLoad(index); }
  void WidgetClose(int index) { states_.WidgetClose(index); }
  void WidgetOpen(int index) { states_.WidgetOpen(index); }
  void CloseFromOutside(int index) { states_.CloseFromOutside(index); }
  // Shows on its tile whether the widget is open and to be seen.
  void ShowSight(int index);
  // 0 brings the shown widgets to the front, 1 and 6 hide every open widget, 2 shows them, 3
  // arranges them, 5 opens the support page, 8 closes them all; other modes do nothing.
  void WidgetSel(int mode);
  // Opens what was open when the program last ended.
  void StartUp() { states_.StartUp(); }

  bool IsOpen(int index) const { return states_.IsOpen(index); }

 private:
  bool Load(int index) override { return host_.LoadWidget(index); }
  bool MayClose(int index) override { return host_.MayClose(index); }
  void Unload(int index) override { host_.UnloadWidget(index); }
  void Show(int index, bool shown) override { host_.ShowWidget(index, shown); }
  void Mark(int index, bool open) override;
  // A click on a tile: a widget that is open but out of sight comes back, any other is toggled.
  void OnTile(int index);
  // What the widget shows now; empty for one that is closed.
  std::wstring SummaryOf(int index) const;
  bool SecondClickCounts(int id) const override;

  void OnLoad() override;
  void LayOutPanel(const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  void OnControl(int id, int code) override;
  std::wstring StatusText() const override;
  void OnCloseButton() override { services().program.ExitProgram(); }

  WidgetHost& host_;
  WidgetStates states_;
};

}  // namespace varnel
