#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/cases.h"
#include "theme/ini_text.h"

namespace varnel {
namespace {

std::string Utf16(std::string_view ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char byte : ascii) bytes.append({byte, '\0'});
  return bytes;
}

IniText Parsed(std::string_view bytes) {
  auto ini = IniText::FromBytes(bytes);
  EXPECT_TRUE(ini) << bytes;
  return ini.value_or(IniText());
}

TEST(IniText, LooksUpAsThePlatformDoes) {
  const test::Cases<std::string_view, const wchar_t*> cases = {
      {"[Text]\r\n> Key=7\r\n", L"7"},
      {"[TEXT]\n> kEY=7", L"7"},
      {"\r\r  [ text ]\r\t> Key \t=\t 7 \r", L"7"},
      {"\xEF\xBB\xBF[text]\n> key=7", L"7"},
      {"> Key=1\n[other]\n> Key=2\n[text]\n> Key=7\n> Key=8\n[text]\n> Key=9", L"7"},
      {"[text]\n[other]\n> Key=2\n[text]\n> Key=9", L""},  // the first section hides the second
      {"[text]\n;> Key=1\n ; > Key=2\n> Key=7", L"7"},
      {"[text]\n> Key\n> Key=7", L"7"},
      {"[text]\n>Key=1\nKey=2\n> Keys=3", L""},
      {"[text]\n> Key=a=b;c", L"a=b;c"},
      {"[text]\n> Key=\" a b \"", L" a b "},
      {"[text]\n> Key='a\"'", L"a\""},
      {"[text]\n> Key=\"", L"\""},
      {"[text]\n> Key=\"\"", L""},
      {"[text\n> Key=1", L""},
      {"[text] tail\n> Key=7", L"7"},
      {"", L""},
      {"[]", L""},
      {"=", L""},
  };
  for (const auto& [bytes, value] : cases) {
    EXPECT_EQ(Parsed(bytes).Value(L"Text", L"> Key"), value) << bytes;
    const bool ascii = !bytes.starts_with("\xEF");
    if (ascii) {
      EXPECT_EQ(Parsed(Utf16(bytes)).Value(L"Text", L"> Key"), value) << bytes;
    }
  }
}

TEST(IniText, LongValuesAreCut) {
  const auto value_of = [](std::size_t length) {
    return Parsed("[a]\nb=" + std::string(length, 'x')).Value(L"a", L"b").size();
  };
  EXPECT_EQ(value_of(399), 399u);
  EXPECT_EQ(value_of(400), 399u);
  EXPECT_EQ(value_of(60000), 399u);
}

TEST(IniText, SetsInPlaceAndLeavesTheRest) {
  const test::Cases<std::string_view, std::string_view> cases = {
      {"", "[s]\r\nk=1\r\n"},
      {"; note\n\n[S]\n K = 0 ; x\n\n[t]\nk=2\n", "; note\n\n[S]\n K =1\n\n[t]\nk=2\n"},
      {"[s]\r\na=2\r\n\r\n[t]\r\n", "[s]\r\na=2\r\nk=1\r\n\r\n[t]\r\n"},
      {"[s]\r\na=2\r\n; last\r\n\r\n", "[s]\r\na=2\r\n; last\r\nk=1\r\n\r\n"},
      {"[s]", "[s]\r\nk=1\r\n"},
      {"[t]\nk=2", "[t]\nk=2\r\n[s]\r\nk=1\r\n"},
      {"[s]\nk", "[s]\nk\r\nk=1\r\n"},
      {"[s]\nk=", "[s]\nk=1"},
      {"\xEF\xBB\xBF", "\xEF\xBB\xBF[s]\r\nk=1\r\n"},
      {"\xEF\xBB\xBF\xEF\xBB\xBF", "\xEF\xBB\xBF\xEF\xBB\xBF\r\n[s]\r\nk=1\r\n"},
      {"\xE9t\xE9\n[s]\n\xFF=\xC0\n", "\xE9t\xE9\n[s]\n\xFF=\xC0\nk=1\r\n"},  // Latin-1
  };
  for (const auto& [before, after] : cases) {
    IniText ini = Parsed(before);
    EXPECT_EQ(ini.Bytes(), before);
    ini.SetValue(L"s", L"k", L"1");
    EXPECT_EQ(ini.Bytes(), after);
  }
}

TEST(IniText, OtherCharactersTurnItIntoUtf16) {
  IniText ini = Parsed("[s]\r\nk=\xC3\xA9\r\n");
  EXPECT_EQ(ini.Value(L"s", L"k"), L"\u00e9");
  ini.SetValue(L"s", L"j", L"1");
  EXPECT_EQ(ini.Bytes(), "[s]\r\nk=\xC3\xA9\r\nj=1\r\n");
  ini.SetValue(L"s", L"j", L"\u20ac \U0001F600");
  const std::string bytes = ini.Bytes();
  EXPECT_TRUE(bytes.starts_with("\xFF\xFE"));
  EXPECT_NE(bytes.find("\x3D\xD8\x00\xDE"), std::string::npos);  // a surrogate pair
  const IniText again = Parsed(bytes);
  EXPECT_EQ(again.Value(L"s", L"k"), L"\u00e9");
  EXPECT_EQ(again.Value(L"s", L"j"), L"\u20ac \U0001F600");
  EXPECT_EQ(again.Bytes(), bytes);
}

TEST(IniText, ValuesCannotAddLines) {
  IniText ini;
  ini.SetValue(L"s", L"k", L"1\r\n[t]\nj=2\x1");
  EXPECT_EQ(ini.Bytes(), "[s]\r\nk=1  [t] j=2 \r\n");
}

TEST(IniText, ZerosAreNoText) {
  EXPECT_FALSE(IniText::FromBytes(std::string_view("[s]\0\nk=1", 9)));
  EXPECT_FALSE(IniText::FromBytes(std::string_view("\xFF\xFE[\0\0\0", 6)));
  EXPECT_EQ(Parsed("\xFF\xFE[").Value(L"s", L"k"), L"");  // half a character is dropped
}

TEST(IniText, RandomChangesAgreeWithAMap) {
  const std::vector<std::pair<std::wstring, std::wstring>> sections = {
      {L"main", L"main"}, {L"MAIN", L"main"}, {L"Text", L"text"}, {L"text", L"text"}, {L"x", L"x"}};
  const std::vector<std::wstring> values = {L"",    L"1",      L"a = b", L";c",
                                            L"[x]", L"\u00fc", L"[",     L"'"};
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    std::map<std::pair<std::wstring, int>, std::wstring> model;
    IniText ini = Parsed(round % 2 == 0 ? "" : "; top\n[Main]\n\n[TEXT]\n;end");
    for (int step = 0; step < 40; ++step) {
      const auto& [section, folded] = sections[random() % sections.size()];
      const int key = static_cast<int>(random() % 4);
      const std::wstring& value = values[random() % values.size()];
      ini.SetValue(section, L"> key" + std::to_wstring(key), value);
      model[{folded, key}] = value;
      if (random() % 8 == 0) ini = Parsed(ini.Bytes());
    }
    for (const auto& [name, value] : model) {
      ASSERT_EQ(ini.Value(name.first, L"> KEY" + std::to_wstring(name.second)), value);
    }
  }
}

}  // namespace
}  // namespace varnel
