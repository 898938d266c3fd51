#pragma once

#include <jni.h>

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gns {

/// A JNI environment without a JVM: writes down what is called, hands out references that it
/// counts, and fails where the test wants it. One object stands for one Java thread.
class Fake_jvm {
 public:
  struct Object {
    std::string class_name;
    std::string text;  ///< of a class its name, of an array of bytes the bytes
    std::vector<std::shared_ptr<Object>> elements;
  };

  Fake_jvm();
  JNIEnv* Env() { return &env_; }

  /// A reference to a new string, as a Java caller would pass it.
  jstring String(const std::string& text) { return Refer<jstring>({"String", text, {}}); }
  [[nodiscard]] std::string Text(jobject reference) { return At(reference).text; }

  /// Constructors and methods called, as `Clique1.addVertex("Ada")`. Strings made of bytes in the
  /// default character set stand in single quotes.
  std::vector<std::string> calls;
  /// What the code under test must not do: a call with an error pending, a stale reference.
  std::vector<std::string> faults;
  /// The error that is pending, as `java/lang/Exception: text`; empty if there is none.
  std::string pending;
  bool refused_room = false;           ///< EnsureLocalCapacity has failed: then no error is pending
  std::vector<std::string> described;  ///< errors printed by ExceptionDescribe

  std::function<void()> in_java = [] {};  ///< done in each method called
  std::string missing;                    ///< a class or method that isn't there
  std::size_t failing_call = SIZE_MAX;    ///< the call that fails, counting those that can
  std::size_t calls_that_can_fail = 0;

  std::size_t references_alive = 0;
  std::size_t most_references_alive = 0;

 private:
  struct Environment : JNIEnv {
    Fake_jvm* jvm;
  };
  struct Method {
    std::string class_name;
    std::string name;
    std::string descriptor;
  };
  struct Functions;

  static Fake_jvm& Of(JNIEnv* env) { return *static_cast<Environment*>(env)->jvm; }

  template <typename Reference>
  Reference Refer(Object object) {
    return static_cast<Reference>(Refer(std::make_shared<Object>(std::move(object))));
  }
  jobject Refer(std::shared_ptr<Object> object);
  Object& At(jobject reference);

  void Enter(const std::string& function);
  /// Enters a function that can fail; true if it fails now. The error is then pending.
  bool Fails(const std::string& function, const std::string& error);
  std::string Arguments(const std::string& descriptor, va_list arguments);
  jobject Construct(const Object& type, const Method& init, va_list arguments);

  Environment env_;
  std::map<jobject, std::shared_ptr<Object>> references_;
  std::size_t references_made_ = 0;
  std::vector<std::unique_ptr<Method>> methods_;
  std::map<std::string, int> objects_made_;  ///< by class
};

}  // namespace gns
