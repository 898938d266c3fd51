#include "search/Inclusion_index.h"

#include <algorithm>
#include <numeric>

namespace gns {

Inclusion_index::Inclusion_index(const Sets& sets) : sets_(sets) {
  const Node_span members = sets.Values();
  const Node_index greatest = members.empty() ? 0 : *std::ranges::max_element(members);
  starts_.assign(std::size_t{greatest} + 2, 0);
  for (const Node_index node : members) ++starts_[std::size_t{node} + 1];
  std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
  listed_.resize(members.size());
  bits_.resize(members.size());
  std::vector<std::size_t> place(starts_.begin(), starts_.end() - 1);
  for (std::size_t set = 0; set < sets.size(); ++set) {
    const std::uint64_t bits = Fold(sets[set]);
    for (const Node_index node : sets[set]) {
      const std::size_t at = place[node]++;
      listed_[at] = static_cast<std::uint32_t>(set);
      bits_[at] = bits;
    }
  }
}

std::uint64_t Inclusion_index::Fold(Node_span members) {
  constexpr std::uint32_t spread = 0x9E3779B1U;
  constexpr unsigned top_six_bits = 26;
  std::uint64_t bits = 0;
  for (const Node_index node : members) bits |= std::uint64_t{1} << (node * spread >> top_six_bits);
  return bits;
}

Inclusion_index::List Inclusion_index::List_of(Node_index node) const {
  if (std::size_t{node} + 1 >= starts_.size()) return {0, 0};
  return {starts_[node], starts_[std::size_t{node} + 1]};
}

Inclusion_index::List Inclusion_index::Shortest_list(Node_span members) const {
  List shortest = List_of(members.front());
  for (const Node_index node : members) {
    const List list = List_of(node);
    if (list.last - list.first < shortest.last - shortest.first) shortest = list;
  }
  return shortest;
}

}  // namespace gns
