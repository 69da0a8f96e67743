#include "dialogs/about/about_text.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"

namespace varnel {
namespace {

TEST(AboutText, ReportsWhatAFaultHasToBeKnownBy) {
  SystemFacts facts{10, 0, 19045, L"en-GB", {1280, 800}, 144, 1};
  EXPECT_EQ(AboutReport(L"1.05", L"64-bit", facts),
            L"Widget Varnel 1.05\r\nBuild: 64-bit\r\nSystem: Windows 10 (10.0.19045), en-GB\r\n"
            L"Screen: 1280 x 800 at 150 %");
  facts.build = 22000;
  facts.monitors = 2;
  const std::wstring report = AboutReport(L"1.05", L"64-bit", facts);
  EXPECT_NE(report.find(L"Windows 11 (10.0.22000)"), std::wstring::npos);
  EXPECT_TRUE(report.ends_with(L"at 150 %, 2 monitors"));
}

TEST(AboutText, NoticesAreReadAsFarAsTheyGo) {
  const std::vector<Notice> notices = ReadNotices("lost\fOne\nfirst\nsecond\fTwo\f\fThree\n");
  ASSERT_EQ(notices.size(), 4u);
  EXPECT_EQ(notices[0].title, L"One");
  EXPECT_EQ(notices[0].text, L"first\r\nsecond");
  EXPECT_EQ(notices[1].title, L"Two");
  EXPECT_EQ(notices[1].text + notices[2].title + notices[3].text, L"");
  EXPECT_TRUE(ReadNotices("").empty());
  EXPECT_TRUE(ReadNotices("no mark").empty());
}

TEST(AboutText, TextsFromOutsideAreMadeFitForABox) {
  const test::Cases<const char*, const wchar_t*> cases = {
      {"a\nb\r\nc", L"a\r\nb\r\nc"}, {"\x01tab\there\x1b", L"tab\there"}, {"\xC3\xA4", L"\u00E4"}};
  for (const auto& [bytes, text] : cases) EXPECT_EQ(BoxText(bytes), text) << bytes;
  EXPECT_EQ(TextOfPage(L"http://h/a.b/page.html"), L"http://h/a.b/page.txt");
}

}  // namespace
}  // namespace varnel
