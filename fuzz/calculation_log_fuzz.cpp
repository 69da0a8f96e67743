// Reads bytes as a log file, changes the log and reads it back: nothing of the old file may be
// lost, and what was written must be what is shown.
#include <string>

#include "fuzz/require.h"
#include "tests/support/memory_files.h"
#include "widgets/calculator/calculation_log.h"

using namespace varnel;

namespace {

void RequireSameAfterRestart(const CalculationLog& log, test::MemoryFiles& files,
                             const std::wstring& path) {
  CalculationLog next(files, path);
  next.Load();
  Require(next.count() == log.count());
  for (std::size_t i = 0; i < log.count(); ++i) Require(next.Line(i) == log.Line(i));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring path = L"C:\\calc2.dat";
  test::MemoryFiles files;
  files.files[path] = BytesOf(data, size);
  const std::string original = files.files[path];

  CalculationLog log(files, path);
  log.Load();
  const std::size_t loaded = log.count();
  for (std::size_t i = 0; i < loaded; ++i) {
    const std::wstring line = log.Line(i);
    Require(!line.empty() && line.size() <= 1000);
    Require(line.find_first_of(L"\r\n") == std::wstring::npos);
    if (const auto recalled = RecalledText(line)) Require(recalled->size() + 3 <= line.size());
  }
  Require(files.files[path] == original);

  Require(log.Append(L"1 + 1 = 2.0") && log.saved());
  const auto old = files.files.find(path + L".old");
  if (old == files.files.end()) {
    std::size_t kept = 0;  // every byte that is no quote and no line end
    for (const char byte : files.files[path]) kept += byte != '"' && byte != '\r' && byte != '\n';
    for (const char byte : original) kept -= byte != '"' && byte != '\r' && byte != '\n';
    const bool marked = original.starts_with("\xEF\xBB\xBF");
    Require(kept == 11 - (marked ? 3 : 0));
  } else {
    Require(old->second == original);
  }
  RequireSameAfterRestart(log, files, path);

  log.DeleteSelected({loaded / 2});
  Require(log.Append(L"2 + 2 = 4.0") == (loaded / 2 == loaded));
  RequireSameAfterRestart(log, files, path);
  return 0;
}
