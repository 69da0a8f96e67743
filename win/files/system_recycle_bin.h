// The recycle bin of the system.
#pragma once

#include "base/recycle_bin.h"

namespace varnel {

class SystemRecycleBin : public RecycleBin {
 public:
  FileResult Recycle(const std::wstring& path) override;
};

}  // namespace varnel
