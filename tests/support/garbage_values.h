// Texts that no reader of a setting expects.
#pragma once

#include <string>
#include <vector>

namespace varnel::test {

inline std::vector<std::wstring> GarbageValues() {
  std::vector<std::wstring> values;
  values.insert(values.end(), {L"-1", L"0", L"00", L"1e9", L"1.5", L"1,5", L"--5", L"+5", L"5 5",
                               L"0x10", L"2147483647", L"-2147483648", L"2147483648", L"-9999999",
                               L"500001", L"-500001", L"99999999999999999999", L"\u0661\u0662"});
  values.insert(values.end(), {L"", L"   ", L"abc", L"NaN", L"-NaN", L"inf", L"True", L"truth",
                               L"\t7", L"..\\x", L"\\", L"\\\\?\\", L"C:", L"NUL",
                               L"javascript:alert(1)", L"http://", L"file:///c:/x", L"%TEMP%"});
  values.push_back(std::wstring(1, static_cast<wchar_t>(0xD800)));  // a lone surrogate
  values.push_back(std::wstring(L"12\0 34", 6));
  values.push_back(std::wstring(5, L'\0'));
  values.push_back(std::wstring(255, L'7'));
  values.push_back(std::wstring(100'000, L'x'));
  return values;
}

}  // namespace varnel::test
