// What the dialogs about the program say.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// What a report of a fault should tell about the machine.
struct SystemFacts {
  int major = 0;  // of the system's version
  int minor = 0;
  int build = 0;
  std::wstring language;  // such as "en-GB"
  Size screen;            // of the primary monitor, in pixels
  int dpi = kDefaultDpi;
  int monitors = 1;
};

// One line each: the program with its version, its build, the system, the screen. CR LF stands
// between lines.
std::wstring AboutReport(std::wstring_view version, std::wstring_view build,
                         const SystemFacts& system);

// The terms of one work of others that the program contains.
struct Notice {
  std::wstring title;
  std::wstring text;  // its lines end in CR LF
};

// Reads the notices that the build has put together: UTF-8, before each a form feed and a line with
// its title. What stands before the first is left out.
std::vector<Notice> ReadNotices(std::string_view bytes);

// A text from outside as an edit box shows it: lines end in CR LF, other control characters but
// tabs are left out. Anything but UTF-8 is shown as far as it can be.
std::wstring BoxText(std::string_view bytes);

// Where the plain text of a web page lies: beside it, ending in ".txt".
std::wstring TextOfPage(std::wstring_view page);

}  // namespace varnel
