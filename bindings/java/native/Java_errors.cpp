#include "bindings/java/native/Java_errors.h"

#include <exception>

#include "bindings/java/native/Local_ref.h"
#include "bindings/java/native/Modified_utf8.h"

namespace gns {

void JNU_ThrowByName(JNIEnv* env, const char* class_name, const char* message) {
  const Local_ref<jclass> type(env, env->FindClass(class_name));
  if (type) env->ThrowNew(type.Get(), message);
}

void Throw_exception(JNIEnv* env, const char* text) noexcept {
  if (env->ExceptionCheck()) return;
  try {
    Modified_utf8 encoded;
    JNU_ThrowByName(env, "java/lang/Exception", encoded.Of(text));
  } catch (const std::exception& no_memory) {
    JNU_ThrowByName(env, "java/lang/Exception", no_memory.what());
  }
}

}  // namespace gns
