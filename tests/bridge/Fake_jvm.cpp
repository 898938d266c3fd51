#include "Fake_jvm.h"

#include <algorithm>
#include <cstdarg>
#include <utility>

namespace gns {

/// The part of the JNI that the bridge uses; the rest is null.
struct Fake_jvm::Functions : JNINativeInterface_ {
  Functions() : JNINativeInterface_() {
    EnsureLocalCapacity = [](JNIEnv* env, jint /*room*/) -> jint {
      Of(env).refused_room = Of(env).Fails("EnsureLocalCapacity", "");
      return Of(env).refused_room ? JNI_ERR : JNI_OK;
    };
    FindClass = [](JNIEnv* env, const char* name) -> jclass {
      if (Of(env).Fails(name, "java/lang/NoClassDefFoundError")) return nullptr;
      return Of(env).Refer<jclass>({"Class", name, {}});
    };
    GetMethodID = [](JNIEnv* env, jclass type, const char* name, const char* descriptor) {
      Fake_jvm& jvm = Of(env);
      if (jvm.Fails(name, "java/lang/NoSuchMethodError")) return jmethodID{nullptr};
      jvm.methods_.push_back(std::make_unique<Method>(Method{jvm.At(type).text, name, descriptor}));
      return reinterpret_cast<jmethodID>(jvm.methods_.back().get());
    };
    NewObjectV = [](JNIEnv* env, jclass type, jmethodID init, va_list arguments) -> jobject {
      Fake_jvm& jvm = Of(env);
      if (jvm.Fails("NewObject", "a constructor's error")) return nullptr;
      return jvm.Construct(jvm.At(type), *reinterpret_cast<Method*>(init), arguments);
    };
    CallVoidMethodV = [](JNIEnv* env, jobject object, jmethodID id, va_list arguments) {
      Fake_jvm& jvm = Of(env);
      const Method& method = *reinterpret_cast<Method*>(id);
      if (jvm.Fails("CallVoidMethod", "a method's error")) return;
      jvm.in_java();
      jvm.calls.push_back(jvm.At(object).text + "." + method.name +
                          jvm.Arguments(method.descriptor, arguments));
    };
    CallObjectMethodV = [](JNIEnv* env, jobject object, jmethodID, va_list) -> jobject {
      Fake_jvm& jvm = Of(env);  // getBytes is the only one
      if (jvm.Fails("CallObjectMethod", "a method's error")) return nullptr;
      return jvm.Refer<jobject>({"byte[]", jvm.At(object).text, {}});
    };
    NewStringUTF = [](JNIEnv* env, const char* text) -> jstring {
      if (Of(env).Fails("NewStringUTF", "java/lang/OutOfMemoryError")) return nullptr;
      return Of(env).Refer<jstring>({"String", '"' + std::string(text) + '"', {}});
    };
    NewByteArray = [](JNIEnv* env, jsize size) -> jbyteArray {
      if (Of(env).Fails("NewByteArray", "java/lang/OutOfMemoryError")) return nullptr;
      return static_cast<jbyteArray>(
          Of(env).Refer<jarray>({"byte[]", std::string(static_cast<std::size_t>(size), '\0'), {}}));
    };
    GetArrayLength = [](JNIEnv* env, jarray array) {
      Of(env).Enter("GetArrayLength");
      return static_cast<jsize>(Of(env).At(array).text.size());
    };
    GetByteArrayRegion = [](JNIEnv* env, jbyteArray array, jsize at, jsize size, jbyte* bytes) {
      Of(env).Enter("GetByteArrayRegion");
      std::copy_n(Of(env).At(array).text.begin() + at, size, bytes);
    };
    SetByteArrayRegion = [](JNIEnv* env, jbyteArray array, jsize at, jsize size,
                            const jbyte* bytes) {
      Of(env).Enter("SetByteArrayRegion");
      std::copy_n(bytes, size, Of(env).At(array).text.begin() + at);
    };
    NewObjectArray = [](JNIEnv* env, jsize size, jclass, jobject) -> jobjectArray {
      if (Of(env).Fails("NewObjectArray", "java/lang/OutOfMemoryError")) return nullptr;
      Object array{"Object[]", "", {}};
      array.elements.resize(static_cast<std::size_t>(size));
      return static_cast<jobjectArray>(Of(env).Refer<jarray>(std::move(array)));
    };
    GetObjectArrayElement = [](JNIEnv* env, jobjectArray array, jsize at) {
      Of(env).Enter("GetObjectArrayElement");
      return Of(env).Refer(Of(env).At(array).elements.at(static_cast<std::size_t>(at)));
    };
    SetObjectArrayElement = [](JNIEnv* env, jobjectArray array, jsize at, jobject element) {
      Fake_jvm& jvm = Of(env);
      jvm.Enter("SetObjectArrayElement");
      const std::shared_ptr<Object> object = jvm.references_.at(element);
      jvm.At(array).elements.at(static_cast<std::size_t>(at)) = object;
    };
    DeleteLocalRef = [](JNIEnv* env, jobject reference) {
      Of(env).At(reference);
      Of(env).references_.erase(reference);
      --Of(env).references_alive;
    };
    ThrowNew = [](JNIEnv* env, jclass type, const char* message) -> jint {
      Of(env).Enter("ThrowNew");
      Of(env).pending = Of(env).At(type).text + ": " + (message != nullptr ? message : "null");
      return JNI_OK;
    };
    Throw = [](JNIEnv* env, jthrowable error) -> jint {
      Of(env).Enter("Throw");
      Of(env).pending = Of(env).At(error).text;
      return JNI_OK;
    };
    ExceptionCheck = [](JNIEnv* env) -> jboolean { return !Of(env).pending.empty(); };
    ExceptionOccurred = [](JNIEnv* env) -> jthrowable {
      if (Of(env).pending.empty()) return nullptr;
      return static_cast<jthrowable>(Of(env).Refer<jobject>({"Throwable", Of(env).pending, {}}));
    };
    ExceptionDescribe = [](JNIEnv* env) {
      Of(env).described.push_back(std::exchange(Of(env).pending, ""));
    };
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
  static Object nothing{"null", "null", {}};
  const auto entry = references_.find(reference);
  if (entry != references_.end()) return *entry->second;
  faults.emplace_back("stale or null reference");
  return nothing;
}

void Fake_jvm::Enter(const std::string& function) {
  if (!pending.empty()) faults.push_back(function + " with an error pending");
}

bool Fake_jvm::Fails(const std::string& function, const std::string& error) {
  Enter(function);
  const bool fails = calls_that_can_fail++ == failing_call || function == missing;
  if (fails) pending = error;
  return fails;
}

std::string Fake_jvm::Arguments(const std::string& descriptor, va_list arguments) {
  std::string text = "(";
  for (std::size_t at = 1; descriptor[at] != ')'; ++at) {
    if (at > 1) text += ", ";
    if (descriptor[at] == 'I') {
      text += std::to_string(va_arg(arguments, jint));
    } else if (descriptor[at] == 'Z') {
      text += va_arg(arguments, int) == 0 ? "false" : "true";
    } else {
      text += At(va_arg(arguments, jobject)).text;
      if (descriptor[at] == 'L') at = descriptor.find(';', at);
      if (descriptor[at] == '[') ++at;
    }
  }
  return text + ")";
}

jobject Fake_jvm::Construct(const Object& type, const Method& init, va_list arguments) {
  const std::string name = type.text.substr(type.text.rfind('/') + 1);
  std::string given = Arguments(init.descriptor, arguments);
  if (name == "String") {
    given.front() = given.back() = '\'';
    return Refer<jobject>({name, given, {}});
  }
  const std::string object = name + std::to_string(++objects_made_[name]);
  calls.push_back(object + " = new" + given);
  return Refer<jobject>({name, object, {}});
}

}  // namespace gns
