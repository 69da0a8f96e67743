// Folders and drives, as a user walks through them.
#pragma once

#include <string>
#include <vector>

namespace varnel {

// Names of the folders within `folder` that are not hidden, in the order of CompareNaturally.
std::vector<std::wstring> FoldersIn(const std::wstring& folder);

// The roots of this machine's drives: "C:\".
std::vector<std::wstring> Drives();

}  // namespace varnel
