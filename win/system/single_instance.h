// One running program per user session and settings root.
#pragma once

#include <windows.h>

#include <string>

#include "win/system/handles.h"

namespace varnel {

class SingleInstance {
 public:
  // `name` tells the program apart from others; no "\" in it.
  explicit SingleInstance(const std::wstring& name);

  // True when this process is the first one with that name.
  bool first() const { return first_; }

 private:
  UniqueKernelHandle mutex_;
  bool first_ = false;
};

}  // namespace varnel
