// What the program can be told when it is started.
#pragma once

#include <span>
#include <string>

#include "core/core_settings.h"

namespace varnel {

struct CommandLine {
  std::wstring settings_title{kApplicationTitle};  // "/settings KEY": names the settings' root key
  std::wstring program_folder;  // "/data FOLDER": the folder of themes and documents; else empty
  bool to_tray = false;         // "/tray": the manager starts hidden
  bool quit = false;            // "/quit": the program that runs ends, and none is started
  int show = -1;                // "/show TITLE": the widget that opens; -1 for none
};

// Reads the words after the program's own name. Switches are known in any case; the last of several
// counts. Unknown words are passed over, and so are a title that no widget has, a key that is not 1
// to 64 letters of A to Z, digits, blanks, "-" and "_", and a folder that is no absolute path.
CommandLine ParseCommandLine(std::span<const std::wstring> words);

}  // namespace varnel
