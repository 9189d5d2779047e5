// A counted reference to a COM object.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include <utility>

namespace os {

template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(const ComPointer& other) : object_(other.object_) {
    if (object_) object_->AddRef();
  }
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_) object_->Release();
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  // The place for a function that hands out a reference; what was held is released first.
  Interface** put() {
    *this = ComPointer();
    return &object_;
  }
  void** putVoid() { return reinterpret_cast<void**>(put()); }

  // Another interface of the object, or null when it has none such.
  template <class Other>
  ComPointer<Other> as(REFIID id) const {
    ComPointer<Other> other;
    if (object_) object_->QueryInterface(id, other.putVoid());
    return other;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace os
