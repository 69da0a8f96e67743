// Where files go that the user deletes.
#pragma once

#include <string>

#include "base/file_store.h"

namespace varnel {

class RecycleBin {
 public:
  virtual ~RecycleBin() = default;
  // Takes the file away so that the user can get it back, marked read-only or not; where its drive
  // has no such place, it is deleted. kDone also when there was no such file.
  virtual FileResult Recycle(const std::wstring& path) = 0;
};

}  // namespace varnel
