// The maker's web pages and the comparison behind the update check.
#pragma once

#include <string>
#include <string_view>

#include "base/settings.h"

namespace varnel {

struct WebAddresses {
  std::wstring support;
  std::wstring feedback;
  std::wstring videos;
  std::wstring update;
  std::wstring version_file;
};

// The pages below `base`, which may end in "/" or not.
WebAddresses WebAddressesBelow(std::wstring_view base);

// The pages below the stored address, or below its default when anything but a plain http or https
// address is stored: one that names no user and holds visible ASCII only.
WebAddresses ReadWebAddresses(const Settings& settings);

// The text of a version with two digits after the point: (1, 5) gives "1.05".
std::wstring VersionText(int major, int minor);

// True when the number that `page` begins with is greater than the program's own version.
bool UpdateAvailable(std::wstring_view page, std::wstring_view own_version);

}  // namespace varnel
