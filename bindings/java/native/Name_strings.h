#pragma once

#include <jni.h>

#include <cstdint>
#include <functional>
#include <string_view>

#include "bindings/java/native/Local_ref.h"
#include "graph/Name_numbers.h"

namespace gns {

/// The Java strings of node names, each made once: names come back at every clique and community,
/// and a look-up costs less than a new string. The strings are kept in a Java array, so that they
/// take one local reference however many they are.
class Name_strings {
 public:
  /// What makes a string: a new local reference, or null with a Java error pending.
  using Make = std::function<jstring(std::string_view)>;

  /// Throws Java_error_pending, as Of() does, if the JVM has no memory.
  Name_strings(JNIEnv* env, Make make);

  Local_ref<jstring> Of(std::string_view name);
  /// The number of a name, which gets a string if it is new.
  std::uint32_t Number_of(std::string_view name);
  /// The strings of all names, by number.
  [[nodiscard]] Local_ref<jobjectArray> All() const { return Copied(used_); }

 private:
  Local_ref<jstring> Add(std::uint32_t number, std::string_view name);
  [[nodiscard]] Local_ref<jobject> At(std::uint32_t number) const;
  [[nodiscard]] Local_ref<jobjectArray> New_array(std::uint32_t capacity) const;
  /// Those that there are, in a new array.
  [[nodiscard]] Local_ref<jobjectArray> Copied(std::uint32_t capacity) const;

  JNIEnv* env_;
  Make make_;
  Local_ref<jclass> type_;
  Name_numbers numbers_;
  std::uint32_t capacity_ = 1024;
  std::uint32_t used_ = 0;
  Local_ref<jobjectArray> strings_;  ///< by number
};

}  // namespace gns
