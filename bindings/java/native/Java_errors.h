#pragma once

#include <jni.h>

namespace gns {

/// Thrown where a Java error is pending, or the JVM has refused room: the native method is to
/// return to Java at once, and nothing is to be added.
class Java_error_pending {};

/// Call it behind every call into Java: with an error pending hardly anything else may be called.
inline void Check_for_java_error(JNIEnv* env) {
  if (env->ExceptionCheck()) [[unlikely]]
    throw Java_error_pending();
}

/// What a JVM yielded, or Java_error_pending if it yielded nothing.
template <typename Result>
Result Needed(Result result) {
  if (result == nullptr) [[unlikely]]
    throw Java_error_pending();
  return result;
}

/// Makes a Java error of the named class pending. `message` is modified UTF-8, or null for none.
void JNU_ThrowByName(JNIEnv* env, const char* class_name, const char* message);

/// Makes a java/lang/Exception with a text of any bytes pending, unless an error is pending
/// already.
void Throw_exception(JNIEnv* env, const char* text) noexcept;

}  // namespace gns
