// weather times the weather widget of the program that VARNEL_EXE names, which asks a server on
// this machine. Prints one line for each figure: its name, a tab, the time, a tab, the unit.
#include <atomic>
#include <thread>

#include "base/text.h"
#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/http_server.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"
#include "tests/support/weather_samples.h"

namespace varnel::rig {
namespace {

constexpr int kRounds = 15;
constexpr int kWholeDays = 16'000;  // make a feed of a little less than the 1 MB that is read

std::string Feed(int round, int days) {
  test::FeedSample sample;
  sample.temperature = std::to_wstring(50 + round);
  sample.days.resize(static_cast<std::size_t>(days), sample.days.front());
  return Utf8FromWide(test::FeedText(sample));
}

// Asks a window all the time whether it still answers, and keeps the longest it took.
class Asking {
 public:
  explicit Asking(HWND window) : thread_([this, window] { Ask(window); }) {}
  double Longest() {
    done_ = true;
    thread_.join();
    return longest_;
  }

 private:
  void Ask(HWND window) {
    while (!done_) {
      const double start = bench::Milliseconds();
      DWORD_PTR answer = 0;
      ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
      longest_ = std::max(longest_, bench::Milliseconds() - start);
    }
  }

  std::atomic<bool> done_ = false;
  double longest_ = 0;
  std::thread thread_;
};

// The time from asking for a new feed until what it says is on the screen.
double Refresh(HWND weather) {
  HWND temperature = Control(weather, lblTEMPERATURE);
  const Picture before = StillPictureOf(temperature);
  const double start = bench::Milliseconds();
  Choose(weather, L"mnuWEATHERREFRESH");
  while (PictureOf(temperature) == before && bench::Milliseconds() - start < kPatience) {
  }
  return bench::Milliseconds() - start;
}

void Measure(HttpServer& server, HWND weather) {
  const auto print = [&](const char* name, int days, auto measured) {
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
      server.Answer(Feed(i, days));
      times.push_back(measured());
    }
    bench::PrintMedian(name, times);
  };
  const auto refresh = [weather] { return Refresh(weather); };
  print("weather, feed to painted labels", 3, refresh);
  print("weather, feed of 1 MB to painted labels", kWholeDays, refresh);
  print("weather, longest block while 1 MB comes", kWholeDays, [weather] {
    Asking asking(weather);
    Refresh(weather);
    return asking.Longest();
  });
}

}  // namespace
}  // namespace varnel::rig

int main() {
  using namespace varnel::rig;
  ResetInput();
  HttpServer server;
  server.Answer(Feed(-1, 3));
  const Root root;
  root.settings().SetText(L"frmWTHpr\\Details", L"Weather Feed Endpoint", server.address());
  root.settings().SetText(L"frmWTHpr\\Details", L"Temp-Selected", L"1");
  root.settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Weather", L"True");
  Program program(root);
  if (!program.Start()) return 1;
  HWND weather = WaitForForm(program, L"frmWTHwg");
  if (!weather) return 1;
  WaitUntil([weather] { return Text(Control(weather, varnel::lblTEMPERATURE)) != L"-"; });
  Measure(server, weather);
}
