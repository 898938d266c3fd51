#include "communities/Level_statistics.h"

namespace gns {

namespace {

/// Of the communities from `first` up to `last`.
Distributions Distributions_of(const Row_array<Node_index>& coms, std::size_t first,
                               std::size_t last, std::uint32_t vertex_count) {
  Row_array<Node_index> some;
  for (std::size_t com = first; com < last; ++com) some.push_back(coms[com]);
  Distributions d;
  Community_statistics(d.size, d.degree, d.overlap, d.membership, some, vertex_count);
  return d;
}

}  // namespace

Level_statistics Statistics_of(const Communities& communities, const Com_graph& com_graph,
                               std::uint32_t vertex_count) {
  const Row_array<Node_index>& coms = communities.coms;
  const std::size_t exact_count = communities.exact_com_count;
  Level_statistics result;
  Distributions& all = result.all;
  Community_statistics(all.size, all.degree, all.overlap, all.membership, coms, com_graph,
                       vertex_count);
  if (coms.size() <= exact_count) return result;
  result.exact = Distributions_of(coms, 0, exact_count, vertex_count);
  result.approximate = Distributions_of(coms, exact_count, coms.size(), vertex_count);
  return result;
}

}  // namespace gns
