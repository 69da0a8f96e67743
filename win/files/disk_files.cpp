#include "win/files/disk_files.h"

#include <windows.h>

#include <algorithm>

#include "win/files/file_fault.h"
#include "win/files/folder_move.h"
#include "win/system/handles.h"

namespace varnel {
namespace {

constexpr DWORD kMoveTries = 16;
constexpr DWORD kMovePauseMs = 4;  // the first one; each is so much longer
constexpr std::size_t kMostFiles = 100'000;

DWORD Attributes(const std::wstring& path) {
  return ::GetFileAttributesW(path.c_str());
}

bool Has(DWORD attributes, DWORD flag) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & flag) != 0;
}

FileStamp StampOf(DWORD size_high, DWORD size_low, const FILETIME& written) {
  const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
  const std::uint64_t time = joined(written.dwHighDateTime, written.dwLowDateTime);
  return {joined(size_high, size_low), std::max<std::uint64_t>(time, 1)};
}

FileStamp StampOf(const UniqueFile& file) {
  BY_HANDLE_FILE_INFORMATION data = {};
  if (!::GetFileInformationByHandle(file.get(), &data)) return kNoFile;
  return StampOf(data.nFileSizeHigh, data.nFileSizeLow, data.ftLastWriteTime);
}

UniqueFile OpenToWrite(const std::wstring& path, DWORD disposition) {
  return UniqueFile(::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

FileResult WriteOut(const UniqueFile& file, std::string_view bytes) {
  DWORD written = 0;
  if (!::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) {
    return LastFileResult();
  }
  // A full disk can answer with success and a short count.
  if (written != bytes.size()) return FileResult::kFull;
  return ::FlushFileBuffers(file.get()) ? FileResult::kDone : LastFileResult();
}

FileWritten WriteWhole(const std::wstring& path, std::string_view bytes) {
  {
    const UniqueFile file = OpenToWrite(path, CREATE_ALWAYS);
    const FileResult result = file ? WriteOut(file, bytes) : LastFileResult();
    if (result != FileResult::kDone) {
      return {result == FileResult::kMissing ? FileResult::kNoFolder : result, {}};
    }
  }
  // The system may date a file once more when it is closed.
  return {FileResult::kDone, DiskFiles().Stamp(path)};
}

// Whether another program has the file open, however much it shares: the system replaces no such
// file, and refuses it in the same words as one that the user has no right to.
bool IsHeld(const std::wstring& path) {
  const UniqueFile file(::CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  return !file && LastFileResult() == FileResult::kLocked;
}

FileResult MoveOver(const std::wstring& from, const std::wstring& to) {
  FileResult result = FileResult::kDone;
  for (DWORD attempt = 1; attempt <= kMoveTries; ++attempt) {
    if (::MoveFileExW(from.c_str(), to.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return FileResult::kDone;
    }
    result = LastFileResult();
    // Refused, too, where somebody reads the file, who may be gone before this could be asked.
    if (result != FileResult::kLocked && result != FileResult::kDenied) return result;
    ::Sleep(attempt * kMovePauseMs);
  }
  return IsHeld(to) ? FileResult::kLocked : result;
}

// What keeps a file that is there from being written, as far as its attributes tell.
FileResult MarkedAgainstWriting(const std::wstring& path) {
  const DWORD attributes = Attributes(path);
  if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY)) return FileResult::kDenied;
  return Has(attributes, FILE_ATTRIBUTE_READONLY) ? FileResult::kReadOnly : FileResult::kDone;
}

}  // namespace

FileRead DiskFiles::Read(const std::wstring& path, std::size_t limit) const {
  const UniqueFile file(::CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return {LastFileResult(), {}, {}};
  FileRead read;
  read.stamp = StampOf(file);
  if (read.stamp.size > std::min<std::uint64_t>(limit, MAXLONG)) {
    read.result = FileResult::kTooLarge;
    return read;
  }
  read.bytes.resize(static_cast<std::size_t>(read.stamp.size));
  DWORD count = 0;
  if (::ReadFile(file.get(), read.bytes.data(), static_cast<DWORD>(read.bytes.size()), &count,
                 nullptr)) {
    // Others who write at this moment leave it shorter than it was.
    read.result = count == read.bytes.size() ? FileResult::kDone : FileResult::kLocked;
  } else {
    read.result = LastFileResult();
  }
  if (!read) read.bytes.clear();
  return read;
}

FileWritten DiskFiles::Replace(const std::wstring& path, std::string_view bytes,
                               const std::optional<FileStamp>& expected) {
  if (bytes.size() > MAXLONG) return {FileResult::kTooLarge, {}};
  if (expected && Stamp(path) != *expected) return {FileResult::kChanged, {}};
  const FileResult marked = MarkedAgainstWriting(path);
  if (marked != FileResult::kDone) return {marked, {}};
  // Always the same name: what a program that was ended left there is overwritten the next time.
  const std::wstring fresh = path + L".new";
  FileWritten written = WriteWhole(fresh, bytes);
  if (written) written.result = MoveOver(fresh, path);
  if (written) return written;
  if (written.result != FileResult::kNoFolder) ::DeleteFileW(fresh.c_str());
  return {written.result, {}};
}

FileWritten DiskFiles::Append(const std::wstring& path, const FileStamp& expected,
                              std::string_view bytes) {
  if (bytes.size() > MAXLONG) return {FileResult::kTooLarge, {}};
  const FileResult marked = MarkedAgainstWriting(path);
  if (marked != FileResult::kDone) return {marked, {}};
  const UniqueFile file = OpenToWrite(path, OPEN_EXISTING);
  if (!file) return {LastFileResult(), {}};
  FILETIME written = {};
  LARGE_INTEGER end = {};
  if (StampOf(file) != expected) return {FileResult::kChanged, {}};
  if (!::GetFileTime(file.get(), nullptr, nullptr, &written) ||
      !::SetFilePointerEx(file.get(), {}, &end, FILE_END)) {
    return {LastFileResult(), {}};
  }
  const FileResult result = WriteOut(file, bytes);
  if (result != FileResult::kDone) {
    ::SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN);
    ::SetEndOfFile(file.get());
  } else {
    ::GetSystemTimeAsFileTime(&written);
  }
  // A time that was set stays when the file is closed, so that the stamp is known now.
  ::SetFileTime(file.get(), nullptr, nullptr, &written);
  return {result, result == FileResult::kDone ? StampOf(file) : kNoFile};
}

FileStamp DiskFiles::Stamp(const std::wstring& path) const {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
      Has(data.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY)) {
    return kNoFile;
  }
  return StampOf(data.nFileSizeHigh, data.nFileSizeLow, data.ftLastWriteTime);
}

