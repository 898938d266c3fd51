#include "bindings/java/native/Typed_method.h"

#include "bindings/java/native/Java_class.h"
#include "bindings/java/native/Java_strings.h"

namespace gns {

void Throw(JNIEnv* env, Failure_kind kind, const vorlane::Error& error) {
  Modified_utf8 encoding;
  const Java_class type(env, "zumo/community/VorlaneException");
  const Local_ref<jstring> text(env, Needed(Utf_to_String(env, encoding, error.what())));
  const Local_ref<jstring> source(env, Needed(Utf_to_String(env, encoding, error.Source())));
  const Local_ref<jobject> failure =
      type.New(type.Method("<init>", "(ILjava/lang/String;Ljava/lang/String;JJ)V"),
               static_cast<jint>(kind), text.Get(), source.Get(), static_cast<jlong>(error.Line()),
               static_cast<jlong>(error.Column()));
  env->Throw(static_cast<jthrowable>(failure.Get()));
}

}  // namespace gns
