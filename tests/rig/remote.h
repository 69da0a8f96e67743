// Records that are handed to a window of another program, in that program's own memory.
#pragma once

#include <windows.h>

#include <cstddef>

#include "tests/rig/forms.h"
#include "win/system/handles.h"

namespace varnel::rig {

// Memory in the process that a window belongs to, for the length of a scope.
class RemoteMemory {
 public:
  // Holds `size` bytes, which are those at `content`.
  RemoteMemory(HWND window, const void* content, std::size_t size);
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory();

  explicit operator bool() const { return memory_ != nullptr; }
  // Where it is, as a message's parameter.
  LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }
  // Puts other content there. False when it cannot.
  bool Write(const void* content, std::size_t size) const;
  // Copies what stands there now. False when it cannot be read.
  bool Read(void* content, std::size_t size) const;

 private:
  UniqueKernelHandle process_;
  void* memory_ = nullptr;
};

// Sends a message whose last parameter is a record: the window gets a copy, and what it writes
// into that comes back in `record`. The message's result; 0 when there was no memory for it.
template <class Record>
LRESULT SendRecord(HWND window, UINT message, WPARAM wparam, Record& record) {
  const RemoteMemory memory(window, &record, sizeof record);
  if (!memory) return 0;
  const LRESULT result = Send(window, message, wparam, memory.address());
  memory.Read(&record, sizeof record);
  return result;
}

}  // namespace varnel::rig
