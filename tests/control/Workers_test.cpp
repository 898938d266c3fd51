#include "control/Workers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <new>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>

#include "Thrown_message.h"
#include "control/Run_control.h"
#include "foundation/io/File_faults.h"

namespace external_control {
namespace {

std::atomic<int> inside = 0;       ///< workers that are at work
std::atomic<int> left_among = -1;  ///< how many of these there were as the run was left

/// A run with a control and file faults of its own.
class ThreadsWorkers : public ::testing::Test {
 protected:
  ThreadsWorkers() {
    inside = 0;
    left_among = -1;
    run_.before_unwinding = [] { left_among = inside.load(); };
  }

  /// Has four workers poll until something ends them, once all are there and worker 0 did `act`.
  void Poll_all(const std::function<void()>& act, unsigned acting = 0) {
    On_workers(workers, [&](unsigned worker) {
      struct Inside {
        Inside() { ++inside; }
        ~Inside() { --inside; }
      } const counted;
      while (worker == acting && inside < static_cast<int>(workers)) std::this_thread::yield();
      if (worker == acting) act();
      for (;;) Check_inside_long_stage();
    });
  }

  static constexpr unsigned workers = 4;
  Run_control run_;
  Control_in_use in_use_{run_};
  gns::File_fault_list faults_;
  gns::File_faults_kept kept_{faults_};
};

TEST_F(ThreadsWorkers, ShareARunButNotItsReports) {
  std::atomic<unsigned> numbers = 0;
  std::atomic<bool> first_is_caller = false;
  On_workers(workers, [&, caller = std::this_thread::get_id()](unsigned worker) {
    numbers += 1U << worker;
    if (worker == 0) first_is_caller = std::this_thread::get_id() == caller;
    EXPECT_EQ(&This_control(), &run_);
    Report_state("worker " + std::to_string(worker));
    gns::Note_file_fault("file " + std::to_string(worker), "open", 1);
    On_workers(2, [&](unsigned fellow) { EXPECT_EQ(fellow, 0U); });
  });
  EXPECT_EQ(numbers, 0b1111U);
  EXPECT_TRUE(first_is_caller);
  EXPECT_EQ(run_.state_report.Text(), "worker 0");
  EXPECT_EQ(faults_.All().size(), workers);
  Report_state("alone again");
  EXPECT_EQ(run_.state_report.Text(), "alone again");
}

/// Whoever fails, and if two do: the others don't go on, and the run can.
TEST_F(ThreadsWorkers, AFailureEndsAll) {
  for (const unsigned failing : {0U, 2U}) {
    EXPECT_EQ(gns::Thrown_message<std::exception>(
                  [&] { Poll_all([] { throw std::runtime_error("no more"); }, failing); }),
              "no more");
    Check_for_stop_signal();
    Check_inside_long_stage();
  }
  EXPECT_THROW(On_workers(workers, [](unsigned) { throw std::bad_alloc(); }), std::bad_alloc);
  EXPECT_EQ(left_among, -1);
}

/// The run is left where it was begun, when all workers have ended.
TEST_F(ThreadsWorkers, AStopEndsAllAndThenTheRun) {
  const auto stop = [this] { run_.stop = run_.stop_at_once = true; };
  EXPECT_EQ(gns::Thrown_message<std::exception>([&] { Poll_all(stop); }),
            "Process stopped by user.\n");
  EXPECT_EQ(left_among, 0);
  EXPECT_EQ(run_.state_report.Text(), " Process stopped by user.\n");
}

TEST_F(ThreadsWorkers, OneStartsNoThread) {
  const auto caller = std::this_thread::get_id();
  On_workers(1, [&](unsigned) { EXPECT_EQ(std::this_thread::get_id(), caller); });
}

/// With one worker one behind the other; with two, each may wait for the other to begin.
TEST_F(ThreadsWorkers, DoBothOnce) {
  for (const unsigned count : {1U, 2U}) {
    run_.workers = count;
    const auto caller = std::this_thread::get_id();
    std::atomic<int> begun = 0;
    const auto begin = [&] {
      ++begun;
      while (count == 2 && begun < 2) std::this_thread::yield();
    };
    Do_both(
        [&] {
          EXPECT_TRUE(count == 2 || begun == 0);
          begin();
          EXPECT_EQ(std::this_thread::get_id(), caller);
        },
        [&] {
          begin();
          EXPECT_EQ(std::this_thread::get_id() == caller, count == 1);
        });
    EXPECT_EQ(begun, 2);
    EXPECT_THROW(Do_both([] { throw std::bad_alloc(); }, [] {}), std::bad_alloc);
    EXPECT_THROW(Do_both([] {}, [] { throw std::bad_alloc(); }), std::bad_alloc);
  }
}

}  // namespace
}  // namespace external_control
