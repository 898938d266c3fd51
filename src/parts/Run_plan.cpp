#include "parts/Run_plan.h"

#include <algorithm>
#include <numeric>

namespace gns::parts {

namespace {

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

}  // namespace

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

}  // namespace gns::parts
