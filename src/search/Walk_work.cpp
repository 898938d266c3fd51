#include "search/Walk_work.h"

#include <algorithm>
#include <cmath>

#include "search/Bit_rows.h"

namespace gns {

namespace {

/// By multiplications alone, which have the same result everywhere.
double Power(double base, std::uint64_t exponent) {
  double power = 1.0;
  for (; exponent > 0; exponent /= 2) {
    if (exponent % 2 != 0) power *= base;
    base *= base;
  }
  return power;
}

/// The expected number of maximal cliques of a graph in which each pair is linked by a chance of
/// `density`: of k nodes there are n choose k sets, linked by density^(k choose 2), and none of the
/// others is linked to all k by (1 - density^k)^(n - k).
double Expected_cliques(std::uint64_t nodes, double density) {
  constexpr double enough = 1e12;  // nobody finds more
  constexpr double most = 1e300;
  double sum = 0.0;
  double linked_sets = 1.0;
  double linked_to_all = 1.0;  // density^(k - 1)
  for (std::uint64_t k = 1; k <= nodes && sum < enough; ++k) {
    const auto left = static_cast<double>(nodes - k + 1);
    linked_sets = std::min(most, linked_sets * left / static_cast<double>(k) * linked_to_all);
    linked_to_all *= density;
    if (linked_sets < 1e-3) break;  // and still less for greater k
    sum += linked_sets * Power(1.0 - linked_to_all, nodes - k);
  }
  return std::min(sum, enough);
}

}  // namespace

/// The factors were fitted to what nodes of seven networks cost, so that ranges of equal estimates
/// cost about the same.
std::uint64_t Walk_work(std::uint64_t candidates, std::uint64_t links) {
  constexpr std::uint64_t of_candidate = 40;
  constexpr double of_step = 32.0;
  if (candidates < candidates_with_links) return of_candidate * candidates;
  const std::uint64_t pairs = candidates * (candidates - 1) / 2;
  const double usual = 2.0 * static_cast<double>(links);
  const double cliques =
      Expected_cliques(candidates, static_cast<double>(links) / static_cast<double>(pairs));
  const double steps = cliques > usual ? std::sqrt(cliques * usual) : cliques;
  const std::uint64_t words = candidates / word_bits + 1;
  return static_cast<std::uint64_t>(of_step * steps * static_cast<double>(words));
}

}  // namespace gns
