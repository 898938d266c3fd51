#include "export/Selection.h"

#include <algorithm>
#include <utility>

#include "queries/Summary.h"
#include "queries/Which_k.h"

namespace vorlane::exporting {

Selection::Selection(vorlane::Results results, std::optional<std::uint32_t> k)
    : results_(std::move(results)), ks_(results_.Ks().rbegin(), results_.Ks().rend()), shown_k_(k) {
  if (k) {
    (void)results_.Sizes_at(*k);  // throws if there is no such level
    ks_ = {*k};
  } else if (const auto chosen = queries::Which_k({queries::Summary_of(results_)})) {
    shown_k_ = chosen->level.k;
  }
}

Memberships Selection::Memberships() const {
  std::vector<Communities> levels;
  for (const std::uint32_t k : ks_) levels.push_back(results_.Communities_at(k));
  return {Network().size(), levels};
}

std::shared_ptr<const layout::Layout> Selection::Layout() const {
  if (layout_ == nullptr)
    layout_ = std::make_shared<const layout::Layout>(
        layout::Layout_of(Network(), queries::Forest(results_)));
  return layout_;
}

std::string Attribute(std::string_view name, std::uint32_t k) {
  std::string attribute(name);
  return attribute.append("_k").append(std::to_string(k));
}

}  // namespace vorlane::exporting
