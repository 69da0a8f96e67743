#include "win/print/print_dialog.h"

#include <objbase.h>

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "win/system/handles.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr wchar_t kDialogs[] = L"comdlg32.dll";
constexpr DWORD kMostRanges = 32;

HGLOBAL FreeMemory(HGLOBAL memory) {
  return ::GlobalFree(memory);
}
using UniqueMemory = UniqueHandle<HGLOBAL, FreeMemory>;

class LockedMemory {
 public:
  explicit LockedMemory(HGLOBAL memory) : memory_(memory), bytes_(::GlobalLock(memory)) {}
  LockedMemory(const LockedMemory&) = delete;
  LockedMemory& operator=(const LockedMemory&) = delete;
  ~LockedMemory() {
    if (bytes_) ::GlobalUnlock(memory_);
  }
  BYTE* bytes() const { return static_cast<BYTE*>(bytes_); }
  std::size_t size() const { return bytes_ ? ::GlobalSize(memory_) : 0; }

 private:
  HGLOBAL memory_;
  void* bytes_;
};

UniqueMemory MemoryOf(const void* bytes, std::size_t size) {
  if (size == 0) return {};
  UniqueMemory memory(::GlobalAlloc(GHND, size));
  const LockedMemory locked(memory.get());
  if (locked.bytes()) std::memcpy(locked.bytes(), bytes, size);
  return memory;
}

// The dialog takes and gives the printer in two blocks of memory, which it may make anew.
UniqueMemory NamesOf(const PrinterChoice& printer) {
  if (printer.name.empty()) return {};
  constexpr std::size_t kHead = sizeof(DEVNAMES) / sizeof(wchar_t);
  std::wstring block(kHead, L'\0');
  auto& head = *reinterpret_cast<DEVNAMES*>(block.data());
  head.wDriverOffset = static_cast<WORD>(kHead);
  head.wDeviceOffset = static_cast<WORD>(kHead + 1);
  head.wOutputOffset = static_cast<WORD>(kHead + 1 + printer.name.size() + 1);
  block += L'\0' + printer.name + L'\0' + L'\0';
  return MemoryOf(block.data(), block.size() * sizeof(wchar_t));
}

PrinterChoice ChoiceOf(HGLOBAL mode, HGLOBAL names) {
  PrinterChoice printer;
  const LockedMemory locked_mode(mode);
  if (locked_mode.size() >= sizeof(DEVMODEW)) {
    const auto& head = *reinterpret_cast<const DEVMODEW*>(locked_mode.bytes());
    const std::size_t size = std::size_t{head.dmSize} + head.dmDriverExtra;
    printer.mode.assign(locked_mode.bytes(),
                        locked_mode.bytes() + std::min(size, locked_mode.size()));
  }
  const LockedMemory locked_names(names);
  if (locked_names.size() > sizeof(DEVNAMES)) {
    const auto& head = *reinterpret_cast<const DEVNAMES*>(locked_names.bytes());
    const auto* units = reinterpret_cast<const wchar_t*>(locked_names.bytes());
    const auto* end = units + locked_names.size() / sizeof(wchar_t);
    const auto* name = std::min(units + head.wDeviceOffset, end);
    printer.name.assign(name, std::find(name, end, L'\0'));
  }
  return printer;
}

PrintDialogResult Fault() {
  auto* error = LateFunction<DWORD WINAPI()>(kDialogs, "CommDlgExtendedError");
  const DWORD code = error ? error() : 0;
  if (code == PDERR_NODEFAULTPRN || code == PDERR_NODEVICES || code == PDERR_PRINTERNOTFOUND) {
    return PrintDialogResult::kNoPrinter;
  }
  return code == 0 ? PrintDialogResult::kCancelled : PrintDialogResult::kFailed;
}

// Wine's dialog of today gives the range that was asked for without the flag that says so.
bool LosesFlagOfRange() {
  return LateFunction<const char * CDECL()>(L"ntdll.dll", "wine_get_version") != nullptr;
}

