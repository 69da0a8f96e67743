// The print preview: a document as sheets of paper, the page's setup, and the way to the printer.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/print_order.h"
#include "dialogs/preview/papers.h"
#include "dialogs/preview/preview_layout.h"
#include "dialogs/preview/preview_pages_win.h"
#include "dialogs/preview/print_settings.h"
#include "dialogs/preview/sheet_view_win.h"
#include "frame/pages/print_desk_win.h"
#include "frame/services.h"
#include "win/print/print_job.h"
#include "win/windows/dialog.h"
#include "win/windows/tooltip.h"

namespace varnel {

class PreviewDialog : public Dialog, public SheetViewOwner {  // frmNOTpp
 public:
  PreviewDialog(Services& services, PrintDesk& desk);

 private:
  void OnOpen() override;
  void OnReopen() override;
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  bool OnKey(const MSG& message) override;

  // Laying out, printing and asking the printer go on beside the user by this timer.
  static constexpr UINT_PTR kTick = 1;
  // What tells of a page follows it by this one: the page itself is to be seen first.
  static constexpr UINT_PTR kFollow = 2;
  void StartTicking();

  void OnPage(int page) override;
  void OnZoom(int steps, Point at) override;
  void OnMargins(const PageMargins& margins, bool done) override;

  // --- the window
  void MeasureControls();
  void Arrange();
  PreviewParts Parts(std::vector<int>& widths) const;
  void PlaceSetup(const Rect& panel);
  void PlaceStatus(const Rect& status);
  Rect Measured(int id) const;
  void SetSmallest(MINMAXINFO& info) const;
  void DrawButton(const DRAWITEMSTRUCT& item);
  void ShowTip(HWND control);

  // --- what is looked at
  void TakeDocument();
  void Tick();
  void CountPages();
  void ShowPage();
  void FollowPage();
  void ShowStatus();
  void ShowZoom();
  void SetZoom(const SheetZoom& zoom, std::optional<Point> at = {});
  void StepZoom(int steps, std::optional<Point> at = {});
  void GoTo(int page);
  void Turn(int views);
  bool OnViewKey(WPARAM key, bool ctrl);
  bool OnEnter(int id);
  void OnTool(int id);
  void CloseAll();
  void OnDestroy();

  // --- the page's setup
  void FillSetup();
  void ShowSetupPage();
  void EnableSetup();
  void ShowSetup();
  void ShowMargins();
  void AskForPapers();
  void FillPapers();
  void ShowPapers();
  void OnSetup(int id, int code);
  void OnPaper();
  void TakePaperSize(int index);
  void TakeMargin(int index);
  void OnText(int index);
  void InsertField();
  // The pages follow the settings; what is left to lay out is laid out beside the user.
  void SetUpPages();
  // The settings have changed: the pages and the controls follow, and they are kept.
  void Apply();
  std::optional<int> LengthIn(int id) const;
  std::wstring Length(int twips) const;

  // --- printing
  void Print();
  bool PreparePrinter(PrinterChoice& printer) const;
  // Among the papers that are offered, or those of any printer; null when it is neither.
  const Paper* KnownPaper(int number) const;
  void TakePrinter(const PrinterChoice& printer);
  void StartPrinting(const PrintWish& wish);
  void FeedPrinter();
  void EndPrinting(const PrintJob::Progress& progress);
  void ShowPrinting();
  bool MayStopPrinting();
  bool printing() const { return job_ != nullptr; }

  Services& services_;
  PrintDesk& desk_;
  LengthUnit unit_ = LengthUnit::kMillimetres;
  wchar_t decimal_ = L'.';
  std::shared_ptr<PagedDocument> document_;
  PrintSettings settings_;
  PreviewPages pages_;
  std::unique_ptr<SheetView> picSHEETS_;
  std::unique_ptr<SheetView> picTHUMBS_;
  std::map<int, Rect> measured_;  // the controls as the resource has them
  int measured_dpi_ = kDefaultDpi;
  bool setup_wanted_ = true;
  bool filling_ = false;  // controls change by our own hand
  int last_text_ = 0;     // of the header and footer, the one that was written in last
  bool to_follow_ = false;
  Tooltip tooltip_;
  HWND tip_ = nullptr;

  std::wstring printer_;  // whose papers are offered; empty: none
  std::unique_ptr<PaperQuery> query_;
  std::vector<Paper> of_printer_;
  std::vector<Paper> papers_;  // as they are offered

  std::unique_ptr<PrintJob> job_;
  std::shared_ptr<PagePainter> painter_;  // the job's
  std::optional<PrintOrder> order_;
  std::size_t next_side_ = 0;
  bool cancelling_ = false;
  std::wstring told_;  // how the last printing ended
};

}  // namespace varnel
