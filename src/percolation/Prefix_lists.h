#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "percolation/Clique_ranks.h"
#include "percolation/Signature.h"

namespace gns {

/// Lists of the unclaimed cliques at their first nodes, for one least overlap t after the other.
///
/// Two cliques of m and n nodes, both in one order of the nodes, that share t have their first
/// common node among the first m - t + 1 nodes of the one and the first n - t + 1 of the other
/// (prefix filter: R. J. Bayardo, Y. Ma, R. Srikant, WWW 2007). So a clique is listed at these
/// nodes only, its reach, and a search for those that share t with it reads the lists of these
/// only. As t falls by one, each clique comes into one list more: lists are filled once for all t,
/// in the order in which t falls, and each t reads them as far as its entries go. Beside each entry
/// stands a signature of the clique's nodes from that one on: at their first common node, two
/// cliques have all others behind it.
///
/// Memory: 12 bytes per clique and node of its reach at the least t.
template <typename Rank>
class Prefix_lists {
 public:
  using Tail = Signature<1, 4>;

  /// `cliques` must outlive the object. With `nested` false, no clique lies inside another.
  Prefix_lists(const Clique_ranks<Rank>& cliques, std::uint32_t node_count, bool nested);

  /// Makes the lists for all t from `least_overlap` (1 or more) on. Without it, Reset() does.
  void Make(std::uint32_t least_overlap);

  /// Lists all cliques for a t of `overlap` (1 or more), none of them claimed. Cheap if t falls:
  /// but for the second one, all lists are filled once.
  void Reset(std::uint32_t overlap);

  /// Number of nodes at which a clique of `size` nodes is listed.
  [[nodiscard]] std::size_t Reach(std::size_t size) const { return Reach(size, overlap_); }

  /// How many unclaimed cliques a list has.
  [[nodiscard]] std::uint32_t Unclaimed(Rank node) const { return unclaimed_[node]; }

  /// Takes a clique from the counts of its lists.
  void Claim(Clique_index clique) {
    const auto row = cliques_[clique];
    for (std::size_t i = 0, reach = Reach(row.size()); i < reach; ++i) --unclaimed_[row[i]];
  }

  /// So many signatures behind those of a list can be read, too, whatever they are.
  static constexpr std::uint32_t readable_behind = 31;

  /// The cliques of a list with their signatures, parallel; a fourth at most are claimed.
  struct Entries {
    const Tail* tails;
    const Clique_index* cliques;
    std::uint32_t count;
  };
  template <typename Is_unclaimed>
  Entries Read(Rank node, Is_unclaimed is_unclaimed) {
    List& list = lists_[node];
    constexpr std::uint32_t most_claimed_share = 4;
    if (list.length - unclaimed_[node] > list.length / most_claimed_share)
      Drop_claimed(list, is_unclaimed);
    return {tails_.data() + list.start, list_cliques_.data() + list.start, list.length};
  }

  /// Adds a node to the signature of nodes behind it.
  void Add_in_front(Rank node, Tail& tail) const { tail.Add(positions_[node]); }

 private:
  using Row = typename Clique_ranks<Rank>::Row;

  static constexpr std::size_t block = 64;  ///< of cliques, passed over together

  struct List {
    std::size_t start = 0;
    std::uint32_t listed = 0;  ///< entries at the present t
    std::uint32_t length = 0;  ///< claimed cliques are moved behind it from time to time
  };

  /// A clique of t nodes shares them all with another only if it lies inside it, or shares its only
  /// node with itself.
  [[nodiscard]] std::size_t Reach(std::size_t size, std::uint32_t overlap) const {
    const std::size_t least_size = nested_ || overlap == 1 ? overlap : overlap + std::size_t{1};
    return size < least_size ? 0 : size - overlap + 1;
  }
  void Note_largest();
  void Lay_out();
  void Fill();
  [[nodiscard]] std::vector<Tail> Tails_beyond_reach() const;
  void Lower_overlap();
  template <typename Use>
  void For_each_of(std::size_t least_size, Use use) const;
  template <typename Is_unclaimed>
  void Drop_claimed(List& list, Is_unclaimed is_unclaimed);

  const Clique_ranks<Rank>& cliques_;
  bool nested_;
  std::uint32_t overlap_ = 0;            ///< 0: nothing listed yet
  std::uint32_t least_overlap_ = 0;      ///< the lists hold this one or more
  std::size_t largest_ = 0;              ///< size of the largest clique
  std::vector<std::size_t> largest_of_;  ///< per block of cliques: size of the largest one
  std::vector<std::uint8_t> positions_;  ///< per node: where it stands in signatures
  std::vector<List> lists_;
  std::vector<std::uint32_t> unclaimed_;
  std::vector<Tail> tails_;  ///< of all lists
  std::vector<Clique_index> list_cliques_;
};

/// Without a branch on what is claimed, for no processor can foretell it.
template <typename Rank>
template <typename Is_unclaimed>
void Prefix_lists<Rank>::Drop_claimed(List& list, Is_unclaimed is_unclaimed) {
  Tail* const tails = tails_.data() + list.start;
  Clique_index* const cliques = list_cliques_.data() + list.start;
  std::uint32_t kept = 0;
  for (std::uint32_t i = 0; i < list.length; ++i) {
    const Clique_index clique = cliques[i];
    std::swap(cliques[i], cliques[kept]);
    std::swap(tails[i], tails[kept]);
    kept += is_unclaimed(clique) ? 1 : 0;
  }
  list.length = kept;
}

}  // namespace gns
