#include "search/Clique_vector.h"

#include <algorithm>

namespace gns {

std::uint32_t Max_clique_size_in_cl_vec(const Clique_vector& cliques) {
  std::size_t largest = 0;
  for (std::size_t i = 0; i < cliques.size(); ++i) largest = std::max(largest, cliques[i].size());
  return static_cast<std::uint32_t>(largest);
}

}  // namespace gns
