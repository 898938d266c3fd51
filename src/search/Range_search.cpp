#include "search/Range_search.h"

namespace gns {

void Range_search::Finish_up_to(std::size_t place) {
  while (finished_ < place) search_.Finish(order_[finished_++]);
}

void Range_search::Find(const Search_range& range, Clique_vector& cliques) {
  Attempt without_limit;
  for (std::size_t place = range.first; place < range.last; ++place) {
    Finish_up_to(place);
    Attempt::Check_for_stop();
    if (range.slice.Is_whole())
      search_.Find(order_[place], without_limit, cliques);
    else
      search_.Find_slice(order_[place], range.slice, cliques);
  }
}

void Range_search::Join(const Search_range& range, std::span<const Clique_vector* const> slices,
                        Clique_vector& cliques) {
  Finish_up_to(range.first);
  search_.Join(order_[range.first], slices, cliques);
}

}  // namespace gns
