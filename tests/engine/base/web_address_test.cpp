#include "base/web_address.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"

namespace varnel {
namespace {

TEST(WebAddress, PartsOfAnAddress) {
  const test::Cases<const wchar_t*, WebAddress, const wchar_t*> cases = {
      {L"http://a.example", {false, "a.example", 80, "/"}, L"http://a.example/"},
      {L"HTTPS://A.example:443/x?y=1#z",
       {true, "A.example", 443, "/x?y=1"},
       L"https://A.example/x?y=1"},
      {L"http://127.0.0.1:8080?q", {false, "127.0.0.1", 8080, "/?q"}, L"http://127.0.0.1:8080/?q"},
      {L"http://[::1]:81/", {false, "[::1]", 81, "/"}, L"http://[::1]:81/"},
      {L"http://a:/b c\r\nX: \u00E9",
       {false, "a", 80, "/b%20c%0D%0AX:%20%C3%A9"},
       L"http://a/b%20c%0D%0AX:%20%C3%A9"}};
  for (const auto& [text, address, again] : cases) {
    const auto parsed = ParseWebAddress(text);
    ASSERT_TRUE(parsed) << text;
    EXPECT_EQ(*parsed, address) << text;
    EXPECT_EQ(AddressText(*parsed), again);
  }
  for (const wchar_t* none :
       {L"", L"a.example", L"ftp://a/", L"http://", L"http:///x", L"http://u@a/", L"http://a:b/",
        L"http://a:0/", L"http://a:65536/", L"http://a:99999999999/", L"http://a b/",
        L"http://m\u00FCnchen.example/", L"http://[::1/", L"http://a\r\nb/", L"http://?x"}) {
    EXPECT_FALSE(ParseWebAddress(none)) << none;
  }
}

TEST(WebAddress, OnlyPlainMailAddressesAreHandedOn) {
  EXPECT_TRUE(IsMailAddress(L"mailto:a@b.example"));
  EXPECT_TRUE(IsMailAddress(L"MAILTO:a@b.example?subject=x%20y"));
  for (const wchar_t* none : {L"", L"mailto:", L"a@b.example", L"mailto:a b", L"mailto:a\" /x",
                              L"mailto:\u00FC@b", L"mailto:a\n", L"mailtoa:b"}) {
    EXPECT_FALSE(IsMailAddress(none)) << none;
  }
}

TEST(WebAddress, WhereRedirectsLead) {
  const WebAddress from = *ParseWebAddress(L"http://h:81/dir/page?q=/1");
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"http://other/x", L"http://other/x"}, {L" /top ", L"http://h:81/top"},
      {L"next", L"http://h:81/dir/next"},     {L"?r", L"http://h:81/dir/page?r"},
      {L"//third/x", L"http://third/x"},      {L"https://safe", L"https://safe/"}};
  for (const auto& [location, target] : cases) {
    const auto led = RedirectTarget(from, location);
    ASSERT_TRUE(led) << location;
    EXPECT_EQ(AddressText(*led), target) << location;
  }
  for (const wchar_t* nowhere : {L"", L"file:///C:/x", L"javascript:x", L"http://u:p@h/"}) {
    EXPECT_FALSE(RedirectTarget(from, nowhere)) << nowhere;
  }
  const WebAddress secure = *ParseWebAddress(L"https://h/");
  EXPECT_FALSE(RedirectTarget(secure, L"http://h/"));
  EXPECT_TRUE(RedirectTarget(secure, L"/x")->secure);
}

}  // namespace
}  // namespace varnel
