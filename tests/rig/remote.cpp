#include "tests/rig/remote.h"

namespace varnel::rig {

RemoteMemory::RemoteMemory(HWND window, const void* content, std::size_t size) {
  DWORD id = 0;
  ::GetWindowThreadProcessId(window, &id);
  process_ = UniqueKernelHandle(
      ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id));
  if (!process_) return;
  memory_ = ::VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT, PAGE_READWRITE);
  Write(content, size);
}

RemoteMemory::~RemoteMemory() {
  if (memory_) ::VirtualFreeEx(process_.get(), memory_, 0, MEM_RELEASE);
}

bool RemoteMemory::Write(const void* content, std::size_t size) const {
  return memory_ && ::WriteProcessMemory(process_.get(), memory_, content, size, nullptr);
}

bool RemoteMemory::Read(void* content, std::size_t size) const {
  return memory_ && ::ReadProcessMemory(process_.get(), memory_, content, size, nullptr);
}

}  // namespace varnel::rig
