#include "control/Workers.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "foundation/io/File_faults.h"

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

/// Workers that do one thing together.
class Team {
 public:
  explicit Team(const std::function<void(unsigned)>& work) : work_(work) {}

  void Work(unsigned count) {
    {
      std::vector<std::jthread> fellows;
      fellows.reserve(count - 1);
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

}  // namespace external_control
