// How many drawing objects the process could still make.
#pragma once

#include <vector>

#include "win/system/handles.h"

namespace varnel::test {

inline int FreeDrawingObjects() {
  std::vector<UniqueBrush> brushes;
  while (UniqueBrush brush{::CreateSolidBrush(0x123456)}) brushes.push_back(std::move(brush));
  return static_cast<int>(brushes.size());
}

}  // namespace varnel::test
