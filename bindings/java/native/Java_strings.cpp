#include "bindings/java/native/Java_strings.h"

#include <exception>
#include <utility>

#include "bindings/java/native/Java_errors.h"

namespace gns {

namespace {

constexpr const char* string_class = "java/lang/String";
constexpr jint room = 2;  ///< a class and an array, or an array and a string

}  // namespace

std::optional<std::string> String_to_C(JNIEnv* env, jstring java_string) {
  if (java_string == nullptr) {
    JNU_ThrowByName(env, "java/lang/NullPointerException", "a path is null");
    return std::nullopt;
  }
  if (env->EnsureLocalCapacity(room) != JNI_OK) return std::nullopt;
  const Local_ref<jclass> type(env, env->FindClass(string_class));
  jmethodID get_bytes = type ? env->GetMethodID(type.Get(), "getBytes", "()[B") : nullptr;
  if (get_bytes == nullptr) return std::nullopt;
  const Local_ref<jbyteArray> bytes(
      env, static_cast<jbyteArray>(env->CallObjectMethod(java_string, get_bytes)));
  if (env->ExceptionCheck()) return std::nullopt;

  const jsize size = env->GetArrayLength(bytes.Get());
  std::string text;
  try {
    text.resize(static_cast<std::size_t>(size));
  } catch (const std::exception&) {
    JNU_ThrowByName(env, "java/lang/OutOfMemoryError", nullptr);
    return std::nullopt;
  }
  env->GetByteArrayRegion(bytes.Get(), 0, size, reinterpret_cast<jbyte*>(text.data()));
  if (text.find('\0') != std::string::npos) {
    JNU_ThrowByName(env, "java/lang/Exception", "ERROR: a path has a zero byte inside.\n");
    return std::nullopt;
  }
  return text;
}

std::string Needed_string(JNIEnv* env, jstring java_string) {
  std::optional<std::string> text = String_to_C(env, java_string);
  if (!text) throw Java_error_pending();
  return std::move(*text);
}

Byte_strings::Byte_strings(JNIEnv* env)
    : env_(env),
      type_(env, env->EnsureLocalCapacity(room) == JNI_OK ? env->FindClass(string_class) : nullptr),
      init_(Needed(env->GetMethodID(Needed(type_.Get()), "<init>", "([B)V"))) {}

jstring Byte_strings::C_to_String(std::string_view text) const {
  const auto size = static_cast<jsize>(text.size());
  const Local_ref<jbyteArray> bytes(env_, env_->NewByteArray(size));
  if (!bytes) {
    const Local_ref<jthrowable> error(env_, env_->ExceptionOccurred());
    env_->ExceptionDescribe();  // takes the error back
    if (error) env_->Throw(error.Get());
    return nullptr;
  }
  env_->SetByteArrayRegion(bytes.Get(), 0, size, reinterpret_cast<const jbyte*>(text.data()));
  return static_cast<jstring>(env_->NewObject(type_.Get(), init_, bytes.Get()));
}

}  // namespace gns
