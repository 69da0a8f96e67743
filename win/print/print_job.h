// A document on its way to a printer, on a thread of its own: a printer that makes the program wait
// stops nothing else.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "base/geometry.h"
#include "win/print/printers.h"

namespace varnel {

// What one side of paper is painted on: pixels from the paper's corner lie at `origin` + them.
struct PrinterSide {
  HDC dc = nullptr;
  int dpi_across = 0;
  int dpi_down = 0;
  Point origin;  // of the paper's corner, in pixels of the device
};

enum class PrintFault {
  kNone,
  kNoPrinter,   // the printer is not known any more, or takes no documents
  kNotStarted,  // it does not take this one
  kStopped,     // it failed at a page
  kCancelled,   // by the user, here or where the system lists what is printed
  kDiskFull,
};

class PrintJob {
 public:
  // Painted on the job's own thread: it must hold all it needs, and only share what is not changed
  // meanwhile. An empty one is a side that stays empty.
  using Side = std::function<void(const PrinterSide& side)>;

  // Starts a document of that name. `output` is a file that the printer's data go to instead of the
  // printer; mostly empty.
  PrintJob(const PrinterChoice& printer, const std::wstring& document,
           const std::wstring& output = {});
  PrintJob(const PrintJob&) = delete;
  PrintJob& operator=(const PrintJob&) = delete;
  // Cancels what is not finished, and does not wait for it.
  ~PrintJob();

  // A few sides wait at most, as each holds a page. False while another one is not to be added.
  bool HasRoom() const;
  void Add(Side side);
  // There are no more sides.
  void Finish();
  void Cancel();

  struct Progress {
    std::size_t sides = 0;  // that the printer has taken
    bool ended = false;
    PrintFault fault = PrintFault::kNone;  // once it has ended
  };
  Progress progress() const;

 private:
  class Work;
  static DWORD WINAPI Run(void* work);
  std::shared_ptr<Work> work_;
};

}  // namespace varnel
