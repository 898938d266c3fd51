#include "Fake_jvm.h"

#include <algorithm>
#include <cstdarg>
#include <string_view>
#include <utility>

namespace gns {

/// The part of the JNI that the bridge uses; the rest is null.
struct Fake_jvm::Functions : JNINativeInterface_ {
  Functions() : JNINativeInterface_() {
    EnsureLocalCapacity = [](JNIEnv* env, jint) { return Of(env).Fails() ? JNI_ERR : JNI_OK; };
    FindClass = [](JNIEnv* env, const char* name) {
      if (Of(env).has_arrays || std::string_view(name) != "zumo/community/ResultArrays")
        return New<jclass>(env, {name, {}});
      if (!Of(env).Fails()) Of(env).pending = "java/lang/LinkageError";
      return jclass();
    };
    GetMethodID = [](JNIEnv* env, jclass, const char* name, const char* descriptor) {
      if (Of(env).Fails()) return jmethodID{};
      return reinterpret_cast<jmethodID>(
          &Of(env).methods_.emplace_back(std::string(name) + descriptor));
    };
    NewObjectV = [](JNIEnv* env, jclass type, jmethodID init, va_list arguments) {
      if (Of(env).Fails()) return jobject{};
      return Of(env).Construct(Of(env).At(type).text, Method(init), arguments);
    };
    CallVoidMethodV = [](JNIEnv* env, jobject object, jmethodID id, va_list arguments) {
      if (Of(env).Fails()) return;
      Of(env).in_java();
      const std::string& method = Method(id);
      Of(env).calls.push_back(Of(env).At(object).text + "." + method.substr(0, method.find('(')) +
                              Of(env).Arguments(method, arguments));
    };
    CallObjectMethodV = [](JNIEnv* env, jobject object, jmethodID id, va_list) {
      const bool is_result = Method(id).starts_with("results");  // else it is getBytes
      return New<jobject>(env, {is_result ? "OutParams1" : Of(env).At(object).text, {}});
    };
    NewStringUTF = [](JNIEnv* env, const char* text) {
      return New<jstring>(env, {'"' + std::string(text) + '"', {}});
    };
    NewByteArray = [](JNIEnv* env, jsize size) {
      return New<jbyteArray>(env, {std::string(static_cast<std::size_t>(size), '\0'), {}});
    };
    GetArrayLength = [](JNIEnv* env, jarray array) {
      Of(env).Enter();
      const Object& object = Of(env).At(array);
      return static_cast<jsize>(object.text.size() + object.ints.size());
    };
    GetByteArrayRegion = [](JNIEnv* env, jbyteArray array, jsize at, jsize size, jbyte* bytes) {
      Of(env).Enter();
      std::copy_n(Of(env).At(array).text.begin() + at, size, bytes);
    };
    SetByteArrayRegion = [](JNIEnv* env, jbyteArray to, jsize at, jsize size, const jbyte* bytes) {
      Of(env).Enter();
      std::copy_n(bytes, size, Of(env).At(to).text.begin() + at);
    };
    NewIntArray = [](JNIEnv* env, jsize size) {
      return New<jintArray>(env, {"", {}, std::vector<jint>(static_cast<std::size_t>(size))});
    };
    SetIntArrayRegion = [](JNIEnv* env, jintArray to, jsize at, jsize size, const jint* values) {
      Of(env).Enter();
      std::copy_n(values, size, Of(env).At(to).ints.begin() + at);
    };
    NewObjectArray = [](JNIEnv* env, jsize size, jclass, jobject) {
      return New<jobjectArray>(env, {"", decltype(Object::elements)(std::size_t(size))});
    };
    GetObjectArrayElement = [](JNIEnv* env, jobjectArray array, jsize at) {
      Of(env).Enter();
      return Of(env).Refer(Of(env).At(array).elements.at(std::size_t(at)));
    };
    SetObjectArrayElement = [](JNIEnv* env, jobjectArray array, jsize at, jobject element) {
      Of(env).Enter();
      Of(env).At(array).elements.at(std::size_t(at)) = Of(env).references_.at(element);
    };
    DeleteLocalRef = [](JNIEnv* env, jobject reference) {
      Of(env).At(reference);
      Of(env).references_.erase(reference);
      --Of(env).references_alive;
    };
    ThrowNew = [](JNIEnv* env, jclass type, const char* message) {
      Of(env).Enter();
      Of(env).pending = Of(env).At(type).text + ": " + (message != nullptr ? message : "null");
      return JNI_OK;
    };
    Throw = [](JNIEnv* env, jthrowable error) {
      Of(env).Enter();
      Of(env).pending = Of(env).At(error).text;
      return JNI_OK;
    };
    ExceptionCheck = [](JNIEnv* env) -> jboolean { return !Of(env).pending.empty(); };
    ExceptionOccurred = [](JNIEnv* env) {
      const std::string& error = Of(env).pending;
      return static_cast<jthrowable>(error.empty() ? nullptr : Of(env).Refer({error, {}}));
    };
    ExceptionDescribe = [](JNIEnv* env) { Of(env).pending.clear(); };
    ExceptionClear = ExceptionDescribe;
    IsInstanceOf = [](JNIEnv* env, jobject object, jclass type) -> jboolean {
      Of(env).Enter();
      return Of(env).At(object).text == Of(env).At(type).text;
    };
  }

