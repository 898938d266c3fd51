#include "control/Run_control.h"

#include <stdexcept>

namespace external_control {

constinit Run_control PROCESS_CONTROL;

static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set from signal handlers");

void Progress::Reset() {
  for (std::atomic<std::uint64_t>* const figure :
       {&cliques_found, &nodes_left, &failed_in_a_row, &k_cliques_found, &k_cliques_visited})
    figure->store(0, std::memory_order_relaxed);
}

void End_by_stop() {
  if (control_sub::role_of_this_thread != Worker_role::sole) throw Worker_leaves();
  Report_state(std::string(" Process stopped by user.\n"));
  if (void (*const leave)() = This_control().before_unwinding.load(); leave != nullptr) leave();
  throw std::logic_error("Process stopped by user.\n");
}

}  // namespace external_control
