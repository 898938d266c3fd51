#pragma once

#include <cstddef>
#include <functional>

namespace external_control {

/// Calls work(worker) on so many threads at a time and returns when all have ended. Worker 0 is the
/// calling thread, which reports and is the only one that may call back to a caller of the run. All
/// work for its control, and note file faults in its list.
///
/// What one of them throws ends the others at their next poll, and is thrown here; a stop ends all,
/// and then the run. Where the system gives no more threads, or a limit leaves little memory,
/// there are fewer workers. With one,
/// and in a worker of others, no thread is started.
void On_workers(unsigned count, const std::function<void(unsigned worker)>& work);

/// Has the workers of the run do use(first, last) for ranges that together are 0 up to `count`,
/// each by one of them; all at once where there is one. For what is alike for all that is in them.
void On_ranges(std::size_t count,
               const std::function<void(std::size_t first, std::size_t last)>& use);

/// Does both, at the same time if the run has workers: `here` in the calling thread, and otherwise
/// `beside` behind it.
void Do_both(const std::function<void()>& here, const std::function<void()>& beside);

}  // namespace external_control
