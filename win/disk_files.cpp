#include "win/disk_files.h"

#include <windows.h>

#include <algorithm>

#include "base/text.h"
#include "win/handles.h"

namespace varnel {
namespace {

constexpr int kMoveTries = 5;
constexpr DWORD kMovePauseMs = 100;

std::wstring WithoutSeparator(std::wstring path) {
  while (path.size() > 3 && path.ends_with(L'\\')) path.pop_back();
  return path;
}

DWORD Attributes(const std::wstring& path) {
  return ::GetFileAttributesW(path.c_str());
}

UniqueFile OpenToWrite(const std::wstring& path, DWORD disposition) {
  return UniqueFile(::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool WriteOut(const UniqueFile& file, std::string_view bytes) {
  DWORD written = 0;
  // A full disk can answer with success and a short count.
  return ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                     nullptr) &&
         written == bytes.size() && ::FlushFileBuffers(file.get());
}

bool WriteWhole(const std::wstring& path, std::string_view bytes) {
  const UniqueFile file = OpenToWrite(path, CREATE_ALWAYS);
  return file && WriteOut(file, bytes);
}

bool MoveOver(const std::wstring& from, const std::wstring& to) {
  for (int attempt = 1;; ++attempt) {
    if (::MoveFileExW(from.c_str(), to.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return true;
    }
    const DWORD error = ::GetLastError();
    const bool held = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
    if (!held || attempt == kMoveTries) return false;
    ::Sleep(kMovePauseMs);
  }
}

}  // namespace

std::optional<std::string> DiskFiles::Read(const std::wstring& path, std::size_t limit) const {
  const UniqueFile file(::CreateFileW(path.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER size = {};
  if (!file || !::GetFileSizeEx(file.get(), &size)) return std::nullopt;
  if (size.QuadPart < 0 || static_cast<unsigned long long>(size.QuadPart) > limit ||
      size.QuadPart > MAXLONG) {
    return std::nullopt;
  }
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD count = 0;
  if (!::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr)) {
    return std::nullopt;
  }
  bytes.resize(count);
  return bytes;
}

bool DiskFiles::Replace(const std::wstring& path, std::string_view bytes) {
  if (bytes.size() > MAXLONG) return false;
  // Always the same name: what a program that was ended left there is overwritten the next time.
  const std::wstring fresh = path + L".new";
  if (WriteWhole(fresh, bytes) && MoveOver(fresh, path)) return true;
  ::DeleteFileW(fresh.c_str());
  return false;
}

bool DiskFiles::Append(const std::wstring& path, std::size_t size, std::string_view bytes) {
  if (bytes.size() > MAXLONG) return false;
  const UniqueFile file = OpenToWrite(path, OPEN_EXISTING);
  LARGE_INTEGER end = {};
  if (!file || !::SetFilePointerEx(file.get(), {}, &end, FILE_END) ||
      static_cast<unsigned long long>(end.QuadPart) != size) {
    return false;
  }
  if (WriteOut(file, bytes)) return true;
  ::SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN);
  ::SetEndOfFile(file.get());
  return false;
}

bool DiskFiles::FileExists(const std::wstring& path) const {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DiskFiles::FolderExists(const std::wstring& path) const {
  const DWORD attributes = Attributes(WithoutSeparator(path));
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DiskFiles::CreateFolder(const std::wstring& path) {
  const std::wstring bare = WithoutSeparator(path);
  if (FolderExists(bare)) return true;
  const std::size_t cut = bare.rfind(L'\\');
  if (cut != std::wstring::npos && cut > 2) CreateFolder(bare.substr(0, cut));
  return ::CreateDirectoryW(bare.c_str(), nullptr) != FALSE;
}

bool DiskFiles::MoveFolder(const std::wstring& old_path, const std::wstring& new_path) {
  return ::MoveFileExW(WithoutSeparator(old_path).c_str(), WithoutSeparator(new_path).c_str(),
                       MOVEFILE_COPY_ALLOWED) != FALSE;
}

bool DiskFiles::Rename(const std::wstring& old_path, const std::wstring& new_path) {
  return ::MoveFileExW(old_path.c_str(), new_path.c_str(), MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool DiskFiles::Remove(const std::wstring& path) {
  return ::DeleteFileW(path.c_str()) || !FileExists(path);
}

std::vector<std::wstring> DiskFiles::FileNames(const std::wstring& folder,
                                               std::wstring_view ending) const {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW data;
  const HANDLE search = ::FindFirstFileW((WithoutSeparator(folder) + L"\\*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const bool folder_entry = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    if (!folder_entry && EndsWithIgnoreCase(data.cFileName, ending)) {
      names.emplace_back(data.cFileName);
    }
  } while (::FindNextFileW(search, &data));
  ::FindClose(search);
  std::sort(names.begin(), names.end(), [](const std::wstring& left, const std::wstring& right) {
    return ::CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_LESS_THAN;
  });
  return names;
}

}  // namespace varnel
