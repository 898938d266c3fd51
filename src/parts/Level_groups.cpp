#include "parts/Level_groups.h"

#include <algorithm>

namespace gns::parts {

namespace {

/// Where groups begin if each takes what it can without exceeding `most`, from `first_k` on, and
/// the end.
std::vector<std::uint64_t> Filled_groups(const Level_costs& costs, std::uint64_t first_k,
                                         std::uint64_t end_k, std::uint64_t most) {
  std::vector<std::uint64_t> starts = {first_k};
  for (std::uint64_t k = first_k; k < end_k; ++k)
    if (k > starts.back() && costs.Of(k, starts.back()) > most) starts.push_back(k);
  starts.push_back(end_k);
  return starts;
}

/// Cuts levels into so many groups whose dearest is as cheap as can be: where the groups begin, and
/// the end. The last groups may be empty.
std::vector<std::uint64_t> Even_groups(const Level_costs& costs, std::uint64_t first_k,
                                       std::uint64_t end_k, std::uint64_t groups) {
  std::uint64_t least = 0;
  for (std::uint64_t k = first_k; k < end_k; ++k) least = std::max(least, costs.Of(k, k));
  std::uint64_t enough = std::max(least, first_k < end_k ? costs.Of(end_k - 1, first_k) : 0);
  while (least < enough) {
    const std::uint64_t middle = least + (enough - least) / 2;
    if (Filled_groups(costs, first_k, end_k, middle).size() - 1 <= groups)
      enough = middle;
    else
      least = middle + 1;
  }
  std::vector<std::uint64_t> starts = Filled_groups(costs, first_k, end_k, least);
  starts.resize(groups + 1, end_k);
  return starts;
}

}  // namespace

/// The first group has the smallest k: nearly always the dearest, which had better begin early.
std::vector<Level_group> Groups_of_levels(const Run_plan& plan, const Level_counts& counts) {
  constexpr std::uint64_t least_k = 3;
  const bool single = plan.parameters.use_single_k;
  const std::uint64_t first_k = single ? plan.parameters.single_k : least_k;
  const std::uint64_t end_k =
      single ? first_k + 1 : std::max<std::uint64_t>(first_k, counts.cliques_of.size());
  const Level_costs costs(counts);
  const std::vector<std::uint64_t> starts = Even_groups(costs, first_k, end_k, plan.Parts());
  std::vector<Level_group> found(plan.Parts());
  for (std::size_t group = 0; group < found.size(); ++group) {
    if (starts[group] == starts[group + 1]) continue;
    const std::uint64_t largest_k = starts[group + 1] - 1;
    found[group] = {largest_k, starts[group], costs.Of(largest_k, starts[group])};
  }
  return found;
}

}  // namespace gns::parts
