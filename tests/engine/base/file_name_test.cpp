#include "base/file_name.h"

#include <gtest/gtest.h>

#include <string>

namespace varnel {
namespace {

TEST(SafeFileName, KeepsGoodNames) {
  for (const wchar_t* name : {L"Meeting", L"a.b.c", L".hidden", L"\u00c4rger & Co (2)",
                              L"\u65e5\u8a18", L"\U0001F600", L"CONSOLE", L"COM", L"COM10",
                              L"com\u2460", L"nulls", L"x.con", L"LPT", L"-", L"~1", L"CO\u039d"}) {
    EXPECT_EQ(SafeFileName(name), name);
  }
  EXPECT_EQ(SafeFileName(std::wstring(100, L'x')), std::wstring(100, L'x'));
}

TEST(SafeFileName, DropsWhatThePlatformWouldDrop) {
  EXPECT_EQ(SafeFileName(L"  a b  "), L"a b");
  EXPECT_EQ(SafeFileName(L"Mr."), L"Mr");
  EXPECT_EQ(SafeFileName(L"a . . "), L"a");
  EXPECT_EQ(SafeFileName(std::wstring(100, L'x') + L" ."), std::wstring(100, L'x'));
}

TEST(SafeFileName, RefusesEverythingElse) {
  for (const wchar_t* path :
       {L"", L"   ", L".", L"..", L". .", L"..\\x", L"../x", L"a\\b", L"C:", L"C:\\x",
        L"\\\\server\\share", L"\\\\?\\x", L"what?", L"a*", L"<a", L"a>", L"a|b", L"\"a\""}) {
    EXPECT_FALSE(SafeFileName(path)) << path;
  }
  for (const wchar_t* unseen :
       {L"a\tb", L"a\nb", L"a\x7f", L"a\u0085", L"\u202Etxt.exe", L"a\u200Fb", L"\u2066a",
        L"a\u061Cb", L"a\uFEFF", L"a\u200Bb", L"a\u2028b"}) {
    EXPECT_FALSE(SafeFileName(unseen)) << unseen;
  }
  for (const wchar_t* device :
       {L"con", L"PRN", L"Aux", L"nul", L"NUL.txt", L"nul.a.b", L"CON .x", L"com1", L"COM0",
        L"lpt9.dcp", L"COM\u00b9", L"LPT\u00b2.x", L"com\u00b3", L"CONIN$", L"conout$.log",
        L"Clock$", L" nul ", L"NUL."}) {
    EXPECT_FALSE(SafeFileName(device)) << device;
  }
  EXPECT_FALSE(SafeFileName(std::wstring(101, L'x')));
  EXPECT_FALSE(SafeFileName(std::wstring(1'000'000, L' ')));
  EXPECT_FALSE(SafeFileName(std::wstring(L"a\0b", 3)));
  EXPECT_FALSE(SafeFileName(std::wstring(1, static_cast<wchar_t>(0xD800))));
}

}  // namespace
}  // namespace varnel
