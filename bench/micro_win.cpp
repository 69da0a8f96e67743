// Timings of steps that need the platform.
#include <filesystem>
#include <optional>

#include "base/number_text.h"
#include "bench/micro.h"
#include "theme/text_painter_win.h"
#include "widgets/calculator/calculation_log.h"
#include "widgets/time/clock_layout.h"
#include "win/files/disk_files.h"
#include "win/graphics/font_measure.h"

namespace varnel::bench {
namespace {

double LayOutClockInFont() {
  const ClockDisplay display{L"12:34", L":56", L"PM", L"Saturday, 21 November", true, true};
  FontCache fonts;
  return 1e3 * SecondsFor([&] {
           Keep(LayOutClock({394, 180}, 96, display, FontMeasure(fonts, L"Tahoma", false)));
         });
}

double PaintLabel(Colour text) {
  Ui ui;
  TextStyle style;
  style.font = {L"Tahoma", 80, false};
  style.colour = text;
  style.ground = 0xEF9F50;
  style.theme = 0xEF4F10;
  Surface surface({300, 100});
  return 1e6 * SecondsFor([&] { PaintText(ui, surface, {0, 0, 300, 100}, L"12:34", style); });
}

// A log on the disk.
class DiskLog {
 public:
  explicit DiskLog(int lines) {
    path_ += L"varnel bench log of " + NumberText(lines);
    RecordList records;
    for (int i = 0; i < lines; ++i) records.Add(CalculationLine(i, L'*', 3, NumberText(i * 3)));
    files_.Replace(path_, records.bytes());
    log_.emplace(files_, path_);
    log_->Load();
  }
  ~DiskLog() { files_.Remove(path_); }
  double SecondsToAppend() {
    return TimeOf([this] { Keep(log_->Append(L"1 + 1 = 2")); });
  }

 private:
  std::wstring path_ = std::filesystem::temp_directory_path().wstring();
  DiskFiles files_;
  std::optional<CalculationLog> log_;
};

// By turns, since the disk's pace changes from one second to the next.
double AppendToLongLog() {
  DiskLog empty(0), longer(10'000);
  std::vector<double> to_empty, to_longer;
  for (int i = 0; i < 300; ++i) {
    to_empty.push_back(empty.SecondsToAppend());
    to_longer.push_back(longer.SecondsToAppend());
  }
  return Median(to_longer) / Median(to_empty);
}

}  // namespace

std::vector<Probe> PlatformProbes() {
  return {{"layout of the clock in its font", "ms", LayOutClockInFont},
          {"label of 300 x 100 px without halo", "us", [] { return PaintLabel(kBlack); }},
          {"label of 300 x 100 px with halo", "us", [] { return PaintLabel(kWhite); }},
          {"calculator log, a line added to 10,000 against none", "x", AppendToLongLog}};
}

}  // namespace varnel::bench
