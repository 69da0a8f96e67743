// Owners of system handles: each closes what it holds exactly once.
#pragma once

#include <windows.h>

#include <utility>

namespace varnel {

template <class Handle, auto Close>
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) : handle_(handle) {}
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(std::exchange(other.handle_, Handle{})) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~UniqueHandle() {
    if (handle_) Close(handle_);
  }
  Handle get() const { return handle_; }
  // Gives the handle away without closing it.
  Handle release() { return std::exchange(handle_, Handle{}); }
  explicit operator bool() const { return handle_ != Handle{}; }

 private:
  Handle handle_{};
};

using UniqueKernelHandle = UniqueHandle<HANDLE, ::CloseHandle>;
using UniqueKey = UniqueHandle<HKEY, ::RegCloseKey>;
using UniqueFont = UniqueHandle<HFONT, ::DeleteObject>;
using UniqueBitmap = UniqueHandle<HBITMAP, ::DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, ::DeleteObject>;
using UniquePen = UniqueHandle<HPEN, ::DeleteObject>;
using UniqueDc = UniqueHandle<HDC, ::DeleteDC>;
using UniqueMenu = UniqueHandle<HMENU, ::DestroyMenu>;
using UniqueIcon = UniqueHandle<HICON, ::DestroyIcon>;

// Files have a "none" value of their own, so they get an owner of their own.
class UniqueFile {
 public:
  explicit UniqueFile(HANDLE handle) : handle_(handle) {}
  UniqueFile(const UniqueFile&) = delete;
  UniqueFile& operator=(const UniqueFile&) = delete;
  ~UniqueFile() { Close(); }
  void Close() {
    if (*this) ::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }
  HANDLE get() const { return handle_; }
  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE handle_;
};

// Puts an object into a device context and the former one back at the end of the scope.
class SelectedObject {
 public:
  SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), former_(::SelectObject(dc, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() { ::SelectObject(dc_, former_); }

 private:
  HDC dc_;
  HGDIOBJ former_;
};

}  // namespace varnel
