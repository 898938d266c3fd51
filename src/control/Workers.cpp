#include "control/Workers.h"

#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <utility>

#include "control/Run_control.h"
#include "foundation/io/File_faults.h"
#include "foundation/memory/Memory_left.h"

namespace external_control {

namespace {

/// This thread has a role for a while.
class Role_taken {
 public:
  explicit Role_taken(Worker_role role)
      : before_(std::exchange(control_sub::role_of_this_thread, role)) {}
  ~Role_taken() { control_sub::role_of_this_thread = before_; }
  Role_taken(const Role_taken&) = delete;
  Role_taken& operator=(const Role_taken&) = delete;

 private:
  Worker_role before_;
};

/// A thread that is joined at its end. Its stack is small, as no depth grows with the network; the
/// eight megabytes of others would count against the memory limit of a run, and stay counted.
class Thread {
 public:
  /// Throws std::system_error if the system gives none.
  explicit Thread(std::function<void()> work) : work_(std::move(work)) {
    constexpr std::size_t stack_size = std::size_t{1} << 20U;
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, stack_size);
    const int error = ::pthread_create(&thread_, &attributes, Work, this);
    ::pthread_attr_destroy(&attributes);
    if (error != 0) throw std::system_error(error, std::generic_category());
  }
  ~Thread() { ::pthread_join(thread_, nullptr); }
  Thread(const Thread&) = delete;
  Thread& operator=(const Thread&) = delete;

 private:
  static void* Work(void* self) {
    static_cast<Thread*>(self)->work_();
    return nullptr;
  }

  std::function<void()> work_;
  pthread_t thread_ = {};
};

/// Workers that do one thing together.
class Team {
 public:
  explicit Team(const std::function<void(unsigned)>& work) : work_(work) {}

  void Work(unsigned count) {
    {
      std::deque<Thread> fellows;
      try {
        while (fellows.size() + 1 < count)
          fellows.emplace_back([this, worker = static_cast<unsigned>(fellows.size() + 1)] {
            const Control_in_use in_use(control_);
            const gns::File_faults_kept kept(faults_);
            Work_as(Worker_role::fellow, worker);
          });
      } catch (const std::system_error&) {
        // Those that there are do all of the work.
      }
      Work_as(Worker_role::first, 0);
    }
    control_.abandoned = false;
    if (failure_) std::rethrow_exception(failure_);
    if (somebody_left_) End_by_stop();
  }

 private:
  void Work_as(Worker_role role, unsigned worker) {
    const Role_taken taken(role);
    try {
      work_(worker);
    } catch (const Worker_leaves&) {
      somebody_left_ = true;
    } catch (...) {
      const std::lock_guard guard(lock_);
      if (!failure_) failure_ = std::current_exception();
      control_.abandoned = true;
    }
  }

  const std::function<void(unsigned)>& work_;
  Run_control& control_ = This_control();
  gns::File_fault_list& faults_ = gns::File_faults_at_hand();
  std::mutex lock_;
  std::exception_ptr failure_;
  std::atomic<bool> somebody_left_ = false;
};

}  // namespace

void On_workers(unsigned count, const std::function<void(unsigned)>& work) {
  constexpr std::uint64_t memory_of_worker = std::uint64_t{64} << 20U;  // with all that it works on
  count = static_cast<unsigned>(
      std::min<std::uint64_t>(count, 1 + gns::Memory_left() / memory_of_worker));
  if (count <= 1 || control_sub::role_of_this_thread != Worker_role::sole)
    work(0);
  else
    Team(work).Work(count);
}

void On_ranges(std::size_t count, const std::function<void(std::size_t, std::size_t)>& use) {
  constexpr std::size_t ranges_of_worker = 8;
  constexpr std::size_t least_range = 4096;  // for less it is not worth the asking
  const unsigned workers = This_control().workers;
  if (workers == 1 || count <= least_range) return use(0, count);
  const std::size_t step =
      std::max(least_range, count / (std::size_t{workers} * ranges_of_worker) + 1);
  std::atomic<std::size_t> next = 0;
  On_workers(workers, [&](unsigned) {
    for (std::size_t first = 0; (first = next.fetch_add(step)) < count;)
      use(first, std::min(first + step, count));
  });
}

void Do_both(const std::function<void()>& here, const std::function<void()>& beside) {
  constexpr unsigned two = 2;
  std::atomic<bool> taken = false;
  On_workers(std::min(two, This_control().workers), [&](unsigned worker) {
    if (worker == 0) here();
    if (!taken.exchange(true)) beside();
  });
}

}  // namespace external_control
