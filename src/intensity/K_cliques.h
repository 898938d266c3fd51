#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "foundation/memory/Moving_count.h"
#include "graph/Node_set.h"

namespace gns {

/// Position of a k-clique in their sequence; the number that it has in the k-clique file.
using K_clique_index = std::uint32_t;

/// The k-cliques at one k as rows of one array, ascending lexicographically without repeats.
class K_cliques {
 public:
  explicit K_cliques(std::uint32_t k) : k_(k) {}

  [[nodiscard]] std::uint32_t K() const { return k_; }
  [[nodiscard]] std::size_t size() const { return size_.value; }
  [[nodiscard]] bool empty() const { return size_.value == 0; }
  [[nodiscard]] Node_span operator[](std::size_t index) const {
    return {members_.data() + index * k_, k_};
  }

  /// The members of all, one behind the other.
  [[nodiscard]] Node_span Values() const { return members_; }

  /// Appends k nodes that ascend and stand behind the last row.
  void push_back(Node_span k_clique) {
    members_.insert(members_.end(), k_clique.begin(), k_clique.end());
    ++size_.value;
  }

 private:
  std::uint32_t k_;
  Moving_count size_;
  std::vector<Node_index> members_;
};

}  // namespace gns
