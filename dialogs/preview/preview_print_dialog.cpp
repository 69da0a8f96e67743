// The part of the preview that prints.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <span>

#include "base/number_text.h"
#include "dialogs/preview/preview_dialog.h"
#include "resources/control_ids.h"
#include "win/print/print_dialog.h"
#include "win/windows/hourglass.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kProgressSteps = 1000;

constexpr Message kNoPrinterHere{
    L"Print",
    L"There is no printer on this computer. Add one in the system's settings, then print "
    L"again."};
constexpr Message kNoDialog{L"Print", L"The system's dialog for printing cannot be opened."};
constexpr Message kPrinterGone{
    L"Print", L"The printer \"%1\" cannot be reached any more. Nothing was printed."};
constexpr Message kPrinterRefuses{L"Print",
                                  L"The printer \"%1\" does not take the document. Look whether it "
                                  L"is switched on and connected, then print again."};
constexpr Message kPrinterStopped{
    L"Print",
    L"The printer \"%1\" failed after %2 of %3 pages. Look whether it "
    L"is switched on and connected, then print the other pages."};
constexpr Message kNoRoom{L"Print",
                          L"There is no room on the disk for what is to be printed: %2 of "
                          L"%3 pages went to the printer \"%1\"."};
constexpr Message kNoPages{L"Print", L"There are no such pages: the last one is %1."};
constexpr Message kStopQuestion{L"Print", L"The pages are still being printed. Stop printing?",
                                MessageKind::kQuestion};

const Message* TroubleOf(PrintFault fault) {
  switch (fault) {
    case PrintFault::kNoPrinter:
      return &kPrinterGone;
    case PrintFault::kNotStarted:
      return &kPrinterRefuses;
    case PrintFault::kStopped:
      return &kPrinterStopped;
    case PrintFault::kDiskFull:
      return &kNoRoom;
    default:
      return nullptr;
  }
}

}  // namespace

bool PreviewDialog::PreparePrinter(PrinterChoice& printer) const {
  return SetPaper(printer,
                  {settings_.paper, settings_.size, settings_.landscape, settings_.colour});
}

const Paper* PreviewDialog::KnownPaper(int number) const {
  for (const std::span<const Paper> papers : {std::span<const Paper>(papers_), StandardPapers()}) {
    const auto known = std::ranges::find(papers, number, &Paper::number);
    if (known != papers.end()) return &*known;
  }
  return nullptr;
}

// What the user chose among the printer's own settings is shown too, and printed as it is shown.
void PreviewDialog::TakePrinter(const PrinterChoice& printer) {
  const bool other = printer.name != printer_;
  desk_.printer = printer;
  const PrintedPaper now{settings_.paper, settings_.size, settings_.landscape, settings_.colour};
  const PrintedPaper chosen = PaperOf(printer, now);
  if (chosen.number != now.number) {
    if (const Paper* known = KnownPaper(chosen.number)) {
      settings_.paper = chosen.number;
      settings_.size = known->size;
    }
  } else if (chosen.number == kOwnPaper) {
    // The driver counts in tenths of a millimetre: what is nearly the same is the same.
    if (Length(chosen.size.width) != Length(now.size.width) ||
        Length(chosen.size.height) != Length(now.size.height)) {
      settings_.size = {SanePaperSide(chosen.size.width), SanePaperSide(chosen.size.height)};
    }
  }
  settings_.landscape = chosen.landscape;
  settings_.colour = chosen.colour;
  if (other) AskForPapers();
  Apply();
  // The paper may be one that only the new printer knows, and the printer's own window has a number
  // of copies too.
  PreparePrinter(desk_.printer);
}

