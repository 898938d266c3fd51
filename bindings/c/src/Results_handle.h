#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "bindings/c/vorlane_c.h"
#include "queries/Summary.h"
#include "vorlane/vorlane.h"

/// Results, with the answers that were handed out as arrays.
struct vorlane_results {
  explicit vorlane_results(vorlane::Results of) : results(std::move(of)) {}

  using Distribution_key = std::pair<std::uint32_t, vorlane_distribution>;

  const vorlane::Results results;
  mutable std::mutex lock;  ///< of what follows
  mutable std::map<Distribution_key, std::vector<std::uint32_t>> distributions;
  mutable std::optional<vorlane::queries::Summary> summary;
  mutable std::vector<vorlane_summary> summary_shown;
  mutable std::string reason;
  mutable std::string figure;
  mutable std::optional<std::vector<vorlane_tree_node>> tree;
};
