// The program's own log of faults: a text file for whoever has to find out what went wrong.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

class DebugLog {
 public:
  // Names the file that lines go to; until then, and when it cannot be written, they only reach an
  // attached debugger.
  void SetFile(std::wstring path) { path_ = std::move(path); }

  // Appends one line with date and time. The file is started anew beyond 512 KB, the old one kept
  // beside it with ".old" added to its name. Where the file cannot be written, because something
  // else holds it or has its name, the line goes to one with ".2" added to its name, which begins
  // by saying why. Never throws, never fails visibly.
  void Write(std::wstring_view line) const noexcept;

 private:
  std::wstring path_;
};

}  // namespace varnel
