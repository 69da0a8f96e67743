#include "frame/data_folder.h"

#include "base/path.h"

namespace varnel {

std::wstring ReadFolder(const Settings& settings, const FolderSetting& setting,
                        std::wstring_view program_folder) {
  while (program_folder.ends_with(L'\\')) program_folder.remove_suffix(1);
  const std::wstring fallback = std::wstring(program_folder) + std::wstring(setting.below_program);
  const std::wstring stored = settings.Read(setting.section, setting.name, fallback);
  return AddTrailingSeparator(IsAbsolutePath(stored) ? stored : fallback);
}

std::wstring PrepareFolder(const Settings& settings, FileStore& files, const FolderSetting& setting,
                           std::wstring_view program_folder) {
  std::wstring path = ReadFolder(settings, setting, program_folder);
  EnsureFolder(files, path, path);
  return path;
}

}  // namespace varnel
