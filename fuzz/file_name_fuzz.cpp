// Any text as a name: what comes out is one plain part of a path and stays as it is when it is
// checked again.
#include <string>

#include "base/file_name.h"
#include "base/text.h"
#include "fuzz/require.h"

namespace varnel {
namespace {

void Check(const std::wstring& typed) {
  const auto name = SafeFileName(typed);
  if (!name) return;
  const bool plain = !name->empty() && name->size() <= kLongestFileName &&
                     name->find_first_of(L"<>:\"/\\|?*") == std::wstring::npos &&
                     name->front() != L' ' && name->back() != L' ' && name->back() != L'.';
  Require(plain && typed.find(*name) != std::wstring::npos);
  for (const wchar_t unit : *name) {
    Require(unit >= 0x20);
  }
  Require(SafeFileName(*name) == name);
  for (const wchar_t* device : {L"con", L"prn", L"aux", L"nul"}) {
    Require(!EqualsIgnoreCase(name->substr(0, name->find(L'.')), device));
  }
}

}  // namespace
}  // namespace varnel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(varnel::BytesOf(data, size));
  varnel::Check(varnel::WideFromUtf8(bytes));
  std::wstring units;
  for (std::size_t at = 0; at + 1 < size; at += 2) {
    units.push_back(static_cast<wchar_t>(data[at] | data[at + 1] << 8));
  }
  varnel::Check(units);
  return 0;
}
