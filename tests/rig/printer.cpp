#include "tests/rig/printer.h"

#include <windows.h>

#include <winspool.h>

#include "base/number_text.h"
#include "base/text.h"
#include "tests/rig/files.h"
#include "tests/rig/wait.h"
#include "win/system/handles.h"
#include "win/system/late_function.h"

namespace varnel::rig {
namespace {

constexpr wchar_t kDriver[] = L"Varnel test driver";
constexpr int kMostPages = 500;

// What the system's PostScript driver has to know of a printer: two papers, no borders.
constexpr char kDescription[] =
    R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "VARNEL.PPD"
*Product: "(Varnel)"
*Manufacturer: "Varnel"
*ModelName: "Varnel test printer"
*ShortNickName: "Varnel test printer"
*NickName: "Varnel test printer"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*DefaultResolution: 600dpi
*OpenUI *PageSize/Paper: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]/ImagingBBox null>>setpagedevice"
*PageSize Letter/Letter: "<</PageSize[612 792]/ImagingBBox null>>setpagedevice"
*PageSize A5/A5: "<</PageSize[420 595]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]/ImagingBBox null>>setpagedevice"
*PageRegion Letter/Letter: "<</PageSize[612 792]/ImagingBBox null>>setpagedevice"
*PageRegion A5/A5: "<</PageSize[420 595]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "0 0 595 842"
*ImageableArea Letter/Letter: "0 0 612 792"
*ImageableArea A5/A5: "0 0 420 595"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/Letter: "612 792"
*PaperDimension A5/A5: "420 595"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";

template <class Function>
Function* Spooler(const char* name) {
  return LateFunction<Function>(L"winspool.drv", name);
}

bool RegisterDriver(const std::wstring& description) {
  std::wstring driver = L"wineps.drv", name = kDriver, data = description, type = L"RAW";
  DRIVER_INFO_3W info = {};
  info.cVersion = 3;
  info.pName = name.data();
  info.pDriverPath = driver.data();
  info.pDataFile = data.data();
  info.pConfigFile = driver.data();
  info.pDefaultDataType = type.data();
  auto* add = Spooler<BOOL WINAPI(wchar_t*, DWORD, BYTE*, DWORD)>("AddPrinterDriverExW");
  return add && add(nullptr, 3, reinterpret_cast<BYTE*>(&info),
                    APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
}

bool RegisterPrinter(const std::wstring& printer, const std::wstring& output) {
  std::wstring name = printer, driver = kDriver, port = output, processor = L"WinPrint",
               type = L"RAW";
  PRINTER_INFO_2W info = {};
  info.pPrinterName = name.data();
  info.pDriverName = driver.data();
  info.pPortName = port.data();
  info.pPrintProcessor = processor.data();
  info.pDatatype = type.data();
  auto* add = Spooler<HANDLE WINAPI(wchar_t*, DWORD, BYTE*)>("AddPrinterW");
  auto* close = Spooler<BOOL WINAPI(HANDLE)>("ClosePrinter");
  auto* choose = Spooler<BOOL WINAPI(const wchar_t*)>("SetDefaultPrinterW");
  HANDLE handle = add ? add(nullptr, 2, reinterpret_cast<BYTE*>(&info)) : nullptr;
  if (!handle) return false;
  close(handle);
  return choose && choose(name.c_str());
}

std::wstring HostPath(const std::wstring& path) {
  auto* host = LateFunction<char*(const wchar_t*)>(L"kernel32.dll", "wine_get_unix_file_name");
  char* converted = host ? host(path.c_str()) : nullptr;
  if (!converted) return {};
  const std::wstring wide = WideFromUtf8(converted);
  ::HeapFree(::GetProcessHeap(), 0, converted);
  return wide;
}

// Runs the interpreter on the host, which tells nothing of its end: it is told by a file that it
// writes last.
bool Interpret(const std::wstring& postscript, const std::wstring& device,
               const std::wstring& output) {
  const std::wstring done = postscript + L".done";
  ::DeleteFileW(done.c_str());
  std::wstring line = L"\"Z:\\bin\\sh\" -c \"/usr/bin/gs -q -dNOPAUSE -dBATCH -dSAFER " + device +
                      L" '-sOutputFile=" + HostPath(output) + L"' '" + HostPath(postscript) +
                      L"'; echo $? > '" + HostPath(done) + L"'\"";
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION made = {};
  if (!::CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &made)) {
    return false;
  }
  const UniqueKernelHandle process(made.hProcess), thread(made.hThread);
  const auto ended = [&] { return FileBytes(done).value_or("").ends_with('\n'); };
  return WaitUntil(ended, 3 * kPatience) && FileBytes(done) == "0\n";
}

}  // namespace

FilePrinter::FilePrinter(const std::wstring& folder)
    : name_(L"Varnel test printer"), output_(folder + L"\\printed.ps") {
  const std::wstring description = folder + L"\\varnel.ppd";
  WriteBytes(description, kDescription);
  ready_ = RegisterDriver(description) && RegisterPrinter(name_, output_);
}

FilePrinter::~FilePrinter() {
  auto* open = Spooler<BOOL WINAPI(wchar_t*, HANDLE*, PRINTER_DEFAULTSW*)>("OpenPrinterW");
  auto* remove = Spooler<BOOL WINAPI(HANDLE)>("DeletePrinter");
  auto* close = Spooler<BOOL WINAPI(HANDLE)>("ClosePrinter");
  HANDLE handle = nullptr;
  if (!open || !open(name_.data(), &handle, nullptr)) return;
  if (remove) remove(handle);
  if (close) close(handle);
}

PrintedLines LinesOf(const std::wstring& text) {
  PrintedLines lines(1);
  bool in_word = false;
  for (const wchar_t unit : text) {
    if (unit == L'\n' && !lines.back().empty()) lines.emplace_back();
    const bool blank = unit <= L' ' || unit == L'\xA0';
    if (!blank && !in_word) lines.back().emplace_back();
    if (!blank) lines.back().back() += unit;
    in_word = !blank;
  }
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

std::vector<PrintedLines> PrintedPages(const std::wstring& postscript) {
  std::vector<PrintedLines> pages;
  if (!Interpret(postscript, L"-sDEVICE=txtwrite", postscript + L".%d.txt")) return pages;
  for (int page = 1; page <= kMostPages; ++page) {
    const auto text = FileBytes(postscript + L"." + NumberText(page) + L".txt");
    if (!text) break;
    pages.push_back(LinesOf(WideFromUtf8(*text)));
  }
  return pages;
}

std::wstring PictureOfPage(const std::wstring& postscript, int page, int dpi) {
  const std::wstring picture = postscript + L"." + NumberText(page) + L".bmp";
  const std::wstring number = NumberText(page);
  const std::wstring device = L"-sDEVICE=bmp16m -dTextAlphaBits=4 -dGraphicsAlphaBits=4 -r" +
                              NumberText(dpi) + L" -dFirstPage=" + number + L" -dLastPage=" +
                              number;
  return Interpret(postscript, device, picture) ? picture : std::wstring();
}

}  // namespace varnel::rig
