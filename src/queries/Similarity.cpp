#include "queries/Similarity.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <span>
#include <utility>

namespace vorlane::queries {

namespace {

using Node_set = std::span<const std::uint32_t>;

double Pairs_among(std::size_t count) {
  const auto n = static_cast<double>(count);
  return n * (n - 1) / 2;
}

std::uint32_t Common(Node_set a, Node_set b) {
  std::uint32_t common = 0;
  for (auto i = a.begin(), j = b.begin(); i != a.end() && j != b.end();) {
    if (*i == *j) ++common;
    const bool step_in_a = *i <= *j;
    if (*j <= *i) ++j;
    if (step_in_a) ++i;
  }
  return common;
}

/// A cover with what is counted of its pairs of nodes.
struct Counted_cover {
  Counted_cover(Node node_count, const Rows& of)
      : communities(of), holders(Holders(node_count, of)) {
    for (const auto community : of) once += Pairs_among(community.size());
  }

  /// Calls use(u, v, in how many communities) for each pair of nodes that are together in two or
  /// more. Such nodes are each in several, which few are.
  template <typename Use>
  void For_each_close_pair(Use use) const {
    std::vector<std::uint32_t> together(holders.Node_count() + std::size_t{1}, 0);
    std::vector<Node> met;
    for (Node u = 1; u <= holders.Node_count(); ++u) {
      if (holders[u].size() < 2) continue;
      // Who shares two communities with u shares one that isn't its largest, which may be huge.
      const std::uint32_t largest = *std::ranges::max_element(
          holders[u], {}, [this](std::uint32_t i) { return communities[i].size(); });
      for (const std::uint32_t community : holders[u]) {
        if (community == largest) continue;
        for (const Node v : communities[community])
          if (v > u && holders[v].size() > 1 && together[v]++ == 0) met.push_back(v);
      }
      for (const Node v : met) {
        const std::uint32_t in_largest = std::ranges::binary_search(holders[v], largest) ? 1 : 0;
        const std::uint32_t times = std::exchange(together[v], 0) + in_largest;
        if (times > 1) use(u, v, times);
      }
      met.clear();
    }
  }

  void Count_close(std::uint32_t times) {
    ++by_times[times];
    once -= times;
  }
  /// Pairs that are together in at least one community.
  [[nodiscard]] double Together() const {
    double pairs = once;
    for (const auto& [times, count] : by_times) pairs += count;
    return pairs;
  }

  const Rows& communities;
  gns::Row_index holders;
  std::map<std::uint32_t, double> by_times;  ///< pairs that are together twice or more
  double once = 0;  ///< pairs that are together once, when all others have been counted
};

/// What is shared by the pairs of which one cover or the other has more than one community.
struct Close_pairs {
  void Count(std::uint32_t in_first, std::uint32_t in_second) {
    products += static_cast<double>(in_first) * in_second;
    if (in_first > 0 && in_second > 0) ++in_both;
    if (in_first == in_second) ++equal;
  }
  double products = 0;
  double in_both = 0;
  double equal = 0;
};

double Entropy_part(double count, double all) {
  return count > 0 ? -count * std::log2(count / all) : 0.0;
}

/// The entropies of whether a node is in one community or another, of `all` nodes.
class Entropies {
 public:
  explicit Entropies(Node all) : all_(all) {}

  [[nodiscard]] double Of(std::size_t size) const {
    const auto inside = static_cast<double>(size);
    return Part(inside) + Part(all_ - inside);
  }

  /// Of a community of `size` nodes, given one of `other` nodes that shares `shared` with it. None
  /// where the other one tells rather who is not in it.
  [[nodiscard]] double Given(std::size_t size, std::size_t other, std::size_t shared) const {
    const auto both = static_cast<double>(shared);
    const double only = static_cast<double>(size) - both;
    const double only_other = static_cast<double>(other) - both;
    const double neither = all_ - both - only - only_other;
    if (Part(neither) + Part(both) < Part(only) + Part(only_other)) return Of(size);
    return Part(neither) + Part(both) + Part(only) + Part(only_other) - Of(other);
  }

