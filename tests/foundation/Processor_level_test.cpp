#include "foundation/Processor_level.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gns {
namespace {

TEST(ProcessorLevel, CanBeSetUpToTheBest) {
  const Processor_level best = Best_processor_level();
  EXPECT_EQ(Processor_level_in_use(), best);
  for (const Processor_level level :
       {Processor_level::plain, Processor_level::bit_count, Processor_level::wide}) {
    Set_processor_level(level);
    EXPECT_EQ(Processor_level_in_use(), std::min(level, best));
    int calls = 0;
    Run_at_processor_level([&] { ++calls; });
    EXPECT_EQ(calls, 1);
  }
  Set_processor_level(best);
}

}  // namespace
}  // namespace gns
