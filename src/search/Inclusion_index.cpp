#include "search/Inclusion_index.h"

namespace gns {

Inclusion_index::Inclusion_index(const Sets& sets) : sets_(sets), holders_(Holders_of_nodes(sets)) {
  std::vector<std::uint64_t> bits_of_set(sets.size());
  for (std::size_t set = 0; set < sets.size(); ++set) bits_of_set[set] = Fold(sets[set]);
  bits_.reserve(holders_.size());
  for (const std::uint32_t set : holders_.Members()) bits_.push_back(bits_of_set[set]);
}

std::uint64_t Inclusion_index::Fold(Node_span members) {
  constexpr std::uint32_t spread = 0x9E3779B1U;
  constexpr unsigned top_six_bits = 26;
  std::uint64_t bits = 0;
  for (const Node_index node : members) bits |= std::uint64_t{1} << (node * spread >> top_six_bits);
  return bits;
}

Node_index Inclusion_index::Rarest_of(Node_span members) const {
  Node_index rarest = 0;
  for (const Node_index node : members) {
    if (node > holders_.Node_count()) return 0;
    if (rarest == 0 || holders_[node].size() < holders_[rarest].size()) rarest = node;
  }
  return rarest;
}

}  // namespace gns
