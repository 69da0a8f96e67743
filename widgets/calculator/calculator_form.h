// The calculator widget.
#pragma once

#include <optional>

#include "frame/side_list_win.h"
#include "frame/widget_form.h"
#include "theme/themed_label_win.h"
#include "widgets/calculator/calculation_log.h"
#include "widgets/calculator/calculator_engine.h"
#include "widgets/calculator/calculator_layout.h"

namespace varnel {

// The number of the control that is the button of `key`, and the key of a button; nothing for
// another control.
int ButtonOf(CalculatorKey key);
std::optional<CalculatorKey> KeyOf(int id);

class CalculatorForm : public WidgetForm, private SideListOwner {  // frmCLCwg
 public:
  CalculatorForm(Services& services, const FormEntry& entry, int index);

  // Shows the log, or hides it. Where the widget is too small for it, it stays out of sight.
  void HistoryShow();
  // Removes the selected lines from the log.
  void DeleteSelected();
  void SaveState(SaveReason reason) override;

 private:
  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  void OnControl(int id, int code) override;
  std::wstring StatusText() const override;
  std::wstring Summary() const override { return L"Shows " + engine_.display(); }
  bool OnFirstKey(const MSG& message) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  std::wstring RowText(std::size_t row) const override { return log_.Line(row); }
  std::wstring EmptyText() const override { return L"Results are kept here"; }
  void PaintRow(Surface& surface, const SideRow& row) override;
  void OnRowChosen(std::size_t row) override;

  void Press(CalculatorKey key);
  void Strike(CalculatorKey key);
  void ReleaseStruck();
  void Copy();
  void PasteNumber();
  void ClearHistory();
  void TendLog();
  void RetryLog();
  void ShowLog(std::size_t visible_line);
  void PlaceNumber();
  void PlaceDisplay();
  void PlaceKeys();
  void OrderKeys(const std::vector<CalculatorKey>& keys);
  void PlaceLog();
  void ScrollDisplay(int units);
  void OnWheel(Point at, int turn);
  Colour Toned(Colour colour, int weight) const;
  Colour WellColour() const;

  CalculatorEngine engine_;
  CalculationLog log_;
  bool history_shown_ = true;
  CalculatorLayout places_;
  int key_font_height_ = 0;
  std::vector<CalculatorKey> tab_order_;
  int first_unit_ = 0;    // of the display that is seen
  int units_beyond_ = 0;  // that have no room beside the others
  int wheel_turn_ = 0;    // not yet a whole step
  int struck_id_ = 0;     // the button that a key of the keyboard holds down
  ThemedLabel lbl01234567890_;
  ThemedLabel lblDISPLAYFUNC_;
  ThemedLabel lblSUB_;
  SideList lvwFILES_;
  Timer release_timer_;
  Timer log_timer_;  // runs while the log's file is in trouble
};

}  // namespace varnel