bool DiskFiles::IsReadOnly(const std::wstring& path) const {
  return MarkedAgainstWriting(path) == FileResult::kReadOnly;
}

bool DiskFiles::FolderExists(const std::wstring& path) const {
  return Has(Attributes(WithoutSeparator(path)), FILE_ATTRIBUTE_DIRECTORY);
}

bool DiskFiles::CreateFolder(const std::wstring& path, FolderLook look) {
  const std::wstring bare = WithoutSeparator(path);
  if (FolderExists(bare)) return true;
  const std::size_t cut = bare.rfind(L'\\');
  if (cut != std::wstring::npos && cut > 2) CreateFolder(bare.substr(0, cut));
  if (!::CreateDirectoryW(bare.c_str(), nullptr)) return false;
  if (look == FolderLook::kHidden) ::SetFileAttributesW(bare.c_str(), FILE_ATTRIBUTE_HIDDEN);
  return true;
}

FileResult DiskFiles::MoveFolder(const std::wstring& old_path, const std::wstring& new_path) {
  const std::wstring from = WithoutSeparator(old_path);
  const std::wstring to = WithoutSeparator(new_path);
  if (!FolderExists(from)) return FileResult::kNoFolder;
  if (Attributes(to) != INVALID_FILE_ATTRIBUTES) return FileResult::kExists;
  if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH)) return FileResult::kDone;
  const DWORD error = ::GetLastError();
  if (error == ERROR_NOT_SAME_DEVICE) return MoveFolderAcrossDrives(from, to);
  // For a folder the system says so when a file in it is held.
  return error == ERROR_ACCESS_DENIED ? FileResult::kLocked : FileResultOf(error);
}

FileResult DiskFiles::Rename(const std::wstring& old_path, const std::wstring& new_path) {
  if (::MoveFileExW(old_path.c_str(), new_path.c_str(), MOVEFILE_WRITE_THROUGH)) {
    return FileResult::kDone;
  }
  const FileResult result = LastFileResult();
  if (!FileExists(old_path)) return FileResult::kMissing;
  return result == FileResult::kDenied && IsHeld(old_path) ? FileResult::kLocked : result;
}

FileResult DiskFiles::Keep(const std::wstring& path, const std::wstring& copy_path) {
  if (::CreateHardLinkW(copy_path.c_str(), path.c_str(), nullptr)) return FileResult::kDone;
  if (Attributes(copy_path) != INVALID_FILE_ATTRIBUTES) return FileResult::kExists;
  const std::wstring fresh = copy_path + L".new";
  if (!::CopyFileW(path.c_str(), fresh.c_str(), FALSE)) return LastFileResult();
  const FileResult result = Rename(fresh, copy_path);
  if (result != FileResult::kDone) ::DeleteFileW(fresh.c_str());
  return result;
}

FileResult DiskFiles::Remove(const std::wstring& path, Removal removal) {
  const DWORD attributes = Attributes(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return FileResult::kDone;
  if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY)) return FileResult::kDenied;
  const bool marked = Has(attributes, FILE_ATTRIBUTE_READONLY);
  if (marked) {
    if (removal != Removal::kForced) return FileResult::kReadOnly;
    ::SetFileAttributesW(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  }
  if (::DeleteFileW(path.c_str())) return FileResult::kDone;
  const FileResult result = LastFileResult();
  if (marked) ::SetFileAttributesW(path.c_str(), attributes);
  return result == FileResult::kMissing ? FileResult::kDone : result;
}

FolderListing DiskFiles::Files(const std::wstring& folder) const {
  FolderListing listing;
  WIN32_FIND_DATAW data;
  const HANDLE search = ::FindFirstFileW((WithoutSeparator(folder) + L"\\*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) {
    listing.result = LastFileResult();
    if (listing.result == FileResult::kMissing) listing.result = FileResult::kNoFolder;
    return listing;
  }
  listing.result = FileResult::kDone;
  do {
    if (Has(data.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY)) continue;
    listing.files.push_back(
        {data.cFileName, StampOf(data.nFileSizeHigh, data.nFileSizeLow, data.ftLastWriteTime)});
  } while (listing.files.size() < kMostFiles && ::FindNextFileW(search, &data));
  const bool cut_short =
      listing.files.size() < kMostFiles && ::GetLastError() != ERROR_NO_MORE_FILES;
  if (cut_short) listing = {LastFileResult(), {}};
  ::FindClose(search);
  return listing;
}

}  // namespace varnel
