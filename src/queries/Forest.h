#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "graph/Row_index.h"
#include "vorlane/results.h"

namespace vorlane::queries {

/// The communities of all k as one list: k ascending, then by number, so that parents come first.
/// In it a community goes by its place. Holds each node once for every community in which it can't
/// be found further down, which is a small part of what the levels hold.
class Forest {
 public:
  static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

  /// Throws as Results::At().
  explicit Forest(const Results& results);

  [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(parents_.size()); }
  [[nodiscard]] const std::vector<std::uint32_t>& Ks() const { return ks_; }  ///< ascending
  /// Places First_of(i) up to First_of(i + 1) are the communities at Ks()[i].
  [[nodiscard]] std::uint32_t First_of(std::size_t level) const { return first_of_[level]; }
  /// The level of a place, as a position in Ks().
  [[nodiscard]] std::size_t Level_of(std::uint32_t place) const;

  /// The place of the community that holds this one at the next lower k; `none` at the lowest, and
  /// where there is none (see Tree_of()).
  [[nodiscard]] std::uint32_t Parent(std::uint32_t place) const { return parents_[place]; }
  [[nodiscard]] std::uint32_t Size(std::uint32_t place) const { return sizes_[place]; }
  /// The nodes that are in none of the communities of which this one is the parent, ascending.
  [[nodiscard]] std::span<const Node> Own_nodes(std::uint32_t place) const {
    return {own_nodes_.data() + own_starts_[place], own_starts_[place + 1] - own_starts_[place]};
  }

  /// By node: the place where it stands among the own nodes at the greatest k, the first of
  /// several; `none` for a node of no community. As long as the network's arrays over nodes.
  [[nodiscard]] std::vector<std::uint32_t> Homes(Node node_count) const;

 private:
  void Find_own_nodes(const Results& results);

  std::vector<std::uint32_t> ks_;
  std::vector<std::uint32_t> first_of_ = {0};
  std::vector<std::uint32_t> parents_;
  std::vector<std::uint32_t> sizes_;
  std::vector<std::size_t> own_starts_ = {0};
  std::vector<Node> own_nodes_;
};

}  // namespace vorlane::queries
