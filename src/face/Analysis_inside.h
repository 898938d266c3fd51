#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "engine/Level_finder.h"
#include "engine/Work_of_levels.h"
#include "face/Control_body.h"
#include "face/Errors_of_face.h"
#include "graph/Named_graph.h"
#include "search/Clique_vector.h"
#include "vorlane/analysis.h"

namespace vorlane {

/// An analysis as it goes on.
struct Analysis::Inside {
  /// Throws an Error as the constructor of Analysis.
  Inside(Network of, const Options& asked, Control by);

  /// Does a part of the work; nothing goes on behind a part that failed.
  template <typename Work>
  auto Go_on(Work part) {
    if (failed) throw Error(Error_kind::parameters, "This analysis ended with an error before.");
    external_control::Run_control& run = control.Inside().run;
    const external_control::Control_in_use in_use(run);
    run.workers = options.workers;
    failed = true;
    auto result = face::With_errors(Error_kind::other, part);
    failed = false;
    return result;
  }

  /// The parts. The first one searches, or takes the cliques of the same network that were found
  /// before: copies them, and throws an Error of kind `input` if they can't be such.
  void Search();
  void Take(const Cliques& known);
  std::optional<Level> Next();
  /// All that Next() would yield.
  void For_each_level(const std::function<void(Level& level)>& use);

  Network network;
  Options options;
  Control control;
  bool failed = false;
  bool needs_all_cliques = false;  ///< small ones too, when larger ones are asked for
  std::shared_ptr<const gns::Clique_vector> found;  ///< null before the search
  Cliques cliques;
  std::uint32_t largest = 0;
  std::uint32_t next_k = 0;  ///< below the last one: there is no more
  std::optional<gns::Level_finder> levels;
  std::deque<Level> ahead;  ///< found, but not asked for yet
  std::optional<gns::Work_of_levels> work;

  /// Whether it searches for no more cliques than its one k needs.
  [[nodiscard]] bool Can_leave_out_cliques() const;

 private:
  void Search_all(const gns::Named_graph& graph, gns::Clique_vector& all);
  void Have(std::shared_ptr<const gns::Clique_vector> all);
  void Begin_levels();
  /// Finds the next levels, so many at most.
  void Find_levels(std::uint32_t most, const std::function<void(Level& level)>& use);
  [[nodiscard]] std::uint32_t Last_k() const;
};

}  // namespace vorlane
