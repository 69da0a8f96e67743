// The running program: where it lies and how it was started.
#pragma once

#include <string>
#include <vector>

namespace varnel {

// The full path of the running program file.
std::wstring ProgramPath();

// The words of the command line after the program's own name.
std::vector<std::wstring> CommandLineWords();

}  // namespace varnel
