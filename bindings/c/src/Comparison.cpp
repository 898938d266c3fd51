#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"
#include "queries/Diff.h"
#include "queries/Similarity.h"

struct vorlane_comparison {
  double omega = 1.0;
  double nmi = 1.0;
  std::vector<vorlane_change> changes;
};

namespace vorlane::c {

namespace {

/// Views of rows that outlive the call; throws an Error of kind `parameters` if they are no cover.
Rows Cover_of(const vorlane_rows* rows, std::uint32_t node_count, const char* what) {
  Check_given(rows, what);
  Rows cover = Rows_of(*rows);
  for (const auto community : cover)
    for (std::size_t i = 0; i < community.size(); ++i)
      if (community[i] == 0 || community[i] > node_count ||
          (i > 0 && community[i] <= community[i - 1]))
        throw Error(Error_kind::parameters, "The nodes of a row must ascend, from 1 to " +
                                                std::to_string(node_count) + ".");
  return cover;
}

vorlane_fate Fate_of(queries::Fate fate) {
  using queries::Fate;
  switch (fate) {
    case Fate::kept:
      return VORLANE_KEPT;
    case Fate::grown:
      return VORLANE_GROWN;
    case Fate::shrunk:
      return VORLANE_SHRUNK;
    case Fate::changed:
      return VORLANE_CHANGED;
    case Fate::merged:
      return VORLANE_MERGED;
    case Fate::split:
      return VORLANE_SPLIT;
    case Fate::died:
      return VORLANE_DIED;
    case Fate::born:
      break;
  }
  return VORLANE_BORN;
}

std::int64_t Number_or_none(const std::optional<std::uint32_t>& number) {
  return number ? static_cast<std::int64_t>(*number) : -1;
}

vorlane_comparison Compare(const queries::Covers& covers) {
  vorlane_comparison comparison;
  comparison.omega = queries::Omega_index(covers);
  comparison.nmi = queries::Overlapping_nmi(covers);
  for (const queries::Change& change : queries::Changes_between(covers))
    comparison.changes.push_back({Fate_of(change.fate), Number_or_none(change.before),
                                  Number_or_none(change.after), change.jaccard});
  return comparison;
}

}  // namespace
}  // namespace vorlane::c

vorlane_code vorlane_compare(uint32_t node_count, const vorlane_rows* first,
                             const vorlane_rows* second, vorlane_comparison** comparison) {
  return vorlane::c::With_code([&] {
    *comparison =
        std::make_unique<vorlane_comparison>(
            vorlane::c::Compare({node_count, vorlane::c::Cover_of(first, node_count, "first"),
                                 vorlane::c::Cover_of(second, node_count, "second")}))
            .release();
  });
}

void vorlane_comparison_look(const vorlane_comparison* comparison, vorlane_comparison_view* view) {
  *view = {comparison->omega, comparison->nmi, comparison->changes.data(),
           comparison->changes.size()};
}

void vorlane_comparison_free(vorlane_comparison* comparison) { delete comparison; }
