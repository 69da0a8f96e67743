#include "base/file_store.h"

#include <algorithm>

#include "base/name_order.h"
#include "base/text.h"

namespace varnel {

std::wstring_view FileTrouble(FileResult result) {
  switch (result) {
    case FileResult::kDone:
      return L"";
    case FileResult::kMissing:
      return L"is not there any more";
    case FileResult::kNoFolder:
      return L"has no folder any more";
    case FileResult::kLocked:
      return L"is in use by another program";
    case FileResult::kReadOnly:
      return L"is read-only";
    case FileResult::kDenied:
      return L"cannot be used: access is denied";
    case FileResult::kFull:
      return L"does not fit: the disk is full";
    case FileResult::kTooLarge:
      return L"is too large";
    case FileResult::kChanged:
      return L"was changed by another program";
    case FileResult::kExists:
      return L"exists already";
    case FileResult::kFailed:
      break;
  }
  return L"cannot be reached";
}

std::vector<std::wstring> FileStore::FileNames(const std::wstring& folder,
                                               std::wstring_view ending) const {
  std::vector<std::wstring> names;
  for (FileEntry& file : Files(folder).files) {
    if (EndsWithIgnoreCase(file.name, ending)) names.push_back(std::move(file.name));
  }
  std::ranges::sort(names, [](const std::wstring& left, const std::wstring& right) {
    return CompareNames(left, right) < 0;
  });
  return names;
}

}  // namespace varnel
