#include "tests/rig/files.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "win/files/disk_files.h"

namespace varnel::rig {

namespace fs = std::filesystem;

std::wstring PathFromEnvironment(const wchar_t* name) {
  std::wstring path(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  path.resize(::GetEnvironmentVariableW(name, path.data(), static_cast<DWORD>(path.size())));
  // A build on another system knows the file by its own root, which the platform shows as a drive.
  if (path.starts_with(L'/')) path.insert(0, L"Z:");
  std::replace(path.begin(), path.end(), L'/', L'\\');
  return path;
}

bool FileExists(const std::wstring& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool FolderExists(const std::wstring& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

std::vector<std::wstring> FilesBelow(const std::wstring& folder) {
  std::vector<std::wstring> paths;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error)) {
    if (entry.is_regular_file(error)) {
      paths.push_back(entry.path().lexically_relative(folder).wstring());
    }
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<std::wstring> FoldersIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (entry.is_directory(error)) names.push_back(entry.path().filename().wstring());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<std::string> FileBytes(const std::wstring& path) {
  // So that it can be replaced meanwhile.
  FileRead read = DiskFiles().Read(path, std::numeric_limits<std::size_t>::max());
  return read ? std::optional(std::move(read.bytes)) : std::nullopt;
}

bool WriteBytes(const std::wstring& path, std::string_view bytes) {
  std::error_code error;
  fs::create_directories(fs::path(path).parent_path(), error);
  std::ofstream file(fs::path(path), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

bool RemoveAll(const std::wstring& path) {
  std::error_code error;
  fs::remove_all(path, error);
  return !fs::exists(path, error);
}

}  // namespace varnel::rig
