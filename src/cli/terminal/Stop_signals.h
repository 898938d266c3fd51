#pragma once

namespace gns {

/// Makes SIGINT and SIGTERM end the run through the stop flag, also inside its long stages. The
/// first of them takes the handlers away again, so that a second one ends the process at once. One
/// that the process was started to ignore stays ignored.
///
/// Also ignores SIGPIPE and SIGXFSZ: a closed pipe and a file that grows too big are seen by the
/// write that fails.
void Handle_signals();

/// True if the run was asked to stop by a signal.
bool Stop_signal_came();

}  // namespace gns
