#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "export/Memberships.h"
#include "layout/Network_layout.h"
#include "vorlane/results.h"

namespace vorlane::exporting {

/// What is exported: the communities at one k of some results, or at all. Not for several threads.
class Selection {
 public:
  /// Throws an Error of kind `parameters` if there is no level at `k`.
  Selection(vorlane::Results results, std::optional<std::uint32_t> k);

  [[nodiscard]] const vorlane::Results& Results() const { return results_; }
  [[nodiscard]] const vorlane::Network& Network() const { return results_.Network(); }
  [[nodiscard]] bool Is_directed() const { return results_.Method() == Method::directed; }
  [[nodiscard]] bool Is_weighted() const { return Network().How_taken().weighted; }
  [[nodiscard]] const std::vector<std::uint32_t>& Ks() const { return ks_; }  ///< ascending

  /// The k by which pictures are coloured and laid out: the only one, or the recommended one.
  [[nodiscard]] std::optional<std::uint32_t> Shown_k() const { return shown_k_; }

  /// Of the levels at Ks().
  [[nodiscard]] vorlane::exporting::Memberships Memberships() const;

  /// Of the network and its communities at all k; made at the first call, which may take a while.
  [[nodiscard]] std::shared_ptr<const layout::Layout> Layout() const;

  /// Calls use(first, second, weight) for each link, in the order of nodes; the weight is 1 where
  /// links have none.
  template <typename Use>
  void For_each_link(Use use) const {
    const Rows links = Network().Links();
    const Array<double> weights = Network().Weights();
    for (std::size_t first = 1, place = 0; first < links.size(); ++first)
      for (const Node second : links[first]) {
        use(static_cast<Node>(first), second, weights.empty() ? 1.0 : weights[place]);
        ++place;
      }
  }

 private:
  vorlane::Results results_;
  std::vector<std::uint32_t> ks_;
  std::optional<std::uint32_t> shown_k_;
  mutable std::shared_ptr<const layout::Layout> layout_;
};

/// The name of a node's attribute at a k: "communities_k4".
std::string Attribute(std::string_view name, std::uint32_t k);

}  // namespace vorlane::exporting
