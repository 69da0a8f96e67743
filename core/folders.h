// Folder paths, and the three folders that hold the user's documents.
#pragma once

#include <string>
#include <string_view>

#include "base/file_store.h"
#include "base/settings.h"

namespace varnel {

// `path` with a "\" appended when it has none at its end and is longer than three characters.
std::wstring AddTrailingSeparator(std::wstring path);

// True for a path that begins with a drive letter and a colon, or with "\\".
bool IsAbsolutePath(std::wstring_view path);

// Equal paths: creates the folder if it is missing. Different ones: moves the old folder to the new
// path, or creates the new folder when there is no old one. True when the new folder exists
// afterwards; a folder that could not be moved stays where it was, whole.
bool EnsureFolder(FileStore& files, const std::wstring& new_path, const std::wstring& old_path);

// Where one kind of documents is kept: a setting whose default lies below the program's folder.
struct FolderSetting {
  std::wstring_view section;
  std::wstring_view name;
  std::wstring_view below_program;  // begins and ends with "\"
};

inline constexpr FolderSetting kWhiteboardFolder{L"frmWBDpr\\Details",
                                                 L"Whiteboard Folder Location", L"\\wboard\\"};
inline constexpr FolderSetting kNotesFolder{L"frmNOTpr\\Details", L"Notes Folder Location",
                                            L"\\tavrin\\"};
inline constexpr FolderSetting kCalendarFolder{L"frmCALpr\\Details", L"Calendar Folder Location",
                                               L"\\calendar\\"};

// The stored folder, or its default when none or no absolute path is stored, after
// AddTrailingSeparator. `program_folder` may end in "\" or not.
std::wstring ReadFolder(const Settings& settings, const FolderSetting& setting,
                        std::wstring_view program_folder);

struct DataFolders {
  std::wstring whiteboard;
  std::wstring notes;
  std::wstring calendar;
};

// Reads the three folders and creates those that are missing; one that cannot be created is
// named all the same.
DataFolders PrepareDataFolders(const Settings& settings, FileStore& files,
                               std::wstring_view program_folder);

}  // namespace varnel
