// The maker's web pages.
#pragma once

#include <string>
#include <string_view>

#include "base/settings.h"

namespace varnel {

// The address below which they lie.
inline constexpr Setting kWebAddress{L"Settings\\Details", L"Web Address",
                                     L"https://widgetvarnel.example/"};

struct WebAddresses {
  std::wstring support;
  std::wstring feedback;
  std::wstring videos;
  std::wstring update;
  std::wstring version_file;
  std::wstring donation;
  std::wstring other_apps;
};

// The pages below `base`, which may end in "/" or not.
WebAddresses WebAddressesBelow(std::wstring_view base);

// The pages below the stored address, or below its default when anything but a plain http or https
// address is stored: one that names no user and holds visible ASCII only.
WebAddresses ReadWebAddresses(const Settings& settings);

}  // namespace varnel
