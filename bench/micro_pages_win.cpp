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
constexpr std::size_t kFew = 10;  // pages
constexpr std::size_t kMany = 100;
constexpr int kFiner = 2;  // times, that a page is painted larger than it is shown

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

// Sends pages to a printer as the program does.
void PrintAsTheProgram(const std::wstring& printer, NotePages& pages, std::size_t count) {
  const auto painter = std::make_shared<PagePainter>();
  PrintJob job({printer, {}}, L"bench");
  for (std::size_t i = 0; i < count && !job.progress().ended; ++i) {
    while (!job.HasRoom() && !job.progress().ended) ::Sleep(1);
    const auto page = std::make_shared<PaintedPage>(PaintedPage{pages.At(i), {}});
    job.Add([page, painter](const PrinterSide& side) {
      painter->Paint(*page,
                     {side.dc, static_cast<double>(side.dpi_across) / kTwipsPerInch,
                      static_cast<double>(side.dpi_down) / kTwipsPerInch, side.origin, true});
    });
  }
  job.Finish();
  while (!job.progress().ended) ::Sleep(1);
  if (job.progress().fault != PrintFault::kNone) std::puts("printing failed");
}

// The least that a program can do: the same texts at their places, each by one call, in one font.
void PrintBarely(const std::wstring& printer, NotePages& pages, std::size_t count) {
  const UniqueDc dc(::CreateDCW(L"WINSPOOL", printer.c_str(), nullptr, nullptr));
  DOCINFOW about = {};
  about.cbSize = sizeof about;
  about.lpszDocName = L"bare";
  if (!dc || ::StartDocW(dc.get(), &about) <= 0) return;
  const double scale = static_cast<double>(::GetDeviceCaps(dc.get(), LOGPIXELSX)) / kTwipsPerInch;
  const auto pixels = [scale](int twips) { return static_cast<int>(std::lround(twips * scale)); };
  const LOGFONTW description = DescriptionOf({L"Times New Roman"}, pixels(240));
  const UniqueFont font(::CreateFontIndirectW(&description));
  for (std::size_t i = 0; i < count; ++i) {
    ::StartPage(dc.get());
    const SelectedObject selected(dc.get(), font.get());
    for (const PlacedText& text : pages.At(i).texts) {
      ::TextOutW(dc.get(), pixels(text.left), pixels(text.base_line), text.text.data(),
                 static_cast<int>(text.text.size()));
    }
    ::EndPage(dc.get());
  }
  ::EndDoc(dc.get());
}

// The seconds until pages are in a file.
template <class Print>
double PrintPages(std::size_t count, Print print) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "varnel bench pages";
  std::filesystem::create_directories(folder);
  double seconds = std::numeric_limits<double>::quiet_NaN();
  {
    const rig::FilePrinter printer(folder.wstring());
    const RtfDocument note = LongNote();
    SystemPageMeasure measure;
    NotePages pages(note, kColumn, measure);
    count = std::min(count, pages.Settle(count).pages);
    if (printer.ready()) seconds = TimeOf([&] { print(printer.name(), pages, count); });
  }
  std::filesystem::remove_all(folder);
  return seconds;
}

}  // namespace

std::vector<Probe> PagePlatformProbes() {
  return {
      {"preview: show the next page at 100 %", "ms", ShowNextPage},
      {"print: 10 pages into a file", "s", [] { return PrintPages(kFew, PrintAsTheProgram); }},
      {"print: 10 pages by bare calls", "s", [] { return PrintPages(kFew, PrintBarely); }},
      {"print: 100 pages into a file", "s", [] { return PrintPages(kMany, PrintAsTheProgram); }}};
}

}  // namespace varnel::bench
