#include "parts/Level_groups.h"

#include <algorithm>
#include <numeric>

namespace gns::parts {

namespace {

/// The work at k: as many units as there are cliques of k nodes or more, and some for its files.
std::uint64_t Work_at(std::uint64_t k, const std::vector<std::size_t>& sizes) {
  constexpr std::uint64_t of_files = 4000;
  std::uint64_t work = of_files;
  for (std::uint64_t size = k; size < sizes.size(); ++size) work += sizes[size];
  return work;
}

/// Where groups begin if each takes what it can without exceeding `most`, and the end.
std::vector<std::uint64_t> Filled_groups(const std::vector<std::uint64_t>& works,
                                         std::uint64_t most) {
  std::vector<std::uint64_t> starts = {0};
  std::uint64_t sum = works.empty() ? 0 : works.front();
  for (std::uint64_t place = 0; place < works.size(); ++place) {
    if (sum + works[place] > most) {
      starts.push_back(place);
      sum = works[place];
    }
    sum += works[place];
  }
  starts.push_back(works.size());
  return starts;
}

/// Cuts works that stand behind each other into so many groups whose dearest is as cheap as can be:
/// the places where the groups begin, and the end. The first work of a group counts twice, for what
/// it takes to begin. The last groups may be empty.
std::vector<std::uint64_t> Even_groups(const std::vector<std::uint64_t>& works,
                                       std::uint64_t groups) {
  const std::uint64_t dearest = works.empty() ? 0 : *std::ranges::max_element(works);
  std::uint64_t least = 2 * dearest;
  std::uint64_t enough = std::accumulate(works.begin(), works.end(), dearest);
  while (least < enough) {
    const std::uint64_t middle = least + (enough - least) / 2;
    if (Filled_groups(works, middle).size() - 1 <= groups)
      enough = middle;
    else
      least = middle + 1;
  }
  std::vector<std::uint64_t> starts = Filled_groups(works, least);
  starts.resize(groups + 1, works.size());
  return starts;
}

}  // namespace

/// The first group has the smallest k: nearly always the dearest, which had better begin early.
std::vector<Level_group> Groups_of_levels(const Run_plan& plan,
                                          const std::vector<std::size_t>& of_size) {
  constexpr std::uint64_t least_k = 3;
  const bool single = plan.parameters.use_single_k;
  const std::uint64_t first_k = single ? plan.parameters.single_k : least_k;
  const std::uint64_t end_k = single ? first_k + 1 : of_size.size();
  std::vector<std::uint64_t> works;
  for (std::uint64_t k = first_k; k < end_k; ++k) works.push_back(Work_at(k, of_size));
  const std::vector<std::uint64_t> places = Even_groups(works, plan.Parts());
  std::vector<Level_group> found(plan.Parts());
  for (std::size_t group = 0; group < found.size(); ++group) {
    if (places[group] == places[group + 1]) continue;
    found[group] = {first_k + places[group + 1] - 1, first_k + places[group], works[places[group]]};
    for (std::uint64_t place = places[group]; place < places[group + 1]; ++place)
      found[group].estimate += works[place];
  }
  return found;
}

}  // namespace gns::parts
