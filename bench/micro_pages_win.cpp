// Timings of pages on the screen and on their way to a printer.
#include <windows.h>

#include <cmath>
#include <filesystem>
#include <limits>

#include "base/box_shrink.h"
#include "bench/micro.h"
#include "frame/pages/page_measure_win.h"
#include "frame/pages/page_painter_win.h"
#include "tests/rig/printer.h"
#include "widgets/notes/pages/note_pages.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "win/graphics/surface.h"
#include "win/print/print_job.h"

namespace varnel::bench {
namespace {

constexpr Size kA4{11'906, 16'838};
constexpr Rect kColumn{1134, 1134, 10'772, 15'704};
constexpr int kPrinted = 10;  // pages; the test platform takes seconds for each
constexpr int kFiner = 2;     // times, that a page is painted larger than it is shown

RtfDocument LongNote() {
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}}\\f0\\fs24 ";
  for (int i = 0; i < 1500; ++i) {
    rtf += i % 3 ? "\\pard\\qj " : "\\pard ";
    for (int k = 0; k < 9; ++k) rtf += "Some {\\b words} of a note that is {\\i long} enough. ";
    rtf += "\\par ";
  }
  return ReadRtf(rtf + "}").document;
}

// A page that comes into sight at 100 %: laid out and painted.
double ShowNextPage() {
  const RtfDocument note = LongNote();
  SystemPageMeasure measure;
  NotePages pages(note, kColumn, measure);
  const std::size_t count = pages.Settle(40).pages;
  PagePainter painter;
  const double scale = static_cast<double>(kDefaultDpi) / kTwipsPerInch;
  const Size size{static_cast<int>(std::lround(kA4.width * scale)),
                  static_cast<int>(std::lround(kA4.height * scale))};
  Surface shown(size);
  std::size_t next = 0;
  return 1e3 * SecondsFor([&] {
           Surface surface({size.width * kFiner, size.height * kFiner});
           FillRectangle(surface.dc(), surface.wanted(), RGB(255, 255, 255));
           painter.Paint({pages.At(next++ % count), {}},
                         {surface.dc(), scale * kFiner, scale * kFiner, {}, true});
           BoxShrink(surface.pixels(), size, kFiner, shown.pixels());
         });
}

double PrintPages() {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "varnel bench pages";
  std::filesystem::create_directories(folder);
  double seconds = std::numeric_limits<double>::quiet_NaN();
  {
    const rig::FilePrinter printer(folder.wstring());
    const RtfDocument note = LongNote();
    SystemPageMeasure measure;
    NotePages pages(note, kColumn, measure);
    const std::size_t count = pages.Settle(kPrinted).pages;
    const auto painter = std::make_shared<PagePainter>();
    if (printer.ready()) {
      seconds = TimeOf([&] {
        PrintJob job({printer.name(), {}}, L"bench");
        for (int i = 0; i < kPrinted && !job.progress().ended; ++i) {
          while (!job.HasRoom() && !job.progress().ended) ::Sleep(1);
          const auto page = std::make_shared<PaintedPage>(
              PaintedPage{pages.At(static_cast<std::size_t>(i) % count), {}});
          job.Add([page, painter](const PrinterSide& side) {
            painter->Paint(*page,
                           {side.dc, static_cast<double>(side.dpi_across) / kTwipsPerInch,
                            static_cast<double>(side.dpi_down) / kTwipsPerInch, side.origin, true});
          });
        }
        job.Finish();
        while (!job.progress().ended) ::Sleep(1);
        if (job.progress().fault != PrintFault::kNone) std::puts("printing failed");
      });
    }
  }
  std::filesystem::remove_all(folder);
  return seconds;
}

}  // namespace

std::vector<Probe> PagePlatformProbes() {
  return {{"preview: show the next page at 100 %", "ms", ShowNextPage},
          {"print: 10 pages into a file", "s", PrintPages}};
}

}  // namespace varnel::bench
