#include "win/print/printers.h"

#include <winspool.h>

#include <algorithm>
#include <array>
#include <atomic>

#include "win/system/handles.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr wchar_t kSpooler[] = L"winspool.drv";
constexpr std::size_t kPaperNameUnits = 64;
constexpr int kMostPapers = 1000;
constexpr double kTwipsPerTenth = kTwipsPerInch / 254.0;  // of a millimetre
constexpr int kMostTenths = 32'000;

int TwipsOf(int tenths) {
  return static_cast<int>(tenths * kTwipsPerTenth + 0.5);
}

short TenthsOf(int twips) {
  return static_cast<short>(
      std::clamp(static_cast<int>(twips / kTwipsPerTenth + 0.5), 1, kMostTenths));
}

// The settings that the printer's driver has for the user; empty where it has none.
std::vector<BYTE> ModeOf(const std::wstring& printer) {
  auto* open =
      LateFunction<BOOL WINAPI(wchar_t*, HANDLE*, PRINTER_DEFAULTSW*)>(kSpooler, "OpenPrinterW");
  auto* close = LateFunction<BOOL WINAPI(HANDLE)>(kSpooler, "ClosePrinter");
  auto* properties = LateFunction<LONG WINAPI(HWND, HANDLE, wchar_t*, DEVMODEW*, DEVMODEW*, DWORD)>(
      kSpooler, "DocumentPropertiesW");
  std::wstring name = printer;
  HANDLE handle = nullptr;
  if (!open || !close || !properties || !open(name.data(), &handle, nullptr)) return {};
  std::vector<BYTE> mode;
  const LONG size = properties(nullptr, handle, name.data(), nullptr, nullptr, 0);
  if (size >= static_cast<LONG>(sizeof(DEVMODEW))) {
    mode.resize(static_cast<std::size_t>(size));
    auto* out = reinterpret_cast<DEVMODEW*>(mode.data());
    if (properties(nullptr, handle, name.data(), out, nullptr, DM_OUT_BUFFER) < 0) mode.clear();
  }
  close(handle);
  return mode;
}

const DEVMODEW* ModeIn(const PrinterChoice& printer) {
  return printer.mode.size() >= sizeof(DEVMODEW)
             ? reinterpret_cast<const DEVMODEW*>(printer.mode.data())
             : nullptr;
}

}  // namespace

PrinterChoice DefaultPrinter() {
  auto* find = LateFunction<BOOL WINAPI(wchar_t*, DWORD*)>(kSpooler, "GetDefaultPrinterW");
  std::array<wchar_t, 512> name{};
  DWORD units = static_cast<DWORD>(name.size());
  if (!find || !find(name.data(), &units)) return {};
  return {name.data(), {}};
}

bool SetPaper(PrinterChoice& printer, const PrintedPaper& paper) {
  if (printer.mode.empty()) printer.mode = ModeOf(printer.name);
  if (printer.mode.size() < sizeof(DEVMODEW)) return false;
  auto& mode = *reinterpret_cast<DEVMODEW*>(printer.mode.data());
  mode.dmFields &= ~static_cast<DWORD>(DM_FORMNAME | DM_PAPERWIDTH | DM_PAPERLENGTH);
  mode.dmFields |= DM_ORIENTATION | DM_PAPERSIZE | DM_COLOR | DM_COPIES;
  mode.dmOrientation = paper.landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
  mode.dmPaperSize = static_cast<short>(paper.number);
  mode.dmColor = paper.colour ? DMCOLOR_COLOR : DMCOLOR_MONOCHROME;
  mode.dmCopies = 1;  // the program makes them, as not every driver can
  if (paper.number == DMPAPER_USER) {
    mode.dmFields |= DM_PAPERWIDTH | DM_PAPERLENGTH;
    mode.dmPaperWidth = TenthsOf(paper.size.width);
    mode.dmPaperLength = TenthsOf(paper.size.height);
  }
  return true;
}

PrintedPaper PaperOf(const PrinterChoice& printer, const PrintedPaper& otherwise) {
  PrintedPaper paper = otherwise;
  const DEVMODEW* mode = ModeIn(printer);
  if (!mode) return paper;
  if (mode->dmFields & DM_ORIENTATION) paper.landscape = mode->dmOrientation == DMORIENT_LANDSCAPE;
  if (mode->dmFields & DM_COLOR) paper.colour = mode->dmColor != DMCOLOR_MONOCHROME;
  if ((mode->dmFields & DM_PAPERSIZE) && mode->dmPaperSize > 0) paper.number = mode->dmPaperSize;
  if (paper.number == DMPAPER_USER && (mode->dmFields & DM_PAPERWIDTH) &&
      (mode->dmFields & DM_PAPERLENGTH)) {
    paper.size = {TwipsOf(mode->dmPaperWidth), TwipsOf(mode->dmPaperLength)};
  }
  return paper;
}

bool PrintsBothSides(const PrinterChoice& printer) {
  const DEVMODEW* mode = ModeIn(printer);
  return mode && (mode->dmFields & DM_DUPLEX) && mode->dmDuplex > DMDUP_SIMPLEX;
}

struct PaperQuery::Shared {
  std::wstring printer;
  std::vector<Paper> papers;
  std::atomic<bool> done = false;
};

PaperQuery::PaperQuery(const std::wstring& printer) : shared_(std::make_shared<Shared>()) {
  shared_->printer = printer;
  auto given = std::make_unique<std::shared_ptr<Shared>>(shared_);
  const UniqueKernelHandle thread(
      printer.empty() ? nullptr : ::CreateThread(nullptr, 0, &Run, given.get(), 0, nullptr));
  if (thread) {
    given.release();  // the thread's now
  } else {
    shared_->done = true;
  }
}

DWORD WINAPI PaperQuery::Run(void* shared) {
  const std::unique_ptr<std::shared_ptr<Shared>> mine(
      static_cast<std::shared_ptr<Shared>*>(shared));
  Shared& query = **mine;
  auto* ask =
      LateFunction<int WINAPI(const wchar_t*, const wchar_t*, WORD, wchar_t*, const DEVMODEW*)>(
          kSpooler, "DeviceCapabilitiesW");
  const auto count_of = [&](WORD what, void* out) {
    return ask ? ask(query.printer.c_str(), nullptr, what, static_cast<wchar_t*>(out), nullptr)
               : -1;
  };
  const int count = count_of(DC_PAPERS, nullptr);
  if (count > 0 && count <= kMostPapers) {
    const auto length = static_cast<std::size_t>(count);
    std::vector<WORD> numbers(length);
    std::vector<POINT> sizes(length);
    std::vector<wchar_t> names(length * kPaperNameUnits + 1);
    if (count_of(DC_PAPERS, numbers.data()) == count &&
        count_of(DC_PAPERSIZE, sizes.data()) == count &&
        count_of(DC_PAPERNAMES, names.data()) == count) {
      for (std::size_t i = 0; i < length; ++i) {
        const wchar_t* name = names.data() + i * kPaperNameUnits;
        query.papers.push_back(
            {numbers[i],
             {name, std::find(name, name + kPaperNameUnits, L'\0')},
             {TwipsOf(static_cast<int>(std::clamp(sizes[i].x, 0L, long{kMostTenths}))),
              TwipsOf(static_cast<int>(std::clamp(sizes[i].y, 0L, long{kMostTenths})))}});
      }
    }
  }
  query.done = true;
  return 0;
}

bool PaperQuery::done() const {
  return shared_->done;
}

const std::vector<PaperQuery::Paper>& PaperQuery::papers() const {
  return shared_->papers;
}

}  // namespace varnel
