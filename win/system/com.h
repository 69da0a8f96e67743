// What the program needs of the system's component model.
#pragma once

#include <windows.h>

#include <ole2.h>

#include <utility>

namespace varnel {

// Makes the thread an apartment in which components, drag and drop and the clipboard's objects
// work, for the length of a scope. May be nested.
class ComApartment {
 public:
  ComApartment() : entered_(SUCCEEDED(::OleInitialize(nullptr))) {}
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  ~ComApartment() {
    if (entered_) ::OleUninitialize();
  }

 private:
  bool entered_;
};

// Holds one reference to a component, or none.
template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  // Takes over a reference that the caller holds.
  explicit ComPointer(Interface* object) : object_(object) {}
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_) object_->Release();
  }

  // Where a function that gives out a reference is to put it; to be called while it holds none.
  Interface** Receive() { return &object_; }
  void** ReceiveAny() { return reinterpret_cast<void**>(&object_); }
  Interface* get() const { return object_; }
  // Gives the reference away.
  Interface* release() { return std::exchange(object_, nullptr); }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace varnel
