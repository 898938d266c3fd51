#pragma once

#include <jni.h>

#include "results/Com_result_tables.h"

namespace gns {

/// Makes a zumo/community/OutParams of the tables by way of arrays; the rest is as of
/// translateResultToJava().
jobject Translate_in_arrays(JNIEnv* env, bool directed, Com_result_tables tables);

}  // namespace gns
