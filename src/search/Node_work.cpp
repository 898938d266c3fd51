#include "search/Node_work.h"

#include <algorithm>

namespace gns {

std::uint64_t Node_work::Of_range(std::size_t first, std::size_t last) const {
  std::uint64_t work = 0;
  for (std::size_t place = first; place < last; ++place) work += Of(order_[place]);
  return work;
}

std::uint64_t Node_work::Of(const Search_range& range) const {
  return range.slice.Share_of(Of_range(range.first, range.last));
}

std::vector<Search_range> Node_work::Ranges(std::size_t count) const {
  std::vector<std::uint64_t> works(order_.size());
  std::ranges::transform(order_, works.begin(), [&](Node_index node) { return Of(node); });
  return Ranges_of(works, count);
}

}  // namespace gns
