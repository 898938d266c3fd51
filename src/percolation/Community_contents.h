#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "communities/Communities.h"
#include "percolation/Index_bits.h"
#include "search/Clique_vector.h"

namespace gns {

/// Collects the members and links of communities from their cliques.
///
/// What a community takes over whole from communities at a greater k is merged from there; only
/// cliques that were in no community yet are taken apart. So each clique is taken apart once in a
/// run down all k.
class Community_contents {
 public:
  /// `cliques` must outlive the object.
  explicit Community_contents(const Clique_vector& cliques);

  /// Appends to `result` the community that consists of `com_cliques`. `before` holds the
  /// communities at a greater k that Note_communities() was called for last, or is empty.
  void Append(std::span<const Clique_index> com_cliques, const Communities& before,
              Communities& result);

  /// Notes to which of `communities` each clique belongs, for the k that comes next.
  void Note_communities(const Communities& communities);
  void Forget_communities();

 private:
  /// Where links that begin at a member come from: some of the pairs of communities or, from a
  /// clique, of the nodes of cliques. There are as many as cliques have members, so they are small.
  class Source {
   public:
    static constexpr unsigned size_bits = 23;
    static constexpr std::size_t most = (std::size_t{1} << size_bits) - 1;

    Source() = default;
    /// `size` is at most `most`.
    Source(bool are_pairs, std::size_t start, std::size_t size)
        : packed_(start << (size_bits + 1) | size << 1U | (are_pairs ? 1U : 0U)) {}
    [[nodiscard]] bool Are_pairs() const { return (packed_ & 1U) != 0; }
    [[nodiscard]] std::size_t Start() const { return packed_ >> (size_bits + 1); }
    [[nodiscard]] std::size_t End() const { return Start() + (packed_ >> 1U & most); }

   private:
    std::uint64_t packed_ = 0;
  };

  void Sort_out(std::span<const Clique_index> com_cliques);
  void Collect_members(const Communities& before);
  void Count_sources(const Communities& before);
  [[nodiscard]] std::size_t End_of_batch(std::size_t first) const;
  void Collect_sources(std::size_t first, std::size_t last, const Communities& before);
  void Rewind();
  template <typename Use>
  void For_each_source(Node_index last, const Communities& before, Use use);
  void Append_links(Node_index member, std::span<const Source> sources, const Communities& before,
                    Communities& result);

  static constexpr std::uint32_t none = ~std::uint32_t{0};

  const Clique_vector& cliques_;
  std::vector<std::uint32_t> community_of_;  ///< per clique: its community in `before`, or none
  std::vector<std::uint32_t> parts_;         ///< communities taken over
  std::vector<Clique_index> new_cliques_;
  std::vector<Node_index> members_;
  std::vector<std::uint32_t> place_of_;   ///< per node: position in members_ + 1, or 0
  std::vector<std::size_t> part_at_;      ///< per part: how many of its links are done with
  std::vector<std::uint32_t> clique_at_;  ///< per new clique: how many of its nodes
  std::vector<std::size_t> source_starts_;
  std::vector<std::size_t> next_source_;  ///< per member of a batch: where its next one goes
  std::vector<Source> sources_;           ///< of the members of a batch
  std::vector<Node_index> met_by_;        ///< per node: the member it was last met by
  std::vector<Node_index> met_;
  Index_bits to_sort_;  ///< nodes
  Index_bits cliques_to_sort_;
};

}  // namespace gns
