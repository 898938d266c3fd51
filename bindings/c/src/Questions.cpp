#include <mutex>
#include <utility>
#include <vector>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Results_handle.h"
#include "queries/Tree.h"
#include "queries/Which_k.h"

namespace vorlane::c {

namespace {

const Distribution& Choose(const Distributions& all, vorlane_distribution which) {
  switch (which) {
    case VORLANE_MEMBERSHIP:
      return all.membership;
    case VORLANE_SIZE:
      return all.size;
    case VORLANE_OVERLAP:
      return all.overlap;
    case VORLANE_DEGREE:
      return all.degree;
  }
  throw Error(Error_kind::parameters, "There is no such distribution.");
}

std::vector<std::uint32_t> Pairs_of(const Distribution& distribution) {
  std::vector<std::uint32_t> pairs;
  for (const auto& [value, times] : distribution) pairs.insert(pairs.end(), {value, times});
  return pairs;
}

/// Needs the lock.
const queries::Summary& Summary_of(const vorlane_results& results) {
  if (!results.summary) {
    results.summary = queries::Summary_of(results.results);
    for (const queries::Level_summary& level : results.summary->levels)
      results.summary_shown.push_back({level.k, level.communities, level.approximate, level.largest,
                                       level.second_largest, level.covered, level.overlapping,
                                       level.overlaps});
  }
  return *results.summary;
}

std::vector<vorlane_tree_node> Tree_of(const Results& results) {
  std::vector<vorlane_tree_node> nodes;
  for (const queries::Tree_node& node : queries::Tree_of(results))
    nodes.push_back({node.place.k, static_cast<std::uint32_t>(node.place.community),
                     node.parent ? static_cast<std::int64_t>(*node.parent) : -1});
  return nodes;
}

}  // namespace
}  // namespace vorlane::c

using vorlane::c::With_code;

vorlane_code vorlane_results_distribution(const vorlane_results* results, uint32_t k,
                                          vorlane_distribution which, const uint32_t** pairs,
                                          size_t* count) {
  return With_code([&] {
    const std::lock_guard guard(results->lock);
    auto& kept = results->distributions;
    auto found = kept.find({k, which});
    if (found == kept.end()) {
      const vorlane::Statistics statistics = results->results.Statistics_at(k);
      auto shown = vorlane::c::Pairs_of(vorlane::c::Choose(statistics.all, which));
      found = kept.emplace(std::pair(k, which), std::move(shown)).first;
    }
    *pairs = found->second.data();
    *count = found->second.size() / 2;
  });
}

vorlane_code vorlane_results_summary(const vorlane_results* results, const vorlane_summary** levels,
                                     size_t* count) {
  return With_code([&] {
    const std::lock_guard guard(results->lock);
    vorlane::c::Summary_of(*results);
    *levels = results->summary_shown.data();
    *count = results->summary_shown.size();
  });
}

vorlane_code vorlane_results_which_k(const vorlane_results* results, uint32_t* k,
                                     const char** reason) {
  return With_code([&] {
    const std::lock_guard guard(results->lock);
    const auto choice = vorlane::queries::Which_k({vorlane::c::Summary_of(*results)});
    results->reason = choice ? choice->reason : "There are no communities.";
    *k = choice ? choice->level.k : 0;
    *reason = results->reason.c_str();
  });
}

vorlane_code vorlane_results_tree(const vorlane_results* results, const vorlane_tree_node** nodes,
                                  size_t* count) {
  return With_code([&] {
    const std::lock_guard guard(results->lock);
    if (!results->tree) results->tree = vorlane::c::Tree_of(results->results);
    *nodes = results->tree->data();
    *count = results->tree->size();
  });
}
