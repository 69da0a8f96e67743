// Files that the user deletes.
#pragma once

#include <string>

namespace varnel {

enum class ReadOnlyFile { kStays, kGoes };

// Puts the file (a full path) into the recycle bin where its drive has one, and deletes it where
// it has none or the bin does not take it. Asks and shows nothing. False when the file is still
// there afterwards; a file that is not there counts as deleted.
bool RecycleFile(const std::wstring& path, ReadOnlyFile read_only = ReadOnlyFile::kStays);

}  // namespace varnel
