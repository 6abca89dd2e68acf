// A counted reference to a COM object.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace brimwork::win32 {

template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(std::nullptr_t) {}

  /// Takes a reference of its own.
  explicit ComPointer(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }

  /// Takes over the caller's reference.
  static ComPointer Adopt(Interface* object) {
    ComPointer pointer;
    pointer.object_ = object;
    return pointer;
  }

  ComPointer(const ComPointer& other) : ComPointer(other.object_) {}
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  Interface& operator*() const { return *object_; }
  explicit operator bool() const { return object_ != nullptr; }
  bool operator==(std::nullptr_t) const { return object_ == nullptr; }

  /// Gives the reference to the caller.
  Interface* Release() { return std::exchange(object_, nullptr); }

  /// Where a call puts an object that it hands out; what was held is released first.
  Interface** Receive() {
    *this = nullptr;
    return &object_;
  }
  void** ReceiveAny() { return reinterpret_cast<void**>(Receive()); }

  /// The object's other interface, null when it has none.
  template <typename Other>
  ComPointer<Other> As(const IID& iid) const {
    ComPointer<Other> other;
    if (object_ != nullptr && FAILED(object_->QueryInterface(iid, other.ReceiveAny()))) {
      return nullptr;
    }
    return other;
  }
  template <typename Other>
  ComPointer<Other> As() const {
    return As<Other>(__uuidof(Other));
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace brimwork::win32
