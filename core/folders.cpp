#include "core/folders.h"

#include <utility>

namespace varnel {
namespace {

bool IsLetter(wchar_t unit) {
  return (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z');
}

}  // namespace

std::wstring AddTrailingSeparator(std::wstring path) {
  if (!path.ends_with(L'\\') && path.size() > 3) path.push_back(L'\\');
  return path;
}

bool IsAbsolutePath(std::wstring_view path) {
  return path.starts_with(L"\\\\") || (path.size() >= 2 && IsLetter(path[0]) && path[1] == L':');
}

bool EnsureFolder(FileStore& files, const std::wstring& new_path, const std::wstring& old_path) {
  if (new_path != old_path && files.FolderExists(old_path)) {
    return files.MoveFolder(old_path, new_path);
  }
  return files.FolderExists(new_path) || files.CreateFolder(new_path);
}

std::wstring ReadFolder(const Settings& settings, const FolderSetting& setting,
                        std::wstring_view program_folder) {
  while (program_folder.ends_with(L'\\')) program_folder.remove_suffix(1);
  const std::wstring fallback = std::wstring(program_folder) + std::wstring(setting.below_program);
  const std::wstring stored = settings.Read(setting.section, setting.name, fallback);
  return AddTrailingSeparator(IsAbsolutePath(stored) ? stored : fallback);
}

DataFolders PrepareDataFolders(const Settings& settings, FileStore& files,
                               std::wstring_view program_folder) {
  const auto prepare = [&](const FolderSetting& setting) {
    std::wstring path = ReadFolder(settings, setting, program_folder);
    EnsureFolder(files, path, path);
    return path;
  };
  return {prepare(kWhiteboardFolder), prepare(kNotesFolder), prepare(kCalendarFolder)};
}

}  // namespace varnel
