#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "communities/Communities.h"
#include "communities/Level_statistics.h"
#include "control/Turns.h"
#include "graph/Index_links.h"
#include "graph/Row_array.h"
#include "intensity/K_clique_communities.h"
#include "intensity/K_cliques.h"
#include "intensity/Weighted_cliques.h"
#include "percolation/Percolation.h"
#include "search/Clique_vector.h"

namespace gns {

/// What levels are found from, the same for every k. All that is referred to must outlive them.
struct Levels_input {
  Levels_input(const Clique_vector& all_cliques, const Index_links& links)
      : cliques(all_cliques), index_links(links) {}

  const Clique_vector& cliques;
  const Index_links& index_links;
  std::uint32_t exact_clique_count = 0;
  std::uint32_t node_count = 0;
  std::optional<double> intensity_threshold;  ///< set: the intensity method
  std::uint32_t max_clique_size = 0;          ///< for the state report only
  std::uint32_t last_k = 0;  ///< no k below will be asked for, and it but once; 0: not known
  /// False: the links of a level are not read once the next one has been asked for.
  bool links_are_kept = true;
};

/// What there is at one k.
struct Level {
  std::uint32_t k = 0;
  /// Not touched any more once it is here. With the intensity method without links and cliques.
  std::shared_ptr<const Communities> communities;
  std::optional<K_cliques> k_cliques;       ///< of the intensity method
  Row_array<K_clique_index> com_k_cliques;  ///< of the intensity method: by community
  Com_graph com_graph;
  Level_statistics statistics;

  /// The links of the communities, with the intensity method: computed when they are asked for.
  [[nodiscard]] K_clique_com_links K_clique_links() const { return {*k_cliques, com_k_cliques}; }
};

/// Finds the communities at one k after the other, best with k descending. Touches no file;
/// Find_level() takes the steps, with or without writing. Reports and polls; throws what the
/// methods throw.
class Levels {
 public:
  explicit Levels(const Levels_input& input);

  [[nodiscard]] const Levels_input& Input() const { return common_->input; }

  /// The steps of a level, in their order, each with what it needs from those before it. The first
  /// one is of the intensity method.
  void Find_k_cliques(Level& level) const;
  void Find_communities(Level& level);
  static void Link_communities(Level& level);
  void Count(Level& level) const;

  /// Prepares for workers that find every k from `largest_k` downwards once, each of them taking
  /// the largest that is left: from here on a level is found when the one above it is.
  void Share(std::uint32_t largest_k);
  /// For one more worker, when they are shared; callable from its thread. Throws std::bad_alloc.
  [[nodiscard]] Levels Fellow() const;
  /// About how many bytes a fellow takes.
  [[nodiscard]] std::uint64_t Bytes_of_fellow() const;
  /// Gives back what only this worker has, for one that finds no level any more.
  void Give_up_lists();

 private:
  /// What all workers see.
  struct Common {
    explicit Common(const Levels_input& levels_input) : input(levels_input) {}

    Levels_input input;
    std::optional<Percolation> percolation;            ///< of the plain method
    std::optional<Weighted_cliques> weighted_cliques;  ///< of the intensity method
    /// Of those that are shared: whose communities are to be found next, down from `largest_k`.
    std::optional<external_control::Turns> turns;
    std::uint32_t largest_k = 0;
  };

  explicit Levels(std::shared_ptr<Common> common) : common_(std::move(common)) {}
  [[nodiscard]] Claim_walk& Walk() {
    return fellow_walk_ ? *fellow_walk_ : common_->percolation->Walk();
  }
  void Join_by_overlap(Level& level);
  void Join_by_intensity(Level& level) const;

  std::shared_ptr<Common> common_;
  std::optional<Claim_walk> fellow_walk_;
};

}  // namespace gns
