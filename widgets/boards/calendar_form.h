// The calendar widget.
#pragma once

#include "frame/pages/print_desk_win.h"
#include "widgets/boards/board_form.h"
#include "widgets/boards/calendar_board.h"
#include "widgets/boards/calendar_layout.h"
#include "widgets/boards/calendar_link.h"
#include "widgets/boards/calendar_painter_win.h"
#include "win/files/folder_watch.h"

namespace varnel {

class CalendarForm : public BoardForm, private CalendarWidget {  // frmCALwg
 public:
  CalendarForm(Services& services, const FormEntry& entry, int index, CalendarLink& link,
               PrintDesk& printing);

  // Shows the month's file, or a fresh grid where there is none.
  void CalendarBoardLoad();
  void GoToToday();
  void CalendarPenColor(int index) { SetPen(index); }
  void CalendarInsertText();
  void CalendarInsertChoose();
  void CalendarMergeFloat() { AfterChange(board_.MergeFloat()); }
  void CalendarRefreshBoard();
  void CalendarPrint();
  // Brings the tools up to date.
  void ShowIconsCal() { commands().RefreshTools(); }

 private:
  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  // The labels on the strip say it.
  std::wstring StatusText() const override { return {}; }
  std::wstring StripText() const override;
  std::wstring Summary() const override { return calendar_.title(); }
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

  BoardDocument& document() override { return calendar_; }
  Image PictureOfBoard() override;
  int TextWidth() const override;
  void PaintBoard(Surface& surface, const Rect& part) override;
  Size BoardSize() const override { return grid_.size; }
  void OnBoardRepaint(const Rect& shown) override { stale_ = Union(stale_, shown); }
  void OnPointer(Point at) override;
  AccessibleSource TellBoard() override;

  void InsertText(const std::wstring& text, int points, bool wrap) override;
  void InsertIcon(const OfferedPicture& picture) override;
  bool SaveMonth() override;
  void FolderChanged() override;
  std::vector<DocumentVersion> Versions() const override { return calendar_.Versions(); }
  void RestoreVersion(const DocumentVersion& version) override;

  Month ThisMonth() const { return MonthOf(services().clock.Now()); }
  // Saves, and shows the month so many months on.
  void ShowMonthBeside(int months);
  void ShowMonth(Month month);
  // After another month, or another form of it, was taken up.
  void MonthShown();
  // The day, the language's way of counting weeks, or the clock may have changed.
  void OnNewDay();
  void OnLanguage();
  void OnWheel(int turn, bool ctrl);
  MonthGrid GridOfMonth(Month month, int first_weekday, bool with_today) const;
  Image PictureOfMonth(Month month, const MonthInk& ink);
  Image PictureOn(const CalendarGrid& grid, const MonthGrid& month, const Image& sheet);
  Image PaintedGrid(const CalendarGrid& grid, const MonthGrid& month);
  // What is shown of the sheet, up to date.
  const Image& InkShown();
  std::wstring DayName(const Date& date, std::wstring_view pattern) const;
  std::wstring DayText(const Date& date, std::wstring_view pattern) const;
  // Of the day under the pointer, or of today, as much as the strip has room for.
  std::wstring PointedText() const;
  // As much of the month's title as the bar has room for.
  std::wstring BarTitle() const;
  void PlaceLabels(const Rect& panel);
  void PlaceToday(const Rect& panel);
  void PlaceStripLabels();
  int TitleWidth() const;

  CalendarLink& link_;
  PrintDesk& printing_;
  CalendarBoard calendar_;
  double month_offset_ = 0;  // the months from today's to the one that is shown
  Date today_;               // that the grid shows as today
  int pointed_ = -1;         // the cell under the pointer
  int wheel_turn_ = 0;       // not yet a whole step
  CalendarLayout places_;
  CalendarGrid grid_;
  MonthGrid month_grid_;
  Image ground_;  // the grid as it is shown; empty while it has to be painted anew
  Image ink_;     // what is shown of the sheet, but for
  Rect stale_;    // where that has changed
  ThemedLabel lblSeptember2015_;
  ThemedLabel lablDAYNO_;
  ThemedLabel lablDAY_;
  ThemedLabel lblDATETODAY_;
  ThemedLabel lblSCREEN_;
  ThemedLabel lblMOUSE_;
  FolderWatch watch_;
  Timer midnight_timer_;
};

}  // namespace varnel
