#include "export/Memberships.h"

namespace vorlane::exporting {

Memberships::Memberships(Node node_count, const std::vector<Rows>& levels)
    : first_of_({0}), places_(node_count, [&](auto enter) {
        std::uint32_t place = 0;
        for (const Rows& level : levels)
          for (const auto community : level) {
            for (const Node node : community) enter(node, place);
            ++place;
          }
      }) {
  for (const Rows& level : levels)
    first_of_.push_back(first_of_.back() + static_cast<std::uint32_t>(level.size()));
}

}  // namespace vorlane::exporting