// The dialog of today, with several ranges; nothing where this system lacks it.
bool AskInSheet(HWND owner, const PrinterChoice& start, int pages, PrintDialogAnswer& answer) {
  auto* ask = LateFunction<HRESULT WINAPI(PRINTDLGEXW*)>(kDialogs, "PrintDlgExW");
  if (!ask) return false;
  std::array<PRINTPAGERANGE, kMostRanges> ranges{};
  ranges[0] = {1, static_cast<DWORD>(pages)};
  UniqueMemory mode = MemoryOf(start.mode.data(), start.mode.size());
  UniqueMemory names = NamesOf(start);
  PRINTDLGEXW request = {};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.hDevMode = mode.release();
  request.hDevNames = names.release();
  request.Flags = PD_ALLPAGES | PD_NOSELECTION | PD_COLLATE;
  request.nPageRanges = 1;
  request.nMaxPageRanges = kMostRanges;
  request.lpPageRanges = ranges.data();
  request.nMinPage = 1;
  request.nMaxPage = static_cast<DWORD>(pages);
  request.nCopies = 1;
  request.nStartPage = START_PAGE_GENERAL;
  const HRESULT shown = ask(&request);
  mode = UniqueMemory(request.hDevMode);
  names = UniqueMemory(request.hDevNames);
  if (FAILED(shown)) return false;
  answer.printer = ChoiceOf(mode.get(), names.get());
  if (request.dwResultAction == PD_RESULT_PRINT) answer.result = PrintDialogResult::kPrint;
  answer.wish.copies = static_cast<int>(std::clamp<DWORD>(request.nCopies, 1, kMostCopies));
  answer.wish.collate = (request.Flags & PD_COLLATE) != 0;
  if (request.Flags & PD_CURRENTPAGE) {
    answer.wish.ranges.clear();
    answer.wish.ranges.push_back({0, 0});
  } else if ((request.Flags & PD_PAGENUMS) || LosesFlagOfRange()) {
    for (DWORD i = 0; i < std::min(request.nPageRanges, kMostRanges); ++i) {
      answer.wish.ranges.push_back(
          {static_cast<int>(ranges[i].nFromPage), static_cast<int>(ranges[i].nToPage)});
    }
  }
  return true;
}

void AskInBox(HWND owner, const PrinterChoice& start, int pages, PrintDialogAnswer& answer) {
  auto* ask = LateFunction<BOOL WINAPI(PRINTDLGW*)>(kDialogs, "PrintDlgW");
  UniqueMemory mode = MemoryOf(start.mode.data(), start.mode.size());
  UniqueMemory names = NamesOf(start);
  const auto last = static_cast<WORD>(std::min(pages, 0xFFFF));
  PRINTDLGW request = {};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.hDevMode = mode.release();
  request.hDevNames = names.release();
  request.Flags = PD_ALLPAGES | PD_NOSELECTION | PD_COLLATE;
  request.nFromPage = request.nMinPage = 1;
  request.nToPage = request.nMaxPage = last;
  request.nCopies = 1;
  const bool shown = ask && ask(&request);
  mode = UniqueMemory(request.hDevMode);
  names = UniqueMemory(request.hDevNames);
  if (!shown) {
    answer.result = ask ? Fault() : PrintDialogResult::kFailed;
    return;
  }
  answer.result = PrintDialogResult::kPrint;
  answer.printer = ChoiceOf(mode.get(), names.get());
  answer.wish.copies = std::clamp<int>(request.nCopies, 1, kMostCopies);
  answer.wish.collate = (request.Flags & PD_COLLATE) != 0;
  if (request.Flags & PD_PAGENUMS) {
    answer.wish.ranges.push_back({request.nFromPage, request.nToPage});
  }
}

}  // namespace

PrintDialogAnswer AskHowToPrint(HWND owner, const PrinterChoice& start, int pages, int current) {
  PrintDialogAnswer answer;
  if (DefaultPrinter().name.empty()) {
    answer.result = PrintDialogResult::kNoPrinter;
    return answer;
  }
  if (!AskInSheet(owner, start, pages, answer)) AskInBox(owner, start, pages, answer);
  for (PageRange& range : answer.wish.ranges) {
    if (range == PageRange{0, 0}) range = {current, current};
  }
  answer.wish.both_sides = PrintsBothSides(answer.printer);
  return answer;
}

}  // namespace varnel
