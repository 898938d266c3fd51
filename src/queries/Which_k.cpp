#include "queries/Which_k.h"

#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>

namespace vorlane::queries {

namespace {

constexpr double most_dominant = 2.0;

struct Candidate {
  std::size_t result = 0;
  const Level_summary* level = nullptr;
  double share = 0.0;  ///< of the nodes that are covered

  /// Whether it is to be preferred to another.
  [[nodiscard]] bool Beats(const Candidate& other) const {
    if (other.level == nullptr) return true;
    const bool passes = level->Dominance() <= most_dominant;
    const bool other_passes = other.level->Dominance() <= most_dominant;
    if (passes != other_passes) return passes;
    if (!passes && level->Dominance() != other.level->Dominance())
      return level->Dominance() < other.level->Dominance();
    return share > other.share;
  }
};

std::string Rounded(double value) {
  std::ostringstream text;
  text << std::setprecision(2) << value;
  return text.str();
}

std::string Percent(double share) { return std::to_string(std::lround(100 * share)) + " %"; }

/// What one step further down would do, if there is a level.
std::string Below(const Summary& summary, const Level_summary& level) {
  for (const Level_summary& other : summary.levels) {
    if (other.k + 1 != level.k) continue;
    if (other.Dominance() <= most_dominant) return "";
    return other.second_largest == 0
               ? "; one level down a single community is left"
               : "; one level down it is " + Rounded(other.Dominance()) + " times";
  }
  return "";
}

std::string Reason(const Candidate& chosen, const Summary& summary) {
  const Level_summary& level = *chosen.level;
  const std::string covers = "covers " + Percent(chosen.share) + " of the nodes";
  if (level.second_largest == 0)
    return "At every k there is one community at most; this one " + covers + ".";
  const std::string times = Rounded(level.Dominance());
  const std::string size =
      times == "1" ? "its largest community is about as large as the second"
                   : "its largest community has " + times + " times the nodes of the second";
  if (level.Dominance() <= most_dominant)
    return "It " + covers + ", the most before a giant community swallows the others: " + size +
           Below(summary, level) + ".";
  return "One community outgrows the others at every k, here the least: " + size + ". It " +
         covers + ".";
}

}  // namespace

std::optional<Recommendation> Which_k(const std::vector<Summary>& results) {
  Candidate best;
  for (std::size_t i = 0; i < results.size(); ++i)
    for (const Level_summary& level : results[i].levels) {
      if (level.communities == 0) continue;
      const double share =
          static_cast<double>(level.covered) / static_cast<double>(results[i].nodes);
      const Candidate candidate = {i, &level, share};
      if (candidate.Beats(best)) best = candidate;
    }
  if (best.level == nullptr) return std::nullopt;
  return Recommendation{best.result, *best.level, Reason(best, results[best.result])};
}

}  // namespace vorlane::queries