  static const std::string& Method(jmethodID id) { return *reinterpret_cast<std::string*>(id); }

  template <typename Reference>
  static Reference New(JNIEnv* env, Object object) {
    return static_cast<Reference>(Of(env).Fails() ? nullptr : Of(env).Refer(std::move(object)));
  }
};

Fake_jvm::Fake_jvm() {
  static const Functions functions;
  env_.functions = &functions;
  env_.jvm = this;
}

jobject Fake_jvm::Refer(std::shared_ptr<Object> object) {
  constexpr std::size_t step = 16;  // no reference is used again
  const auto reference = reinterpret_cast<jobject>(step * ++references_made_);
  references_[reference] = std::move(object);
  most_references_alive = std::max(most_references_alive, ++references_alive);
  return reference;
}

Fake_jvm::Object& Fake_jvm::At(jobject reference) {
  static Object nothing{"null", {}};
  const auto entry = references_.find(reference);
  if (entry != references_.end()) return *entry->second;
  faults.emplace_back("stale or null reference");
  return nothing;
}

void Fake_jvm::Enter() {
  if (!pending.empty()) faults.emplace_back("a call with an error pending");
}

bool Fake_jvm::Fails() {
  Enter();
  const bool fails = calls_that_can_fail_++ == failing_call;
  if (fails) pending = "a Java error";
  return fails;
}

/// Arrays but those of bytes in brackets, with blanks between their elements.
std::string Fake_jvm::Shown(const Object& object, const std::string& type) {
  if (type[0] != '[' || type[1] == 'B') return object.text;
  std::string text = "[";
  for (const jint value : object.ints) text.append(" ").append(std::to_string(value));
  for (const auto& element : object.elements) text.append(" ").append(element->text);
  return text.append(" ]");
}

std::string Fake_jvm::Arguments(const std::string& method, va_list arguments) {
  std::string text;
  for (std::size_t at = method.find('(') + 1; method[at] != ')'; ++at) {
    text += text.empty() ? "" : ", ";
    if (method[at] == 'I') {
      text += std::to_string(va_arg(arguments, jint));
    } else if (method[at] == 'Z') {
      text += va_arg(arguments, int) == 0 ? "false" : "true";
    } else {
      text += Shown(At(va_arg(arguments, jobject)), method.substr(at, 2));
      at = method[at] == 'L' || method[at + 1] == 'L' ? method.find(';', at) : at + 1;
    }
  }
  return "(" + text + ")";
}

jobject Fake_jvm::Construct(const std::string& class_name, const std::string& init,
                            va_list arguments) {
  const std::string name = class_name.substr(class_name.rfind('/') + 1);
  std::string given = Arguments(init, arguments);
  if (name == "String") {
    given.front() = given.back() = '\'';
    return Refer({given, {}});
  }
  const std::string object = name + std::to_string(++objects_made_[name]);
  calls.push_back(object + " = new" + given);
  return Refer({object, {}});
}

}  // namespace gns
