// The system's print dialog: which printer, which pages, how many copies.
#pragma once

#include <windows.h>

#include "base/print_order.h"
#include "win/print/printers.h"

namespace varnel {

enum class PrintDialogResult {
  kPrint,
  kCancelled,
  kNoPrinter,  // there is none; no dialog was shown
  kFailed,     // the system could not show the dialog
};

struct PrintDialogAnswer {
  PrintDialogResult result = PrintDialogResult::kCancelled;
  PrinterChoice printer;
  PrintWish wish;
};

// Asks the user. `start` is the printer that is offered, with settings of its own; `pages` how many
// there are, `current` (from 1) the one that is looked at.
PrintDialogAnswer AskHowToPrint(HWND owner, const PrinterChoice& start, int pages, int current);

}  // namespace varnel
