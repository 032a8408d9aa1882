#pragma once

#include <utility>

namespace tarnel {

// One counted reference to an object of either side.
template <class Interface>
class Reference {
 public:
  Reference() = default;
  // Takes a reference of its own.
  explicit Reference(Interface& object) : object_(&object) { object_->AddRef(); }
  // Takes over the caller's.
  static Reference owning(Interface* object) {
    Reference reference;
    reference.object_ = object;
    return reference;
  }
  Reference(const Reference& other) : object_(other.object_) {
    if (object_) object_->AddRef();
  }
  Reference(Reference&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Reference& operator=(Reference other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Reference() {
    if (object_) object_->Release();
  }

  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace tarnel
