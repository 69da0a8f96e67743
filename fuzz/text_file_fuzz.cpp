// Any bytes as a text file: what can be kept is kept to the byte, the rest is told.
#include "fuzz/require.h"
#include "tests/support/latin1_encoding.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const test::Latin1Encoding system;
  const std::string bytes(BytesOf(data, size));
  const TextFile file = ReadText(bytes, system);
  Require(file.text.find(L'\0') == std::wstring::npos &&
          file.text.find(L'\n') == std::wstring::npos);
  const std::string written = WriteText(file.text, file.form, system);
  Require(file.exact == (written == bytes));
  Require(WriteText(L"plain", file.form, system).size() >= 5);
  return 0;
}
