#include "win/system/single_instance.h"

namespace varnel {

SingleInstance::SingleInstance(const std::wstring& name)
    : mutex_(::CreateMutexW(nullptr, FALSE, (L"Local\\" + name).c_str())),
      first_(mutex_ && ::GetLastError() != ERROR_ALREADY_EXISTS) {}

}  // namespace varnel
