// The countdown widget.
#pragma once

#include <array>
#include <memory>

#include "frame/widget_form.h"
#include "theme/text_field_win.h"
#include "theme/themed_label_win.h"
#include "widgets/time/countdown_engine.h"
#include "widgets/time/timer_layout.h"

namespace varnel {

class CountdownForm : public WidgetForm {  // frmCDNwg
 public:
  CountdownForm(Services& services, const FormEntry& entry, int index);

 private:
  void OnLoad() override;
  void OnUnload() override { tmrTIMER_.Stop(); }
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void OnControl(int id, int code) override;
  std::wstring Unfinished() const override;
  std::wstring StatusText() const override;
  std::wstring Summary() const override;
  void DrawPanelButton(const ButtonPainting& painting) override;

  void OnTick();
  void AnnounceEnd();
  void OnFieldChanged(int id);
  // The set field with the number `edited_id` is left to the user, who is typing in it.
  void ShowFields(int edited_id);
  // Of the display's longest field.
  std::size_t MostDigits() const;
  void ShowState();
  void ShowStatus();
  TextStyle FieldStyle(int font_height) const;
  void PlaceInterval(const CountdownLayout& place, const Rect& panel);

  CountdownEngine engine_;
  std::size_t laid_out_digits_ = 2;
  std::array<TextField, 3> fields_;           // of the display
  std::array<TextField, 3> interval_fields_;  // what it is set to
  std::array<std::unique_ptr<ThemedLabel>, 2> separators_;
  std::array<std::unique_ptr<ThemedLabel>, 4> interval_labels_;  // a word, then three units
  std::array<Rect, 3> interval_boxes_;  // in pixels of the panel; empty where not shown
  std::wstring ends_at_;                // while counting, where it is within a day
  Timer tmrTIMER_;
};

}  // namespace varnel