void PreviewDialog::Print() {
  if (printing() || !document_) return;
  {
    const HourglassPointer pointer;
    pages_.Finish();
    CountPages();
  }
  PrinterChoice start = desk_.printer.name.empty() ? DefaultPrinter() : desk_.printer;
  if (!start.name.empty()) PreparePrinter(start);
  const PrintDialogAnswer answer =
      AskHowToPrint(handle(), start, pages_.pages(), picSHEETS_->page() + 1);
  if (!open()) return;
  if (answer.result == PrintDialogResult::kNoPrinter) Ask(handle(), kNoPrinterHere);
  if (answer.result == PrintDialogResult::kFailed) Ask(handle(), kNoDialog);
  if (answer.result != PrintDialogResult::kPrint) return;
  TakePrinter(answer.printer);
  pages_.Finish();
  StartPrinting(answer.wish);
}

void PreviewDialog::StartPrinting(const PrintWish& wish) {
  order_.emplace(wish, pages_.pages());
  if (order_->size() == 0) {
    Ask(handle(), kNoPages, {NumberText(pages_.pages())});
    return;
  }
  next_side_ = 0;
  cancelling_ = false;
  told_.clear();
  painter_ = std::make_shared<PagePainter>();
  job_ = std::make_unique<PrintJob>(desk_.printer, document_->title());
  ::SendMessageW(Control(prgPRINT), PBM_SETRANGE32, 0, kProgressSteps);
  EnableSetup();
  Arrange();
  ShowPrinting();
  StartTicking();
}

// Pages are laid out here and painted by the job.
void PreviewDialog::FeedPrinter() {
  const bool colour = pages_.setup().colour;
  for (; next_side_ < order_->size() && job_->HasRoom(); ++next_side_) {
    const int page = order_->At(next_side_);
    if (page == PrintOrder::kEmptyPage) {
      job_->Add({});
      continue;
    }
    job_->Add([painted = pages_.At(page), painter = painter_, colour](const PrinterSide& side) {
      painter->Paint(*painted,
                     {side.dc, static_cast<double>(side.dpi_across) / kTwipsPerInch,
                      static_cast<double>(side.dpi_down) / kTwipsPerInch, side.origin, colour});
    });
  }
  if (next_side_ == order_->size()) job_->Finish();
  const PrintJob::Progress progress = job_->progress();
  if (progress.ended) {
    EndPrinting(progress);
  } else {
    ShowPrinting();
  }
}

void PreviewDialog::ShowPrinting() {
  const std::size_t done = job_->progress().sides;
  const std::wstring count = NumberText(static_cast<long long>(order_->size()));
  const std::wstring now = NumberText(static_cast<long long>(std::min(done + 1, order_->size())));
  const std::wstring status =
      cancelling_ ? std::wstring(L"Printing is being cancelled")
                  : L"Printing page " + now + L" of " + count + L" on " + desk_.printer.name;
  if (ControlText(lblSTATUS) != status) SetControlText(lblSTATUS, status);
  ::SendMessageW(Control(prgPRINT), PBM_SETPOS, done * kProgressSteps / order_->size(), 0);
  Enable(cmdSTOPPRINT, !cancelling_);
}

void PreviewDialog::EndPrinting(const PrintJob::Progress& progress) {
  const std::wstring count = NumberText(static_cast<long long>(order_->size()));
  const std::wstring done = NumberText(static_cast<long long>(progress.sides));
  const std::wstring printer = desk_.printer.name;
  job_.reset();
  order_.reset();
  painter_.reset();
  if (progress.fault == PrintFault::kNone) {
    told_ = (count == L"1" ? std::wstring(L"1 page was") : count + L" pages were") + L" sent to " +
            printer;
  } else {
    told_ = progress.fault == PrintFault::kCancelled
                ? L"Printing was cancelled after " + done + L" of " + count + L" pages"
                : L"Printing failed after " + done + L" of " + count + L" pages";
  }
  EnableSetup();
  Arrange();
  ShowStatus();
  if (const Message* trouble = TroubleOf(progress.fault)) {
    Ask(handle(), *trouble, {printer, done, count});
  }
  if (open() && document_ != desk_.document() && desk_.document()) TakeDocument();
}

bool PreviewDialog::MayStopPrinting() {
  return !printing() || Ask(handle(), kStopQuestion);
}

}  // namespace varnel
