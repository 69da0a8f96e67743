// Addresses of the web: what is asked of whom, and where a redirect leads.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnel {

struct WebAddress {
  bool secure = false;  // https
  std::string host;     // letters, digits, "-", "_", "."; an IPv6 address stands in brackets
  int port = 80;
  std::string path = "/";  // with the query; bytes that may not stand in a request are escaped

  bool operator==(const WebAddress&) const = default;
};

// The parts of an http or https address; a fragment is dropped. Nothing for any other text, an
// address that names a user, or a host beyond ASCII (RFC 3986, section 3).
std::optional<WebAddress> ParseWebAddress(std::wstring_view text);

// Where a redirect of `from` to `location`, an address or a path, leads; nothing when that is no
// web address, or would leave https (RFC 9110, section 10.2.2).
std::optional<WebAddress> RedirectTarget(const WebAddress& from, std::wstring_view location);

// Whether the text is "mailto:" and an address (RFC 6068) that may be handed to another program:
// none of it a blank, a quote or beyond ASCII, which a command line could take for something else.
bool IsMailAddress(std::wstring_view text);

// The host as a request names it, with the port unless it is the usual one.
std::string HostField(const WebAddress& address);

// The whole address again.
std::wstring AddressText(const WebAddress& address);

}  // namespace varnel
