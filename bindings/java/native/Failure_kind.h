#pragma once

#include <cstdint>

#include "engine/Run_parameters.h"
#include "vorlane/error.h"

namespace gns {

/// Why a native method has failed, in the order of zumo/community/VorlaneException.Kind.
enum class Failure_kind : std::uint8_t { parameters, input, output, memory, stopped, busy, other };

/// Of the last call of this thread that failed with a java/lang/Exception.
Failure_kind& Last_failure_kind();

Failure_kind Kind_of(vorlane::Error_kind kind);

/// Notes why a run or a reload fails: to be called in the handler of what it throws. `run` has the
/// parameters of a run, or is null for a reload.
void Note_failure(const Run_parameters* run);

}  // namespace gns
