#pragma once

#include <jni.h>

#include <exception>

#include "bindings/java/native/Java_errors.h"

namespace gns {

/// Calls the body of a native method. No C++ exception crosses into the JVM: it becomes a
/// java/lang/Exception, unless a Java error is pending already, and the method yields nothing.
template <typename Body>
auto Native_method(JNIEnv* env, Body body) noexcept -> decltype(body()) {
  try {
    return body();
  } catch (const Java_error_pending&) {
  } catch (const std::exception& failure) {
    Throw_exception(env, failure.what());
  } catch (...) {
    Throw_exception(env, "ERROR: a failure of unknown kind.\n");
  }
  return decltype(body())();
}

}  // namespace gns
