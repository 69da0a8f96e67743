// The countdown widget.
#pragma once

#include <array>
#include <memory>

#include "frame/widget_form.h"
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
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  std::wstring StatusText() const override;

  void OnTick();
  void AnnounceEnd();
  void OnFieldChanged(int id);
  void ShowFields(int edited_id);
  // Of the display's longest field.
  std::size_t MostDigits() const;
  void ShowState();
  TextStyle FieldStyle(int font_height) const;
  void PlaceInterval(const CountdownLayout& place, const Rect& panel);

  CountdownEngine engine_;
  std::size_t laid_out_digits_ = 2;
  bool filling_ = false;  // the fields are being written by the program
  std::array<std::unique_ptr<ThemedLabel>, 2> separators_;
  std::array<std::unique_ptr<ThemedLabel>, 4> interval_labels_;  // a word, then three units
  std::array<Rect, 3> interval_boxes_;  // in pixels of the panel; empty where not shown
  int display_font_height_ = 1;
  UniqueFont display_font_;  // in use by the edit boxes
  UniqueFont interval_font_;
  Timer tmrTIMER_;
};

}  // namespace varnel
