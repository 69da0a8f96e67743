#include "base/document_folder.h"

#include <algorithm>

#include "base/document_file.h"
#include "base/file_name.h"
#include "base/name_order.h"
#include "base/text.h"

namespace varnel {
namespace {

// A file about to replace another; it is there for a moment only, unless a program was ended.
constexpr std::wstring_view kUnfinishedEnding = L".new";

bool StandsBefore(std::wstring_view left, std::wstring_view right) {
  return CompareNaturally(left, right) < 0;
}

std::wstring TitleOf(const std::wstring& name) {
  return name.substr(0, name.rfind(L'.'));
}

// Both sorted by StandsBefore.
FolderChanges Compare(const std::vector<FileEntry>& former, const std::vector<FileEntry>& now) {
  FolderChanges changes;
  auto old = former.begin();
  for (const FileEntry& entry : now) {
    const auto met = [&] { return old != former.end() && old->name == entry.name; };
    for (; !met() && old != former.end() && StandsBefore(old->name, entry.name); ++old) {
      changes.removed.push_back(old->name);
    }
    if (!met()) {
      changes.added.push_back(entry.name);
      continue;
    }
    if (old->stamp != entry.stamp) changes.changed.push_back(entry.name);
    ++old;
  }
  for (; old != former.end(); ++old) changes.removed.push_back(old->name);
  return changes;
}

}  // namespace

bool DocumentFolder::IsDocument(const std::wstring& name) const {
  if (endings_.empty()) return !EndsWithIgnoreCase(name, kUnfinishedEnding);
  return std::ranges::any_of(
      endings_, [&](const std::wstring& ending) { return EndsWithIgnoreCase(name, ending); });
}

FolderChanges DocumentFolder::Adopt(std::wstring folder) {
  while (folder.ends_with(L'\\')) folder.pop_back();
  folder_ = std::move(folder);
  const std::vector<FileEntry> former = std::exchange(documents_, {});
  FolderChanges changes = Refresh();
  for (const FileEntry& entry : former) changes.removed.push_back(entry.name);
  return changes;
}

FolderChanges DocumentFolder::Refresh() {
  FolderListing listing = files_.Files(folder_);
  if (listing.result != FileResult::kDone && listing.result != FileResult::kNoFolder) {
    FolderChanges none;
    none.result = listing.result;
    return none;
  }
  std::erase_if(listing.files, [&](const FileEntry& entry) { return !IsDocument(entry.name); });
  std::ranges::sort(listing.files, StandsBefore, &FileEntry::name);
  FolderChanges changes = Compare(documents_, listing.files);
  changes.result = listing.result;
  documents_ = std::move(listing.files);
  return changes;
}

std::wstring DocumentFolder::Title(std::size_t index) const {
  return TitleOf(Name(index));
}

std::optional<std::size_t> DocumentFolder::Find(std::wstring_view name) const {
  const auto found = std::ranges::find_if(
      documents_, [&](const FileEntry& entry) { return CompareNames(entry.name, name) == 0; });
  if (found == documents_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - documents_.begin());
}

std::size_t DocumentFolder::FindNearest(std::wstring_view name) const {
  if (const auto found = Find(name)) return *found;
  const auto place = std::ranges::lower_bound(documents_, name, StandsBefore, &FileEntry::name);
  const auto index = static_cast<std::size_t>(place - documents_.begin());
  return documents_.empty() ? 0 : std::min(index, documents_.size() - 1);
}

Renamed DocumentFolder::Rename(std::size_t index, std::wstring_view typed, std::wstring_view ending,
                               NameClash clash) {
  const auto title = SafeFileName(typed);
  if (!title) return {RenameResult::kBadName, FileResult::kDone, Name(index)};
  const std::wstring name = *title + std::wstring(ending);
  const std::wstring former_path = Path(index);
  const std::wstring path = folder_ + L"\\" + name;
  Renamed renamed{RenameResult::kDone, FileResult::kDone, name};
  const bool other = CompareNames(name, Name(index)) != 0;
  if (other && files_.FileExists(path)) {
    if (clash == NameClash::kAsk) return {RenameResult::kClash, FileResult::kExists, Name(index)};
    // Nothing is taken away before the file to be renamed is known to be there.
    renamed.trouble = files_.FileExists(former_path) ? bin_.Recycle(path) : FileResult::kMissing;
  }
  if (renamed.trouble == FileResult::kDone) renamed.trouble = files_.Rename(former_path, path);
  if (renamed.trouble == FileResult::kDone) {
    if (other) MoveVersions(files_, former_path, path);
  } else {
    renamed = {RenameResult::kFailed, renamed.trouble, Name(index)};
  }
  Refresh();
  return renamed;
}

FileResult DocumentFolder::Remove(std::size_t index) {
  const std::wstring path = Path(index);
  const FileResult result = bin_.Recycle(path);
  if (result == FileResult::kDone) RemoveVersions(files_, path);
  Refresh();
  return result;
}

}  // namespace varnel
