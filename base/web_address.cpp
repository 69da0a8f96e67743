#include "base/web_address.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kPlain = L"http://";
constexpr std::wstring_view kSecure = L"https://";
constexpr int kPlainPort = 80;
constexpr int kSecurePort = 443;
constexpr int kMostPort = 65'535;

constexpr std::wstring_view kMail = L"mailto:";

bool TakeScheme(std::wstring_view& text, std::wstring_view scheme) {
  if (!EqualsIgnoreCase(text.substr(0, scheme.size()), scheme)) return false;
  text.remove_prefix(scheme.size());
  return true;
}

bool IsHost(std::wstring_view host) {
  const bool numeric = host.size() > 2 && host.front() == L'[' && host.back() == L']';
  if (numeric) host = host.substr(1, host.size() - 2);
  return !host.empty() && std::ranges::all_of(host, [numeric](wchar_t unit) {
    const bool letter = (unit >= L'a' && unit <= L'z') || (unit >= L'A' && unit <= L'Z');
    const bool digit = IsDigit(unit);
    return letter || digit || unit == L'-' || unit == L'.' || unit == (numeric ? L':' : L'_');
  });
}

bool TakeAuthority(std::wstring_view authority, WebAddress& address) {
  const std::size_t bracket = authority.find(L']');
  const std::size_t colon = authority.find(L':', bracket == std::wstring_view::npos ? 0 : bracket);
  const std::wstring_view host = authority.substr(0, colon);
  if (!IsHost(host)) return false;
  address.host = Utf8FromWide(host);
  if (colon == std::wstring_view::npos || colon + 1 == authority.size()) return true;
  const std::wstring_view digits = authority.substr(colon + 1);
  if (digits.find_first_not_of(L"0123456789") != std::wstring_view::npos) return false;
  address.port = static_cast<int>(WholeNumber(digits).value_or(0) % (kMostPort + 1LL));
  return address.port > 0 && digits.size() <= 5;
}

std::string Escaped(std::wstring_view path) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string bytes;
  for (const char byte : Utf8FromWide(path)) {
    const auto value = static_cast<unsigned char>(byte);
    if (value > ' ' && value < 0x7F) {
      bytes.push_back(byte);
    } else {
      bytes.append({'%', kDigits[value / 16], kDigits[value % 16]});
    }
  }
  return bytes;
}

int UsualPort(const WebAddress& address) {
  return address.secure ? kSecurePort : kPlainPort;
}

}  // namespace

std::optional<WebAddress> ParseWebAddress(std::wstring_view text) {
  WebAddress address;
  address.secure = TakeScheme(text, kSecure);
  if (!address.secure && !TakeScheme(text, kPlain)) return std::nullopt;
  address.port = UsualPort(address);
  text = text.substr(0, text.find(L'#'));
  const std::size_t end = std::min(text.find_first_of(L"/?"), text.size());
  if (!TakeAuthority(text.substr(0, end), address)) return std::nullopt;
  const std::string path = Escaped(text.substr(end));
  address.path = path.starts_with('/') ? path : "/" + path;
  return address;
}

std::optional<WebAddress> RedirectTarget(const WebAddress& from, std::wstring_view location) {
  const std::wstring place = Trim(location);
  const std::wstring scheme(from.secure ? kSecure : kPlain);
  const std::wstring root = scheme + WideFromUtf8(HostField(from));
  const std::string& path = from.path;
  const auto kept = [&path](std::size_t length) { return WideFromUtf8(path.substr(0, length)); };
  std::wstring target;
  if (place.empty()) return std::nullopt;
  if (place.find(L':') < place.find_first_of(L"/?#")) {
    target = place;
  } else if (place.starts_with(L"//")) {
    target = scheme + place.substr(2);
  } else if (place.front() == L'/') {
    target = root + place;
  } else if (place.front() == L'?') {
    target = root + kept(path.find('?')) + place;
  } else {
    target = root + kept(path.substr(0, path.find('?')).rfind('/') + 1) + place;
  }
  auto address = ParseWebAddress(target);
  if (address && from.secure && !address->secure) return std::nullopt;
  return address;
}

bool IsMailAddress(std::wstring_view text) {
  return TakeScheme(text, kMail) && !text.empty() && std::ranges::all_of(text, [](wchar_t unit) {
           return unit > L' ' && unit < 0x7F && unit != L'"' && unit != L'\'' && unit != L'\\';
         });
}

std::string HostField(const WebAddress& address) {
  if (address.port == UsualPort(address)) return address.host;
  return address.host + ":" + Utf8FromWide(NumberText(address.port));
}

std::wstring AddressText(const WebAddress& address) {
  return std::wstring(address.secure ? kSecure : kPlain) +
         WideFromUtf8(HostField(address) + address.path);
}

}  // namespace varnel
