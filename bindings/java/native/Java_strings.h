#pragma once

#include <jni.h>

#include <optional>
#include <string>
#include <string_view>

#include "bindings/java/native/Local_ref.h"
#include "bindings/java/native/Modified_utf8.h"

namespace gns {

/// The bytes of a Java string in the JVM's default character set; nothing if they can't be had.
/// Then a Java error is pending, or the JVM has refused room. A string with a zero byte inside is
/// refused, for it can't be the path that the caller means.
std::optional<std::string> String_to_C(JNIEnv* env, jstring java_string);

/// The same, Java_error_pending in place of nothing.
std::string Needed_string(JNIEnv* env, jstring java_string);

/// Makes Java strings of bytes in the JVM's default character set; looks up once what it needs.
class Byte_strings {
 public:
  /// Throws Java_error_pending if the JVM has no room or no such class.
  explicit Byte_strings(JNIEnv* env);

  /// A new local reference, or null if the JVM has no memory for it; the error is then pending.
  [[nodiscard]] jstring C_to_String(std::string_view text) const;

 private:
  JNIEnv* env_;
  Local_ref<jclass> type_;
  jmethodID init_;
};

/// A Java string of a text in UTF-8, for all but broken bytes: those become U+FFFD. `encoding`
/// lends its memory. A new local reference, or null with an error pending.
inline jstring Utf_to_String(JNIEnv* env, Modified_utf8& encoding, std::string_view text) {
  return env->NewStringUTF(encoding.Of(text));
}

}  // namespace gns
