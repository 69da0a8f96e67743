// The alarm popup: one window that comes up beside the system's clock without taking the focus.
#pragma once

#include "frame/services.h"
#include "frame/text_buttons_form.h"
#include "theme/themed_label_win.h"
#include "theme/widget_paint.h"
#include "widgets/time/alarms.h"
#include "win/windows/painted_window.h"
#include "win/windows/reading_box.h"

namespace varnel {

class AlarmPopup : public PaintedWindow {  // frmCLKam
 public:
  explicit AlarmPopup(Services& services);

  // Shows the message in the clock's theme, above those that are still unread; they are unread
  // until the popup is closed. The window is made on first use and then reused.
  void Ring(const AlarmRing& ring);

 private:
  bool Load();
  void TakeTheme();
  void PlaceWindowFor(int height);
  void LayOut();
  int LayOutTexts(int most);
  void PutAway();
  void Paint(Surface& surface) override;
  void DrawCloseButton(const DRAWITEMSTRUCT& item);
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  TextStyle StyleOf(int height_at_96, Align align) const;

  Services& services_;
  WidgetPaint paint_;
  ThemedLabel lblTitle_;
  ThemedLabel lablALARMC_;
  ReadingBox lablMESSAGE_;
  ReadingBox txtEARLIER_;
  UniqueFont text_font_;  // in use by both
  UnreadAlarms unread_;
  TextButtons buttons_;
};

}  // namespace varnel
