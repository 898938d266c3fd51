#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "communities/Signature.h"
#include "search/Clique_vector.h"

namespace gns {

/// The cliques not yet in a community, listed at each of their nodes, for one k after the other.
///
/// The question it answers: which unclaimed cliques share at least t nodes with a given one? A
/// clique that does so is listed at one or more of any (n - t + 1) of the n nodes given, so the
/// shortest lists are read. And as the clique asked for before has no unclaimed neighbour left,
/// such a clique also is listed at a node that the one asked for now has and the one before hasn't:
/// where these lists are shorter, they are read instead; and so is the list of all cliques, where a
/// dense core makes many lists nearly as long as that one. Most entries are given up by their
/// signature alone. Memory: 12 bytes per clique and member, 36 per clique.
class Unclaimed_cliques {
 public:
  /// `cliques` must outlive the object.
  explicit Unclaimed_cliques(const Clique_vector& cliques);

  /// Puts every clique back to unclaimed and lists those of `least_size` nodes or more.
  void Reset(std::size_t least_size);

  void Claim(Clique_index clique);
  [[nodiscard]] bool Is_unclaimed(Clique_index clique) const { return met_[clique] != claimed; }

  /// Appends the listed unclaimed cliques that share at least `overlap` (1 or more) nodes with
  /// `clique`, ascending. All of them are to be claimed before the next question.
  void Append_neighbours(Clique_index clique, std::uint32_t overlap,
                         std::vector<Clique_index>& neighbours);

 private:
  using Short_signature = Signature<1, 10>;
  using Long_signature = Signature<4, 8>;

  /// The list of a node; the list of all cliques stands at `everywhere`, which no node has. Claimed
  /// cliques are moved behind `length` when enough have come together.
  struct List {
    std::size_t start = 0;
    std::uint32_t length = 0;
    std::uint32_t unclaimed = 0;
    std::uint32_t asked_for = 0;  ///< the last question about a clique with this node
  };

  /// A list that may be read: its unclaimed cliques, and in the lower half the node.
  using Choice = std::uint64_t;

  static constexpr Node_index everywhere = 0;
  static constexpr std::uint32_t claimed = ~std::uint32_t{0};

  void Sign(Node_index node_limit);
  void Fill_lists();
  std::span<const Choice> Choose_lists(Clique_index clique, std::uint32_t overlap);
  void Collect_choices(Clique_index clique);
  [[nodiscard]] Choice Choice_of(Node_index node) const;
  void Drop_claimed(List& list);
  void Meet(const List& list, Short_signature question, std::uint32_t overlap);
  void Keep_by_signature(Clique_index clique, std::uint32_t overlap);
  void Append_checked(Clique_index clique, std::uint32_t overlap,
                      std::vector<Clique_index>& neighbours);

  const Clique_vector& cliques_;
  std::vector<Short_signature> short_signatures_;  ///< per clique
  std::vector<Long_signature> long_signatures_;
  std::vector<List> lists_;                       ///< per node
  std::vector<Short_signature> list_signatures_;  ///< of all lists, bigger cliques first in each
  std::vector<Clique_index> list_cliques_;        ///< parallel
  std::size_t least_size_ = 0;                    ///< 0: nothing listed yet
  std::vector<std::uint32_t> met_;  ///< per clique: the question last met in, or `claimed`
  std::uint32_t question_ = 0;
  std::vector<Choice> choices_;  ///< the nodes of the clique asked for that have unclaimed cliques
  std::vector<Choice> fresh_;    ///< those of them that the clique before hasn't
  Choice all_ = 0;               ///< the list of all cliques
  std::vector<std::uint32_t> passed_;     ///< places in a list whose signature passed
  std::vector<Clique_index> candidates_;  ///< those left of a question
  std::vector<std::uint8_t> marked_;      ///< per node: member of the clique in question
};

}  // namespace gns
