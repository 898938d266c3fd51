#include "search/Node_work.h"

namespace gns {

std::uint64_t Node_work::Of(Node_index node) const {
  const std::size_t degree = neighs_[node].size();
  std::uint64_t candidates = 0;
  for (const Node_index other : neighs_[node]) {
    const std::size_t degree_of_other = neighs_[other].size();
    if (degree_of_other > degree || (degree_of_other == degree && other > node)) ++candidates;
  }
  return 1 + candidates * candidates;
}

std::uint64_t Node_work::Of_range(std::size_t first, std::size_t last) const {
  std::uint64_t work = 0;
  for (std::size_t place = first; place < last; ++place) work += Of(order_[place]);
  return work;
}

std::vector<std::size_t> Node_work::Ranges(std::size_t count) const {
  const std::uint64_t all = Of_range(0, order_.size());
  const std::uint64_t share = all / count + 1;
  std::vector<std::size_t> starts = {0};
  std::uint64_t work = 0;
  for (std::size_t place = 0; place < order_.size(); ++place) {
    work += Of(order_[place]);
    if (work < share * starts.size()) continue;
    starts.push_back(place + 1);
  }
  if (starts.back() != order_.size()) starts.push_back(order_.size());
  return starts;
}

}  // namespace gns
