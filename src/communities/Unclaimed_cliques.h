#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "communities/Alike_buckets.h"
#include "communities/Signature.h"
#include "search/Clique_vector.h"

namespace gns {

/// The cliques not yet in a community, listed at each of their nodes and by their size, for one k
/// after the other.
///
/// The question it answers: which unclaimed cliques share at least t nodes with a given one? There
/// are several sets of lists of which a clique that does so must be in one, and the cheapest is
/// read:
/// - the shortest n - t + 1 lists of the n nodes given;
/// - the lists of those nodes that the clique asked for before hasn't: it has no unclaimed
/// neighbour
///   left;
/// - the lists of all sizes;
/// - where many questions were dear, that is in dense cores: the buckets of the cliques alike, and
///   the lists of the sizes that are too big to be alike.
/// Most entries are given up by their signature alone.
///
/// Memory: 12 bytes per clique and member, 52 per clique; with the buckets 384 more.
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

  /// A list: of a node under its index, behind these of the sizes, behind these of the buckets.
  /// Claimed cliques are moved behind `length` when enough have come together.
  struct List {
    std::size_t start = 0;
    std::uint32_t length = 0;
    std::uint32_t unclaimed = 0;
    std::uint32_t asked_for = 0;  ///< the last question about a clique with this node
  };
  using List_index = std::uint32_t;

  /// A list that may be read: its unclaimed cliques, and in the lower half its index.
  using Choice = std::uint64_t;

  static constexpr std::uint32_t claimed = ~std::uint32_t{0};

  void Deal_turns();
  void Sign();
  void Lay_out_lists();
  void Fill_lists();
  template <typename Use>
  void For_each_list_of(Clique_index clique, Use use) const;

  [[nodiscard]] Choice Choice_of(List_index list) const;
  void Collect_choices(Clique_index clique);
  std::span<const Choice> Choose_lists(Clique_index clique, std::uint32_t overlap);
  std::span<const Choice> Choose_among_all(Clique_index clique, std::uint32_t overlap,
                                           std::span<const Choice> chosen);
  void Collect_alike(Clique_index clique, std::uint32_t overlap, unsigned split);

  void Drop_claimed(List& list);
  void Meet(const List& list, Short_signature question, std::uint32_t overlap);
  void Keep_by_signature(Clique_index clique, std::uint32_t overlap);
  void Append_checked(Clique_index clique, std::uint32_t overlap,
                      std::vector<Clique_index>& neighbours);

  const Clique_vector& cliques_;
  Node_index node_limit_;                          ///< lists of nodes
  std::uint32_t largest_;                          ///< size of the largest clique
  std::vector<std::uint32_t> turns_;               ///< per node: its turn in the signatures
  std::vector<Short_signature> short_signatures_;  ///< per clique
  std::vector<Long_signature> long_signatures_;
  Alike_buckets alike_;
  std::vector<List> lists_;
  std::vector<Short_signature> list_signatures_;  ///< of all lists, bigger cliques first in each
  std::vector<Clique_index> list_cliques_;        ///< parallel
  std::size_t least_size_ = 0;                    ///< 0: nothing listed yet
  std::vector<std::uint32_t> met_;  ///< per clique: the question last met in, or `claimed`
  std::uint32_t question_ = 0;
  std::uint64_t entries_read_ = 0;  ///< since the last reset
  std::vector<Choice> choices_;  ///< the nodes of the clique asked for that have unclaimed cliques
  std::vector<Choice> fresh_;    ///< those of them that the clique before hasn't
  std::vector<Choice> best_;     ///< the best choice among sizes and buckets, and one to compare
  std::vector<Choice> other_;
  std::vector<std::uint32_t> passed_;     ///< places in a list whose signature passed
  std::vector<Clique_index> candidates_;  ///< those left of a question
  std::vector<std::uint8_t> marked_;      ///< per node: member of the clique in question
};

}  // namespace gns
