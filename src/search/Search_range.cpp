#include "search/Search_range.h"

#include <numeric>

namespace gns {

namespace {

/// Cuts places with such works into ranges of about a share each. A node that has the work of two
/// shares or more is cut into as many slices.
std::vector<Search_range> Cut_by(std::uint64_t share, const std::vector<std::uint64_t>& works) {
  constexpr std::uint64_t least_slices = 2;  // each of them cuts out its local graph anew
  std::vector<Search_range> ranges;
  std::uint64_t first = 0;
  std::uint64_t work = 0;          // since the last node that was cut
  std::uint64_t next_end = share;  // in this work
  const auto close = [&](std::uint64_t last) {
    if (first < last) ranges.push_back({first, last});
    first = last;
  };
  for (std::uint64_t place = 0; place < works.size(); ++place) {
    const std::uint64_t slices = works[place] / share;
    if (slices >= least_slices) {
      close(place);
      for (std::uint64_t i = 0; i < slices; ++i) ranges.push_back({place, place + 1, {i, slices}});
      first = place + 1;
      work = 0;
      next_end = share;
    } else if ((work += works[place]) >= next_end) {
      close(place + 1);
      next_end += share;
    }
  }
  close(works.size());
  return ranges;
}

}  // namespace

/// Where no node is cut the first share is right. In front of one that is a small range may be
/// left, so there may be too many, and the share must grow.
std::vector<Search_range> Ranges_of(const std::vector<std::uint64_t>& works, std::size_t count) {
  std::uint64_t share = std::accumulate(works.begin(), works.end(), std::uint64_t{0}) / count + 1;
  std::vector<Search_range> ranges = Cut_by(share, works);
  while (ranges.size() > count) {
    share += share / 8 + 1;
    ranges = Cut_by(share, works);
  }
  return ranges;
}

std::uint64_t Work_of(const Search_range& range, const std::vector<std::uint64_t>& works) {
  const auto first = works.begin() + static_cast<std::ptrdiff_t>(range.first);
  const auto last = works.begin() + static_cast<std::ptrdiff_t>(range.last);
  return range.slice.Share_of(std::accumulate(first, last, std::uint64_t{0}));
}

}  // namespace gns
