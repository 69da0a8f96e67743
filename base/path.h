// Folder paths.
#pragma once

#include <string>
#include <string_view>

#include "base/file_store.h"

namespace varnel {

// `path` with a "\" appended when it has none at its end and is longer than three characters.
std::wstring AddTrailingSeparator(std::wstring path);

// True for a path that begins with a drive letter and a colon, or with "\\".
bool IsAbsolutePath(std::wstring_view path);

// The folder of documents called `name` inside the folder that a user chose, with a "\" at its end.
// Wherever the path then names that folder twice in a row, in any case, once is enough, so choosing
// the folder of documents itself does not nest it. Other folders whose names merely end alike stay.
std::wstring DocumentFolderIn(std::wstring chosen, std::wstring_view name);

// Equal paths: creates the folder if it is missing. Different ones: moves the old folder to the new
// path, or creates the new folder when there is no old one. True when the new folder exists
// afterwards; a folder that could not be moved stays where it was, whole.
bool EnsureFolder(FileStore& files, const std::wstring& new_path, const std::wstring& old_path);

}  // namespace varnel
