// A system encoding for tests: Latin-1, "?" for what it lacks.
#pragma once

#include "widgets/notes/text/text_file.h"

namespace varnel::test {

class Latin1Encoding : public SystemEncoding {
 public:
  std::wstring Read(std::string_view bytes) const override {
    std::wstring text;
    for (const char byte : bytes) text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return text;
  }
  std::string Write(std::wstring_view text) const override {
    std::string bytes;
    for (const wchar_t unit : text) bytes += unit < 256 ? static_cast<char>(unit) : '?';
    return bytes;
  }
};

}  // namespace varnel::test
