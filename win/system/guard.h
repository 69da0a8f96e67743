// The one place where faults end: what is thrown in the handling of one thing is logged, and the
// program goes on with the next.
#pragma once

#include <string_view>

#include "win/system/debug_log.h"

namespace varnel {

// Writes the exception that is being handled to the log, as a fault of `name` and, unless it is 0,
// of `number`. To be called from a handler alone.
void LogFault(const DebugLog& log, std::wstring_view name, unsigned number) noexcept;

// Does the work, and lets nothing out of it. `number` tells works of one name apart.
template <class Work>
void Guard(const DebugLog& log, std::wstring_view name, const Work& work,
           unsigned number = 0) noexcept {
  try {
    work();
  } catch (...) {
    LogFault(log, name, number);
  }
}

}  // namespace varnel
