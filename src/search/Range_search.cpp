#include "search/Range_search.h"

namespace gns {

void Range_search::Find(std::size_t first, std::size_t last, Clique_vector& cliques) {
  while (finished_ < first) search_.Finish(order_[finished_++]);
  Attempt without_limit;
  while (finished_ < last) {
    Attempt::Check_for_stop();
    const Node_index node = order_[finished_++];
    search_.Find(node, without_limit, cliques);
    search_.Finish(node);
  }
}

}  // namespace gns
