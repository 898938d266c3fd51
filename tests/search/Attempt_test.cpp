#include "search/Attempt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "Random_graphs.h"

namespace gns {
namespace {

/// An attempt whose steps take as long as the test says; reading the clock takes time as well.
class Timed_steps : public ::testing::Test {
 protected:
  static constexpr double reading_ = 4e-7;

  [[nodiscard]] double Overrun() const { return time_ - start_ - limit_.seconds; }

  /// Takes steps, each `seconds(step)` long, until the attempt has run over; yields their number.
  template <typename Seconds>
  std::size_t Run(Attempt& attempt, Seconds seconds) {
    attempt.Start();
    start_ = time_;
    readings_ = 0;
    std::size_t steps = 0;
    do {
      time_ += seconds(steps++);
    } while (!attempt.Runs_over());
    EXPECT_TRUE(attempt.Timed_out());
    return steps;
  }

  double time_ = 3.0;
  double start_ = 0.0;
  int readings_ = 0;
  Time_limit limit_{5e-4, [this] {
                      ++readings_;
                      return time_ += reading_;
                    }};
};

/// Under a long limit the readings cost less than a fiftieth of it, besides.
TEST_F(Timed_steps, OverrunLittle) {
  for (const double limit : {2e-5, 5e-4, 0.01, 0.5}) {
    for (const double seconds : {1e-8, 2e-7, 1e-6, 2e-5}) {
      limit_.seconds = limit;
      Attempt attempt(&limit_);
      for (int again = 0; again < 2; ++again) {
        Run(attempt, [&](std::size_t) { return seconds; });
        EXPECT_LE(Overrun(), std::max(0.05 * limit, 1.2e-5) + seconds) << limit << " " << seconds;
        const double most = limit > 0.1 && seconds < 1e-5 ? 0.02 * limit : limit + 1e-5;
        EXPECT_LT(readings_ * reading_, most) << limit << " " << seconds;
      }
    }
  }
}

/// Steps from 0.2 to 20 microseconds, of which the attempt is told; the long ones come late.
TEST_F(Timed_steps, OverrunLittleWhereTheyGetLonger) {
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    literal::Random random(seed);
    const std::size_t short_steps = random.Below(2400);
    Attempt attempt(&limit_);
    Run(attempt, [&](std::size_t step) {
      if (step < short_steps) return 2e-7;
      const std::uint32_t longer = random.Between(1, 100);
      attempt.Add_work(8 * (longer - 1));
      return 2e-7 * longer;
    });
    EXPECT_LE(Overrun(), 5e-5) << seed;
  }
}

TEST_F(Timed_steps, ReadTheClockAtTheFirstOne) {
  Attempt attempt(&limit_);
  for (int again = 0; again < 3; ++again) {
    EXPECT_EQ(Run(attempt, [&](std::size_t) { return 1e-3; }), 1U);
    EXPECT_GT(Run(attempt, [&](std::size_t) { return 1e-8; }), 10000U);
  }
}

}  // namespace
}  // namespace gns
