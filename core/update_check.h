// The comparison behind the update check.
#pragma once

#include <string_view>

namespace varnel {

// True when the number that `page` begins with is greater than the program's own version.
bool UpdateAvailable(std::wstring_view page, std::wstring_view own_version);

}  // namespace varnel
