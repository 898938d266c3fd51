#pragma once

#include <functional>

namespace external_control {

/// Calls work(worker) on so many threads at a time and returns when all have ended. Worker 0 is the
/// calling thread, which reports and is the only one that may call back to a caller of the run. All
/// work for its control, and note file faults in its list.
///
/// What one of them throws ends the others at their next poll, and is thrown here; a stop ends all,
/// and then the run. Where the system gives no more threads there are fewer workers. With one,
/// and in a worker of others, no thread is started.
void On_workers(unsigned count, const std::function<void(unsigned worker)>& work);

}  // namespace external_control
