#pragma once

#include <jni.h>

#include <new>

#include "bindings/java/native/Failure_kind.h"
#include "bindings/java/native/Native_method.h"
#include "vorlane/error.h"

namespace gns {

/// Makes a VorlaneException pending.
void Throw(JNIEnv* env, Failure_kind kind, const vorlane::Error& error);

/// Calls the body of a native method and makes a VorlaneException of what it throws.
template <typename Body>
auto Typed_method(JNIEnv* env, Body body) noexcept -> decltype(body()) {
  constexpr jint local_references = 48;  // more than a method has alive at any time
  return Native_method(env, [&]() -> decltype(body()) {
    if (env->EnsureLocalCapacity(local_references) != JNI_OK) throw Java_error_pending();
    try {
      return body();
    } catch (const vorlane::Error& failure) {
      Throw(env, Kind_of(failure.Kind()), failure);
    } catch (const std::bad_alloc&) {
      const vorlane::Error failure(vorlane::Error_kind::memory, "Memory ran out.");
      Throw(env, Failure_kind::memory, failure);
    }
    throw Java_error_pending();
  });
}

}  // namespace gns
