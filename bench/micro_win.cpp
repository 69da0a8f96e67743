// Timings of steps that need the platform.
#include <filesystem>

#include "base/number_text.h"
#include "bench/micro.h"
#include "theme/text_painter_win.h"
#include "widgets/calculator/calculation_log.h"
#include "widgets/time/clock_layout.h"
#include "win/disk_files.h"
#include "win/font_measure.h"

namespace varnel::bench {
namespace {

double LayOutClockInFont() {
  const ClockDisplay display{L"12:34", L":56", L"PM", L"Saturday, 21 November", true, true};
  return 1e3 * SecondsFor([&] {
           Keep(LayOutClock({394, 180}, 96, display, FontMeasure(L"Tahoma", false)));
         });
}

double PaintLabel(Colour text) {
  Ui ui;
  TextStyle style;
  style.font = {L"Tahoma", 80, false};
  style.colour = text;
  style.ground = 0xEF9F50;
  style.halo_base = 0xEF4F10;
  Surface surface({300, 100});
  return 1e6 * SecondsFor([&] { PaintText(ui, surface, {0, 0, 300, 100}, L"12:34", style); });
}

// A line added to a log on the disk, which grows by it.
double AppendToLog(int lines) {
  const std::wstring path =
      (std::filesystem::temp_directory_path() / L"varnel bench log.dat").wstring();
  DiskFiles files;
  RecordList records;
  for (int i = 0; i < lines; ++i) records.Add(CalculationLine(i, L'*', 3, NumberText(i * 3)));
  files.Replace(path, records.bytes());
  CalculationLog log(files, path);
  log.Load();
  const double seconds = SecondsFor([&] { Keep(log.Append(L"1 + 1 = 2")); });
});
files.Remove(path);
return 1e3 * seconds;
}

}  // namespace

std::vector<Probe> PlatformProbes() {
  return {{"layout of the clock in its font", "ms", LayOutClockInFont},
          {"label of 300 x 100 px without halo", "us", [] { return PaintLabel(kBlack); }},
          {"label of 300 x 100 px with halo", "us", [] { return PaintLabel(kWhite); }},
          {"calculator log, a line added, empty", "ms", [] { return AppendToLog(0); }},
          {"calculator log, a line added, 10,000 lines", "ms", [] { return AppendToLog(10'000); }}};
}

}  // namespace varnel::bench
