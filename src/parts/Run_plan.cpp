#include "parts/Run_plan.h"

#include <algorithm>
#include <numeric>

namespace gns::parts {

namespace {

/// Where groups begin if each takes what it can without exceeding `most`, and the end.
std::vector<std::uint64_t> Filled_groups(const std::vector<std::uint64_t>& values,
                                         std::uint64_t most) {
  std::vector<std::uint64_t> starts = {0};
  std::uint64_t sum = 0;
  for (std::uint64_t place = 0; place < values.size(); ++place) {
    if (sum > 0 && values[place] > most - sum) {
      starts.push_back(place);
      sum = 0;
    }
    sum += values[place];
  }
  starts.push_back(values.size());
  return starts;
}

}  // namespace

std::vector<std::uint64_t> Even_groups(const std::vector<std::uint64_t>& values,
                                       std::uint64_t groups) {
  std::uint64_t least = values.empty() ? 0 : *std::ranges::max_element(values);
  std::uint64_t enough = std::accumulate(values.begin(), values.end(), std::uint64_t{0});
  while (least < enough) {
    const std::uint64_t middle = least + (enough - least) / 2;
    if (Filled_groups(values, middle).size() - 1 <= groups)
      enough = middle;
    else
      least = middle + 1;
  }
  std::vector<std::uint64_t> starts = Filled_groups(values, least);
  starts.resize(groups + 1, values.size());
  return starts;
}

}  // namespace gns::parts
