#include "widgets/calculator/pasted_number.h"

#include <gtest/gtest.h>

#include <string>

#include "base/number_format.h"
#include "tests/support/cases.h"

namespace varnel {
namespace {

TEST(PastedNumber, ReadsWhatPeopleCopy) {
  const test::Cases<const wchar_t*, double> cases = {{L"5", 5},
                                                     {L" \t-2.5\r\n", -2.5},
                                                     {L"- 2.5", -2.5},
                                                     {L"\u22122.5", -2.5},
                                                     {L"+7", 7},
                                                     {L"1,234.5", 1234.5},
                                                     {L"1.234,5", 1234.5},
                                                     {L"1,234,567", 1234567},
                                                     {L"1.234.567", 1234567},
                                                     {L"1.234.567,25", 1234567.25},
                                                     {L"1 234 567,25", 1234567.25},
                                                     {L"1\u00A0234.5", 1234.5},
                                                     {L"1\u202F234,567", 1234.567},
                                                     {L"1'234.5", 1234.5},
                                                     {L"1\u2019234\u2019567", 1234567},
                                                     {L"1,234", 1234},
                                                     {L"1.234", 1.234},
                                                     {L"0,125", .125},
                                                     {L"1,25", 1.25},
                                                     {L"1234,567", 1234.567},
                                                     {L",5", .5},
                                                     {L".5", .5},
                                                     {L",123", .123},
                                                     {L"1 234,", 1234},
                                                     {L"5.", 5},
                                                     {L"1E+15", 1e15},
                                                     {L"-1.5e-05", -1.5e-5},
                                                     {L"0,0", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(ParsePastedNumber(text), value) << text;
}

TEST(PastedNumber, TakesNothingElse) {
  for (const wchar_t* text :
       {L"",         L"  ",           L"-",         L".",          L",",
        L"E5",       L".E5",          L"abc",       L"5 apples",   L"$5",
        L"5%",       L"--5",          L"+-5",       L"5-",         L"12 34",
        L"1,23,456", L"1234,567,890", L"1,234 567", L"1,2345,678", L"1.5.5",
        L"1.5 3",    L"1,234.5,6",    L"1\n234",    L"1  234",     L"1,,234",
        L"1E",       L"1E+",          L"1E5.5",     L"1E+-5",      L"inf",
        L"nan",      L"0x10",         L"1E+309",    L"(5)",        L"1,234,"}) {
    if (ParsePastedNumber(text)) ADD_FAILURE() << text;
  }
  EXPECT_FALSE(ParsePastedNumber(std::wstring(401, L'1')));
  EXPECT_FALSE(ParsePastedNumber(std::wstring(400, L'1')));  // no double holds it
  EXPECT_EQ(ParsePastedNumber(L"1" + std::wstring(399, L' ')), 1);
}

TEST(PastedNumber, TakesBackEveryDisplay) {
  for (const double value : {0.1, -1e-300, 1e15, 123456789.125, -0.0001, 1e308}) {
    const std::wstring general = GeneralNumber(value);
    EXPECT_EQ(ParsePastedNumber(general), LeadingDouble(general)) << general;
    const std::wstring fixed = FixedNumber(value, 3);
    EXPECT_EQ(ParsePastedNumber(fixed), LeadingDouble(fixed)) << fixed;
  }
}

}  // namespace
}  // namespace varnel
