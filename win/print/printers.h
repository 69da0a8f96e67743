// The printers of this system, and what they print on.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// A printer with its settings, as the system keeps them.
struct PrinterChoice {
  std::wstring name;       // empty: none
  std::vector<BYTE> mode;  // a DEVMODEW with all that follows it; may be empty
};

// The user's default printer, with its own settings; no name where there is none. Asks the system
// alone, not the printer.
PrinterChoice DefaultPrinter();

// What of a printer's settings the program chooses. The size is upright, in twips.
struct PrintedPaper {
  int number = 0;
  Size size;
  bool landscape = false;
  bool colour = true;
  bool operator==(const PrintedPaper&) const = default;
};
// Fetches the settings of a printer that has none yet, and puts those in. False where the printer
// is not known.
bool SetPaper(PrinterChoice& printer, const PrintedPaper& paper);
// The settings' paper where they tell one, else `otherwise`.
PrintedPaper PaperOf(const PrinterChoice& printer, const PrintedPaper& otherwise);
// Both sides of each sheet are printed.
bool PrintsBothSides(const PrinterChoice& printer);

// Asks a printer, which may take long, for the kinds of paper it takes; on a thread of its own.
class PaperQuery {
 public:
  struct Paper {
    int number = 0;
    std::wstring name;
    Size size;  // upright, in twips
  };

  explicit PaperQuery(const std::wstring& printer);
  // True once there is an answer; none for a printer that is not known.
  bool done() const;
  // To be called once that is so.
  const std::vector<Paper>& papers() const;

 private:
  struct Shared;
  static DWORD WINAPI Run(void* shared);
  std::shared_ptr<Shared> shared_;
};

}  // namespace varnel
