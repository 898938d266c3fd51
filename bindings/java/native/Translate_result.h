#pragma once

#include <jni.h>

#include "results/Com_result_tables.h"

namespace gns {

/// Makes a zumo/community/OutParams of the tables and yields a new local reference to it. Each
/// table is released when it has been translated. `directed` is what the links of communities are
/// told. Of the distributions only the exact ones are translated, the k-cliques not at all.
///
/// Reports through JAVA_CPP_TRANSLATE_STATE_REPORT. Throws Java_error_pending at the first Java
/// error, which stays pending.
jobject translateResultToJava(JNIEnv* env, bool directed, Com_result_tables tables);

}  // namespace gns
