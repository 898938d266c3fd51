#include "percolation/Index_bits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

namespace gns {
namespace {

/// Sets of all densities, with indices at the ends of words and of blocks, one after the other.
TEST(IndexBits, YieldAscendingWhatWasAdded) {
  std::mt19937 random(7);
  constexpr std::uint32_t bound = 20000;
  Index_bits bits(bound);
  for (int i = 0; i < 500; ++i) {
    std::set<std::uint32_t> expected;
    for (auto left = 1 + random() % 300; left > 0; --left) {
      auto index = static_cast<std::uint32_t>(random() % bound >> random() % 15U);
      if (random() % 4 == 0) index = index / 4096 * 4096 + (random() % 2 == 0 ? 0 : 4095);
      if (index >= bound) index = bound - 1;
      bits.Add(index);
      expected.insert(index);
    }
    std::vector<std::size_t> taken;
    bits.Take(*expected.begin(), *expected.rbegin(),
              [&](std::size_t index) { taken.push_back(index); });
    ASSERT_EQ(taken, std::vector<std::size_t>(expected.begin(), expected.end()));
    std::vector<std::uint32_t> sorted(expected.begin(), expected.end());
    std::ranges::shuffle(sorted, random);
    bits.Sort(sorted);
    ASSERT_TRUE(std::ranges::equal(sorted, expected));
  }
}

}  // namespace
}  // namespace gns
