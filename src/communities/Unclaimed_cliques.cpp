#include "communities/Unclaimed_cliques.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace gns {

namespace {

constexpr std::uint64_t Signature_bit(std::size_t turn) { return std::uint64_t{1} << (turn % 64); }

}  // namespace

Unclaimed_cliques::Unclaimed_cliques(const Clique_vector& cliques)
    : cliques_(cliques), claimed_(cliques.size() / 64 + 1, 0), seen_(cliques.size(), 0) {
  const std::vector<Node_index>& members = cliques.Values();
  const std::size_t nodes =
      members.empty() ? 1 : std::size_t{*std::ranges::max_element(members)} + 1;
  starts_.assign(nodes + 1, 0);
  for (const Node_index node : members) ++starts_[node + 1];
  std::vector<Node_index> by_frequency(nodes);
  std::iota(by_frequency.begin(), by_frequency.end(), 0U);
  std::sort(by_frequency.begin(), by_frequency.end(),
            [&](Node_index a, Node_index b) { return starts_[a + 1] > starts_[b + 1]; });
  node_bits_.resize(nodes);
  for (std::size_t turn = 0; turn < nodes; ++turn)
    node_bits_[by_frequency[turn]] = Signature_bit(turn);
  std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());

  signatures_.resize(cliques.size());
  for (std::size_t i = 0; i < cliques.size(); ++i)
    for (const Node_index node : cliques[i]) signatures_[i] |= node_bits_[node];
  entries_.resize(members.size());
  lengths_.resize(nodes);
  live_.resize(nodes);
  marked_.assign(nodes, 0);
  Fill_lists();
}

void Unclaimed_cliques::Fill_lists() {
  std::vector<Clique_index> by_size(cliques_.size());
  std::iota(by_size.begin(), by_size.end(), 0U);
  std::stable_sort(by_size.begin(), by_size.end(), [this](Clique_index a, Clique_index b) {
    return cliques_[a].size() > cliques_[b].size();
  });
  std::vector<std::size_t> place(starts_.begin(), starts_.end() - 1);
  for (const Clique_index clique : by_size) {
    const Node_span row = cliques_[clique];
    for (const Node_index node : row)
      entries_[place[node]++] = {signatures_[clique], clique,
                                 static_cast<std::uint32_t>(row.size())};
  }
}

void Unclaimed_cliques::Reset(std::uint32_t k) {
  std::ranges::fill(claimed_, 0);
  for (std::size_t node = 0; node < lengths_.size(); ++node) {
    const auto first = entries_.begin() + static_cast<std::ptrdiff_t>(starts_[node]);
    const auto last = entries_.begin() + static_cast<std::ptrdiff_t>(starts_[node + 1]);
    const auto end = std::partition_point(first, last, [k](const Entry& e) { return e.size >= k; });
    lengths_[node] = live_[node] = static_cast<std::uint32_t>(end - first);
  }
}

void Unclaimed_cliques::Claim(Clique_index clique) {
  claimed_[clique / 64] |= std::uint64_t{1} << (clique % 64);
  for (const Node_index node : cliques_[clique]) --live_[node];
}

void Unclaimed_cliques::Append_neighbours(Clique_index clique, std::uint32_t overlap,
                                          std::vector<Clique_index>& neighbours) {
  const Node_span row = cliques_[clique];
  active_.clear();
  for (const Node_index node : row)
    if (live_[node] != 0) active_.push_back(node);
  if (active_.size() < overlap) return;

  for (const Node_index node : row) marked_[node] = 1;
  const std::size_t lists = active_.size() - overlap + 1;
  std::nth_element(active_.begin(), active_.begin() + static_cast<std::ptrdiff_t>(lists - 1),
                   active_.end(),
                   [this](Node_index a, Node_index b) { return lengths_[a] < lengths_[b]; });
  const std::uint64_t signature = signatures_[clique];
  const std::size_t first_neighbour = neighbours.size();
  for (std::size_t l = 0; l < lists; ++l) {
    Entry* list = entries_.data() + starts_[active_[l]];
    std::uint32_t& length = lengths_[active_[l]];
    for (std::uint32_t i = 0; i < length;) {
      const Entry entry = list[i];
      if (!Is_unclaimed(entry.clique)) {
        std::swap(list[i], list[--length]);
        continue;
      }
      ++i;
      const auto missing = static_cast<std::uint32_t>(std::popcount(entry.signature & ~signature));
      if (entry.size - missing < overlap || missing > entry.size) continue;
      if (seen_[entry.clique] == clique + 1) continue;
      seen_[entry.clique] = clique + 1;
      if (Shares(entry.clique, overlap)) neighbours.push_back(entry.clique);
    }
  }
  std::sort(neighbours.begin() + static_cast<std::ptrdiff_t>(first_neighbour), neighbours.end());
  for (const Node_index node : row) marked_[node] = 0;
}

bool Unclaimed_cliques::Shares(Clique_index clique, std::uint32_t overlap) const {
  const Node_span row = cliques_[clique];
  std::size_t spare = row.size() - overlap;
  for (const Node_index node : row)
    if (marked_[node] == 0 && spare-- == 0) return false;
  return true;
}

}  // namespace gns
