// A folder that moves to another drive.
#pragma once

#include <string>

#include "base/file_store.h"

namespace varnel {

// Copies the folder `from` with all below it to `to`, which must not be there, compares the copy
// with it and then deletes it. Neither path ends in a separator. Where anything fails before the
// copy is whole, and for a folder with links to other folders or with files that others hold,
// `from` stays as it is and `to` is not there. What of `from` cannot be deleted in the end stays as
// well.
FileResult MoveFolderAcrossDrives(const std::wstring& from, const std::wstring& to);

}  // namespace varnel