 private:
  [[nodiscard]] double Part(double count) const { return Entropy_part(count, all_); }

  double all_;
};

double Entropy(const Entropies& entropies, const Rows& communities) {
  double sum = 0;
  for (const auto community : communities) sum += entropies.Of(community.size());
  return sum;
}

/// The different sizes of communities, ascending, and how many have each.
struct Sizes {
  explicit Sizes(const Rows& communities) {
    std::vector<std::size_t> all;
    for (const auto community : communities) all.push_back(community.size());
    std::ranges::sort(all);
    for (const std::size_t size : all) {
      if (sizes.empty() || sizes.back() != size) {
        sizes.push_back(size);
        counts.push_back(0);
      }
      ++counts.back();
    }
  }
  [[nodiscard]] std::size_t Place_of(std::size_t size) const {
    return static_cast<std::size_t>(std::ranges::lower_bound(sizes, size) - sizes.begin());
  }
  std::vector<std::size_t> sizes;
  std::vector<std::size_t> counts;
};

/// Of the communities, each given the one of the others that tells most of it. All that are apart
/// from it and of one size tell the same.
double Entropy_given(const Entropies& entropies, Node node_count, const Rows& communities,
                     const Rows& others) {
  Shared_nodes shared_nodes(node_count, others);
  const Sizes all(others);
  std::vector<std::size_t> met(all.sizes.size());
  double sum = 0;
  for (const auto community : communities) {
    double least = entropies.Of(community.size());
    std::ranges::fill(met, 0);
    shared_nodes.For_each(community, [&](std::uint32_t other, std::uint32_t shared) {
      const std::size_t size = others[other].size();
      ++met[all.Place_of(size)];
      least = std::min(least, entropies.Given(community.size(), size, shared));
    });
    for (std::size_t i = 0; i < met.size(); ++i)
      if (all.counts[i] > met[i])
        least = std::min(least, entropies.Given(community.size(), all.sizes[i], 0));
    sum += least;
  }
  return sum;
}

}  // namespace

double Omega_index(const Covers& covers) {
  const double all = Pairs_among(covers.node_count);
  if (covers.node_count < 2) return 1.0;
  Counted_cover first(covers.node_count, covers.first);
  Counted_cover second(covers.node_count, covers.second);
  Close_pairs close;
  first.For_each_close_pair([&](Node u, Node v, std::uint32_t times) {
    first.Count_close(times);
    close.Count(times, Common(second.holders[u], second.holders[v]));
  });
  second.For_each_close_pair([&](Node u, Node v, std::uint32_t times) {
    second.Count_close(times);
    const std::uint32_t in_first = Common(first.holders[u], first.holders[v]);
    if (in_first < 2) close.Count(in_first, times);
  });

  double products = 0;  // over all pairs: communities of the one cover times those of the other
  Shared_nodes shared_nodes(covers.node_count, covers.second);
  for (const auto community : covers.first)
    shared_nodes.For_each(
        community, [&](std::uint32_t, std::uint32_t shared) { products += Pairs_among(shared); });
  const double once_in_both = products - close.products;
  const double nowhere =
      all - (first.Together() + second.Together() - once_in_both - close.in_both);
  const double observed = (nowhere + once_in_both + close.equal) / all;
  double expected = (all - first.Together()) / all * (all - second.Together()) / all +
                    first.once / all * second.once / all;
  for (const auto& [times, count] : first.by_times)
    if (const auto same = second.by_times.find(times); same != second.by_times.end())
      expected += count / all * same->second / all;
  return expected < 1.0 ? (observed - expected) / (1.0 - expected) : 1.0;
}

double Overlapping_nmi(const Covers& covers) {
  const Entropies entropies(covers.node_count);
  const double first = Entropy(entropies, covers.first);
  const double second = Entropy(entropies, covers.second);
  if (!(std::max(first, second) > 0)) return 1.0;
  const double information =
      (first - Entropy_given(entropies, covers.node_count, covers.first, covers.second) + second -
       Entropy_given(entropies, covers.node_count, covers.second, covers.first)) /
      2;
  return information / std::max(first, second);
}

}  // namespace vorlane::queries
