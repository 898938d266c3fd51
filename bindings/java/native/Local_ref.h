#pragma once

#include <jni.h>

#include <utility>

namespace gns {

/// Owns a local reference, or none, and gives it back to the JVM at the end of its scope: the
/// number alive stays the same however many objects a native method makes.
template <typename Object>
class Local_ref {
 public:
  Local_ref(JNIEnv* env, Object object) : env_(env), object_(object) {}
  Local_ref(Local_ref&& other) noexcept : env_(other.env_), object_(other.Release()) {}
  Local_ref& operator=(Local_ref&& other) noexcept {
    std::swap(env_, other.env_);
    std::swap(object_, other.object_);
    return *this;
  }
  ~Local_ref() {
    if (object_ != nullptr) env_->DeleteLocalRef(object_);
  }

  [[nodiscard]] Object Get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// Hands the reference over, as a rule to the Java caller of the native method.
  Object Release() { return std::exchange(object_, nullptr); }

 private:
  JNIEnv* env_;
  Object object_;
};

}  // namespace gns
