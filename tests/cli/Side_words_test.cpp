#include "cli/Side_words.h"

#include <gtest/gtest.h>

namespace gns {
namespace {

TEST(SideWords, WarnWhereResultsMayNotFindTheSpaceOrTakeMuch) {
  constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30U;
  constexpr std::uint64_t most = ~std::uint64_t{0};
  Run_parameters all;
  Run_parameters single;
  single.use_single_k = true;
  Run_parameters intensity = single;
  intensity.use_intensity = true;
  const struct {
    Results_bound bound;
    Free_space space;
    const Run_parameters& parameters;
    std::string words;
  } cases[] = {
      {{1, 8, 1, 1000, most}, {9 * 512 + 1000, 512}, all, ""},
      {{1, 8, 1, 1000, 0},
       {9 * 512 + 999, 512},
       all,
       "1 MB, and /out has 1 MB free; -k K writes those of a single k only"},
      {{1, 8, 1, 10 * gigabyte - 9, 0}, {most, 1}, all, ""},
      {{1, 8, 1, 10 * gigabyte - 8, 0},
       {2 * 1024 * gigabyte, 1},
       all,
       "10.1 GB, and /out has 2.0 TB free; -k K writes those of a single k only"},
      {{1, 8, 1, most, 0},
       {5 * gigabyte, 4096},
       single,
       "16777216.0 TB, and /out has 5.0 GB free; a greater k (-k) leaves fewer cliques"},
      {{1, 8, 1, 6 * gigabyte, 0},
       {5 * gigabyte, 4096},
       intensity,
       "6.1 GB, and /out has 5.0 GB free; a higher threshold (-I) leaves fewer k-cliques"}};
  for (const auto& [bound, space, parameters, words] : cases)
    EXPECT_EQ(Of_great_results(bound, space, "/out", parameters),
              words.empty() ? "" : "warning: the results may take up to " + words);
}

}  // namespace
}  // namespace gns
