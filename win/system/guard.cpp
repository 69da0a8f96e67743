#include "win/system/guard.h"

#include <exception>
#include <string>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

void WriteFault(const DebugLog& log, std::wstring_view name, unsigned number,
                std::string_view fault) noexcept {
  try {
    std::wstring line(name);
    if (number != 0) line += L" " + NumberText(number);
    line += L" failed";
    if (!fault.empty()) line += L": " + WideFromUtf8(fault);
    log.Write(line);
  } catch (...) {
    log.Write(L"a fault that there was no memory to tell about");
  }
}

}  // namespace

void LogFault(const DebugLog& log, std::wstring_view name, unsigned number) noexcept {
  try {
    throw;
  } catch (const std::exception& fault) {
    WriteFault(log, name, number, fault.what());
  } catch (...) {
    WriteFault(log, name, number, {});
  }
}

}  // namespace varnel
