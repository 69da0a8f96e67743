#include "frame/web_addresses.h"

#include <algorithm>

#include "base/text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kProductFolder = L"products/widget-varnel";

bool IsPlainWebAddress(std::wstring_view address) {
  constexpr std::wstring_view kRefused = L"\"<>\\^`{|}@";
  const bool plain = std::ranges::all_of(address, [&](wchar_t unit) {
    return unit > L' ' && unit < 0x7F && kRefused.find(unit) == std::wstring_view::npos;
  });
  const auto begins_with = [&](std::wstring_view scheme) {
    return address.size() > scheme.size() &&
           EqualsIgnoreCase(address.substr(0, scheme.size()), scheme);
  };
  return plain && (begins_with(L"http://") || begins_with(L"https://"));
}

}  // namespace

WebAddresses WebAddressesBelow(std::wstring_view base) {
  std::wstring root(base);
  if (!root.ends_with(L'/')) root.push_back(L'/');
  const std::wstring product = root + std::wstring(kProductFolder);
  return {root + L"support/software-support.html",
          root + L"support/software-feedback.html",
          root + L"support/software-videos.html",
          product + L"/update.html",
          product + L"/s-version.txt",
          product + L"/donate.html",
          root + L"products/other-programs.html"};
}

WebAddresses ReadWebAddresses(const Settings& settings) {
  const std::wstring stored = settings.Read(kWebAddress);
  return WebAddressesBelow(IsPlainWebAddress(stored) ? stored : kWebAddress.fallback);
}

}  // namespace varnel
