#pragma once

#include <jni.h>

#include "bindings/java/native/Java_errors.h"
#include "bindings/java/native/Local_ref.h"

namespace gns {

/// A Java class with its methods, looked up once. Whatever fails throws Java_error_pending.
class Java_class {
 public:
  Java_class(JNIEnv* env, const char* name) : env_(env), type_(env, Needed(env->FindClass(name))) {}

  [[nodiscard]] jmethodID Method(const char* name, const char* descriptor) const {
    return Needed(env_->GetMethodID(type_.Get(), name, descriptor));
  }

  template <typename... Arguments>
  Local_ref<jobject> New(jmethodID init, Arguments... arguments) const {
    return {env_, Needed(env_->NewObject(type_.Get(), init, arguments...))};
  }

  template <typename... Arguments>
  void Call(const Local_ref<jobject>& object, jmethodID method, Arguments... arguments) const {
    env_->CallVoidMethod(object.Get(), method, arguments...);
    Check_for_java_error(env_);
  }

 private:
  JNIEnv* env_;
  Local_ref<jclass> type_;
};

}  // namespace gns
