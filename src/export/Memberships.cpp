#include "export/Memberships.h"

namespace vorlane::exporting {

Memberships::Memberships(Node node_count, const std::vector<Communities>& levels)
    : first_of_({0}), places_(node_count, [&](auto enter) {
        std::uint32_t place = 0;
        for (const Communities& level : levels)
          for (const auto community : level.members) {
            for (const Node node : community) enter(node, place);
            ++place;
          }
      }) {
  for (const Communities& level : levels) {
    const std::uint32_t first = first_of_.back();
    first_approximate_of_.push_back(first + static_cast<std::uint32_t>(level.exact_count));
    first_of_.push_back(first + static_cast<std::uint32_t>(level.members.size()));
  }
}

}  // namespace vorlane::exporting
