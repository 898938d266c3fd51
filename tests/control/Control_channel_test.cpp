#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <typeinfo>

#include "control/Clique_find_ext_cont.h"

namespace gns {
namespace {

using external_control::CURRENT_STATE_REPORT;

/// Counts how often its text is made.
class Counting_report : public external_control::Report {
 public:
  [[nodiscard]] std::string Text() const override { return std::to_string(++made_); }

 private:
  mutable std::atomic<int> made_ = 0;
};

/// Puts the channel back to where it stood when the library was loaded.
class ControlChannel : public ::testing::Test {
 protected:
  ~ControlChannel() override {
    Reset_stop_process();
    CURRENT_STATE_REPORT = std::string();
  }
};

TEST_F(ControlChannel, ReportsReplaceEachOther) {
  EXPECT_EQ(Read_state_report(), "");
  CURRENT_STATE_REPORT = std::string("one\ntwo\n");
  EXPECT_EQ(Read_state_report(), "one\ntwo\n");
  CURRENT_STATE_REPORT = std::make_shared<Counting_report>();
  EXPECT_EQ(Read_state_report(), "1");
  EXPECT_EQ(Read_state_report(), "2");
}

TEST_F(ControlChannel, PollEndsTheRunUntilTheStopIsTakenBack) {
  external_control::Check_for_stop_signal();
  external_control::Check_inside_long_stage();
  Stop_process();
  external_control::Check_inside_long_stage();
  EXPECT_THROW(external_control::Check_for_stop_signal(), std::logic_error);
  Stop_at_once();
  for (const auto& poll :
       {external_control::Check_for_stop_signal, external_control::Check_inside_long_stage}) {
    CURRENT_STATE_REPORT = std::string("busy");
    try {
      poll();
      ADD_FAILURE() << "the poll returned";
    } catch (const std::exception& stop) {
      EXPECT_EQ(typeid(stop), typeid(std::logic_error));
      EXPECT_STREQ(stop.what(), "Process stopped by user.\n");
    }
    EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
  }
  EXPECT_EQ(Read_error_message(), "");
  Reset_stop_process();
  external_control::Check_for_stop_signal();
  external_control::Check_inside_long_stage();
}

TEST_F(ControlChannel, EachRunHasItsOwn) {
  external_control::Run_control mine;
  {
    const external_control::Control_in_use in_use(mine);
    Stop_at_once();
    external_control::Check_for_stop_signal();
    external_control::Check_inside_long_stage();
    external_control::Report_state("mine");
    mine.stop = true;
    EXPECT_THROW(external_control::Check_for_stop_signal(), std::logic_error);
    EXPECT_TRUE(mine.state_report == " Process stopped by user.\n");
  }
  EXPECT_EQ(Read_state_report(), "");
  EXPECT_THROW(external_control::Check_for_stop_signal(), std::logic_error);
}

using ThreadsControlChannel = ControlChannel;

TEST_F(ThreadsControlChannel, ReadersGetWholeTexts) {
  const std::string longer(3000, 'a');
  const std::string shorter(30, 'b');
  CURRENT_STATE_REPORT = shorter;
  std::atomic<bool> torn = false;
  std::thread watcher([&] {
    for (int left = 20000; left > 0; --left) {
      const std::string text = Read_state_report();
      if (text != longer && text != shorter && text.find_first_not_of("0123456789") != text.npos)
        torn = true;
    }
    Stop_process();
  });
  EXPECT_THROW(
      for (;;) {
        CURRENT_STATE_REPORT = longer;
        CURRENT_STATE_REPORT = std::make_shared<Counting_report>();
        CURRENT_STATE_REPORT = shorter;
        external_control::Check_for_stop_signal();
      },
      std::logic_error);
  watcher.join();
  EXPECT_FALSE(torn);
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
}

}  // namespace
}  // namespace gns
