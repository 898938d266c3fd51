#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace gns {

/// A JNI environment without a JVM: writes down what is called, hands out references that it
/// counts, and fails where the test wants it. One object stands for one Java thread.
class Fake_jvm {
 public:
  Fake_jvm();
  JNIEnv* Env() { return &env_; }

  /// A reference to a new string, as a Java caller would pass it.
  jstring String(const std::string& text) { return static_cast<jstring>(Refer({text, {}})); }
  [[nodiscard]] std::string Text(jobject reference) { return At(reference).text; }

  /// Constructors and methods called, as `Clique1.addVertex("Ada")`. Strings made of bytes in the
  /// default character set stand in single quotes.
  std::vector<std::string> calls;
  /// What the code under test must not do: a call with an error pending, a stale reference.
  std::vector<std::string> faults;
  /// The error that is pending, as `java/lang/Exception: text`; empty if there is none.
  std::string pending;

  bool has_arrays = false;                ///< the class zumo/community/ResultArrays is there
  std::function<void()> in_java = [] {};  ///< done in each method called
  std::size_t failing_call = SIZE_MAX;    ///< the call that fails, counting those that can
  std::size_t references_alive = 0;
  std::size_t most_references_alive = 0;

 private:
  struct Object {
    std::string text;  ///< of a class its name, of an array of bytes the bytes
    std::vector<std::shared_ptr<Object>> elements;
    std::vector<jint> ints = {};
  };
  struct Environment : JNIEnv {
    Fake_jvm* jvm;
  };
  struct Functions;

  static Fake_jvm& Of(JNIEnv* env) { return *static_cast<Environment*>(env)->jvm; }

  jobject Refer(std::shared_ptr<Object> object);
  jobject Refer(Object object) { return Refer(std::make_shared<Object>(std::move(object))); }
  Object& At(jobject reference);

  void Enter();
  /// Enters a function that can fail; true if it fails now. An error is then pending.
  bool Fails();
  jobject Construct(const std::string& class_name, const std::string& init, va_list arguments);
  static std::string Shown(const Object& object, const std::string& type);
  std::string Arguments(const std::string& method, va_list arguments);

  Environment env_;
  std::map<jobject, std::shared_ptr<Object>> references_;
  std::size_t references_made_ = 0;
  std::size_t calls_that_can_fail_ = 0;
  std::deque<std::string> methods_;          ///< names with descriptors
  std::map<std::string, int> objects_made_;  ///< by class
};

}  // namespace gns
