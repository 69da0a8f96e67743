// Where a family keeps the user's documents.
#pragma once

#include <string>
#include <string_view>

#include "base/file_store.h"
#include "base/settings.h"

namespace varnel {

// Where one kind of documents is kept: a setting whose default lies below the program's folder.
struct FolderSetting {
  std::wstring_view section;
  std::wstring_view name;
  std::wstring_view below_program;  // begins and ends with "\"
};

// The stored folder, or its default when none or no absolute path is stored, after
// AddTrailingSeparator. `program_folder` may end in "\" or not.
std::wstring ReadFolder(const Settings& settings, const FolderSetting& setting,
                        std::wstring_view program_folder);

// Reads the folder and creates it if it is missing; one that cannot be created is named all the
// same.
std::wstring PrepareFolder(const Settings& settings, FileStore& files, const FolderSetting& setting,
                           std::wstring_view program_folder);

}  // namespace varnel
