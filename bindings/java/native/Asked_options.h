#pragma once

#include <jni.h>

#include "vorlane/analysis.h"
#include "vorlane/network.h"

namespace gns {

/// What Java asks for, as zumo/community/Options tells it.
struct Asked {
  vorlane::Link_options how;
  vorlane::Options options;
};

/// `numbers`: intensity, lower and upper threshold, time limit, k; NaN for what is not asked for;
/// and the number of cores. `texts`, of a file: its format, what takes the place of blanks, both
/// perhaps empty, and its columns; null without a file. Throws Java_error_pending.
Asked Asked_by(JNIEnv* env, bool directed, bool weighted, bool links, jdoubleArray numbers,
               jobjectArray texts);

}  // namespace gns
