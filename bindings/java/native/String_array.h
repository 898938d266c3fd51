#pragma once

#include <jni.h>

#include <cstdint>

#include "bindings/java/native/Java_errors.h"
#include "bindings/java/native/Local_ref.h"

namespace gns {

/// A Java array of `count` strings; `make(i)` yields a new local reference to each, or null with an
/// error pending. Throws Java_error_pending.
template <typename Make>
Local_ref<jobjectArray> String_array(JNIEnv* env, std::uint32_t count, Make make) {
  const Local_ref<jclass> type(env, Needed(env->FindClass("java/lang/String")));
  Local_ref<jobjectArray> strings(
      env, Needed(env->NewObjectArray(static_cast<jsize>(count), type.Get(), nullptr)));
  for (std::uint32_t i = 0; i < count; ++i) {
    const Local_ref<jstring> string(env, Needed(make(i)));
    env->SetObjectArrayElement(strings.Get(), static_cast<jsize>(i), string.Get());
  }
  return strings;
}

}  // namespace gns
