#include "win/files/folder_move.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "win/files/file_fault.h"
#include "win/system/handles.h"

namespace varnel {
namespace {

constexpr int kDeepest = 32;  // folders within folders
constexpr std::size_t kPiece = 1 << 16;

// Calls `step` with name and attributes of everything in `folder` until one does not give kDone.
template <class Step>
FileResult ForEachEntry(const std::wstring& folder, Step step) {
  WIN32_FIND_DATAW data;
  const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return LastFileResult();
  FileResult result = FileResult::kDone;
  do {
    const std::wstring name = data.cFileName;
    if (name == L"." || name == L"..") continue;
    result = step(name, data.dwFileAttributes);
  } while (result == FileResult::kDone && ::FindNextFileW(search, &data));
  ::FindClose(search);
  return result;
}

void RemoveTree(const std::wstring& folder) {
  ForEachEntry(folder, [&](const std::wstring& name, DWORD attributes) {
    const std::wstring path = folder + L"\\" + name;
    const bool link = attributes & FILE_ATTRIBUTE_REPARSE_POINT;
    if (attributes & FILE_ATTRIBUTE_READONLY) {
      ::SetFileAttributesW(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
      ::DeleteFileW(path.c_str());
    } else if (link) {
      ::RemoveDirectoryW(path.c_str());
    } else {
      RemoveTree(path);
    }
    return FileResult::kDone;
  });
  ::RemoveDirectoryW(folder.c_str());
}

// Reads a piece of at most kPiece bytes; false at the end, and where reading fails.
bool ReadPiece(const UniqueFile& file, std::vector<char>& piece) {
  DWORD count = 0;
  piece.resize(kPiece);
  if (!::ReadFile(file.get(), piece.data(), kPiece, &count, nullptr)) count = 0;
  piece.resize(count);
  return count > 0;
}

// Compares two files. The first is to be deleted later, so it must not be held by others.
FileResult CompareFiles(const std::wstring& one, const std::wstring& other) {
  const UniqueFile first(::CreateFileW(one.c_str(), GENERIC_READ | DELETE, FILE_SHARE_READ, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!first) return LastFileResult();
  const UniqueFile second(::CreateFileW(other.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  LARGE_INTEGER size = {};
  LARGE_INTEGER other_size = {};
  if (!second || !::GetFileSizeEx(first.get(), &size) ||
      !::GetFileSizeEx(second.get(), &other_size) || size.QuadPart != other_size.QuadPart) {
    return FileResult::kFailed;
  }
  std::vector<char> piece;
  std::vector<char> other_piece;
  LONGLONG same = 0;
  while (ReadPiece(first, piece) && ReadPiece(second, other_piece) && piece == other_piece) {
    same += static_cast<LONGLONG>(piece.size());
  }
  return same == size.QuadPart ? FileResult::kDone : FileResult::kFailed;
}

FileResult CopyWhole(const std::wstring& from, const std::wstring& to) {
  if (!::CopyFileW(from.c_str(), to.c_str(), TRUE)) return LastFileResult();
  {
    const UniqueFile copy(::CreateFileW(to.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    // A read-only copy cannot be opened so; it is compared all the same.
    if (copy) ::FlushFileBuffers(copy.get());
  }
  return CompareFiles(from, to);
}

FileResult CopyTree(const std::wstring& from, const std::wstring& to, int depth) {
  if (depth > kDeepest) return FileResult::kFailed;
  if (!::CreateDirectoryW(to.c_str(), nullptr)) return LastFileResult();
  const DWORD look = ::GetFileAttributesW(from.c_str());
  if (look != INVALID_FILE_ATTRIBUTES && (look & FILE_ATTRIBUTE_HIDDEN)) {
    ::SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_HIDDEN);
  }
  return ForEachEntry(from, [&](const std::wstring& name, DWORD attributes) {
    const std::wstring source = from + L"\\" + name;
    const std::wstring target = to + L"\\" + name;
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) return CopyWhole(source, target);
    if (attributes & FILE_ATTRIBUTE_REPARSE_POINT) return FileResult::kFailed;
    return CopyTree(source, target, depth + 1);
  });
}

}  // namespace

FileResult MoveFolderAcrossDrives(const std::wstring& from, const std::wstring& to) {
  const std::wstring copy = to + L".moving";
  RemoveTree(copy);  // of a program that was ended
  FileResult result = CopyTree(from, copy, 0);
  if (result == FileResult::kDone &&
      !::MoveFileExW(copy.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH)) {
    result = LastFileResult();
  }
  RemoveTree(result == FileResult::kDone ? from : copy);
  return result;
}

}  // namespace varnel
