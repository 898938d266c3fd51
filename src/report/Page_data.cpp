#include "report/Page_data.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

#include "control/Run_control.h"
#include "foundation/text/Json_text.h"
#include "graph/Row_index.h"
#include "queries/Which_k.h"
#include "report/Byte_block.h"

namespace vorlane::report {

namespace {

using gns::Json_list;
using queries::Forest;

std::string_view Name_of(Method method) {
  switch (method) {
    case Method::directed:
      return "directed";
    case Method::intensity:
      return "intensity";
    default:
      return "undirected";
  }
}

std::string Truth(bool value) { return value ? "true" : "false"; }

std::string Level_facts(const queries::Level_summary& level) {
  Json_list facts(Json_list::Kind::object);
  const std::pair<std::string_view, std::size_t> figures[] = {{"k", level.k},
                                                              {"communities", level.communities},
                                                              {"approximate", level.approximate},
                                                              {"largest", level.largest},
                                                              {"second", level.second_largest},
                                                              {"covered", level.covered},
                                                              {"overlapping", level.overlapping},
                                                              {"overlaps", level.overlaps}};
  for (const auto& [name, figure] : figures) facts.Add(name, std::to_string(figure));
  return facts.Text();
}

/// Numbers of 16 bits in a range, as runs of their high and their low bytes, which pack better.
class Sixteen_bits {
 public:
  Sixteen_bits(double low, double width) : low_(low), scale_(width > 0 ? most / width : 0) {}

  void Add(double value) {
    const double scaled = std::clamp((value - low_) * scale_ + 0.5, 0.0, most);
    values_.push_back(static_cast<std::uint16_t>(scaled));
  }
  void Put(Byte_block& block) const {
    constexpr unsigned byte = 8;
    for (const std::uint16_t value : values_)
      block.Put_byte(static_cast<std::uint8_t>(value >> byte));
    for (const std::uint16_t value : values_) block.Put_byte(static_cast<std::uint8_t>(value));
  }

 private:
  static constexpr double most = 0xffff;

  double low_;
  double scale_;
  std::vector<std::uint16_t> values_;
};

class Data_writer {
 public:
  Data_writer(const Results& results, const Forest& forest, const layout::Layout& layout)
      : results_(results), network_(results.Network()), forest_(forest), layout_(layout) {
    order_ = Order();
    placed_ = static_cast<std::uint32_t>(order_.size());
    if (placed_ > drawn_as_a_whole) {
      const std::vector<std::uint32_t> homes = forest.Homes(network_.size());
      placed_ -= static_cast<std::uint32_t>(std::ranges::count(homes, Forest::none)) - 1;
    }
    numbers_.resize(order_.size() + 1);
    for (std::uint32_t number = 0; number < order_.size(); ++number)
      numbers_[order_[number]] = number;
  }

  std::string Write(const Report_options& options) {
    block_.Put(Facts(options));
    for (const Node node : order_) block_.Put(network_.Name(node));
    Put_links();
    block_.Put(forest_.Ks().size());
    for (std::size_t level = 0; level < forest_.Ks().size(); ++level) {
      external_control::Check_for_stop_signal();
      Put_level(level);
    }
    Put_places();
    for (std::size_t level = 0; level < forest_.Ks().size(); ++level) Put_circles(level);
    return block_.Bytes();
  }

 private:
  /// The nodes by their homes, these in the order of a walk that goes into each community before
  /// the next, so that what belongs together is near; those of none behind.
  [[nodiscard]] std::vector<Node> Order() const {
    const std::vector<std::uint32_t> homes = forest_.Homes(network_.size());
    const std::vector<std::uint32_t> ranks = Walk();
    std::vector<Node> order(network_.size());
    std::iota(order.begin(), order.end(), 1U);
    std::ranges::stable_sort(order, {}, [&](Node node) {
      return homes[node] == Forest::none ? forest_.size() : ranks[homes[node]];
    });
    return order;
  }

  [[nodiscard]] std::vector<std::uint32_t> Walk() const {
    std::vector<std::uint32_t> inside(forest_.size(), 1);
    std::uint32_t total = 0;
    for (std::uint32_t place = forest_.size(); place-- > 0;)
      if (forest_.Parent(place) != Forest::none) inside[forest_.Parent(place)] += inside[place];
    std::vector<std::uint32_t> ranks(forest_.size());
    std::vector<std::uint32_t> next(forest_.size());
    for (std::uint32_t place = 0; place < forest_.size(); ++place) {
      const std::uint32_t parent = forest_.Parent(place);
      std::uint32_t& rank = parent == Forest::none ? total : next[parent];
      ranks[place] = rank;
      next[place] = rank + 1;
      rank += inside[place];
    }
    return ranks;
  }

  [[nodiscard]] std::string Facts(const Report_options& options) const {
    if (options.k) (void)results_.Sizes_at(*options.k);  // throws if there is no such level
    const queries::Summary summary = queries::Summary_of(results_);
    const auto recommended = queries::Which_k({summary});
    Json_list levels(Json_list::Kind::array);
    for (const auto& level : summary.levels) levels.Add(Level_facts(level));
    Json_list facts(Json_list::Kind::object);
    facts.Add("version", gns::Json_string(VORLANE_VERSION))
        .Add("title", gns::Json_string(options.title))
        .Add("method", gns::Json_string(Name_of(results_.Method())))
        .Add("finished", Truth(results_.Is_finished()))
        .Add("nodes", std::to_string(network_.size()))
        .Add("links", std::to_string(network_.Link_count()))
        .Add("placed", std::to_string(placed_))
        .Add("drawn", std::to_string(drawn_at_k))
        .Add("levels", levels.Text());
    if (recommended)
      facts.Add("recommended", std::to_string(recommended->level.k))
          .Add("reason", gns::Json_string(recommended->reason));
    if (options.k) facts.Add("k", std::to_string(*options.k));
    return facts.Text();
  }

  void Put_links() {
    const bool directed = results_.Method() == Method::directed;
    const Rows links = network_.Links();
    const gns::Row_index rows(network_.size(), [&](auto enter) {
      for (std::size_t node = 1; node < links.size(); ++node)
        for (const Node other : links[node]) {
          const std::uint32_t from = numbers_[node];
          const std::uint32_t to = numbers_[other];
          if (from >= placed_ || to >= placed_) continue;
          enter(1 + (directed ? from : std::min(from, to)), directed ? to : std::max(from, to));
        }
    });
    for (std::uint32_t number = 0; number < order_.size(); ++number)
      Put_sorted(rows[number + 1], number);
  }

  void Put_sorted(std::span<const std::uint32_t> numbers, std::uint32_t near) {
    sorted_.assign(numbers.begin(), numbers.end());
    std::ranges::sort(sorted_);
    block_.Put_ascending(sorted_, near);
  }

  void Put_level(std::size_t level) {
    const std::uint32_t k = forest_.Ks()[level];
    const std::uint32_t first = forest_.First_of(level);
    const std::uint32_t end = forest_.First_of(level + 1);
    block_.Put(k);
    block_.Put(end - first);
    const Statistics statistics = results_.Statistics_at(k);
    block_.Put(end - first - queries::Summary_of(k, statistics).approximate);
    std::int64_t before = 0;
    std::uint32_t near = 0;
    for (std::uint32_t place = first; place < end; ++place) {
      block_.Put(forest_.Size(place));
      const std::uint32_t parent = forest_.Parent(place);
      const std::int64_t counted =
          parent == Forest::none ? 0 : parent - forest_.First_of(level - 1) + std::int64_t{1};
      block_.Put_signed(counted - before);
      before = counted;
      own_.clear();
      for (const Node node : forest_.Own_nodes(place)) own_.push_back(numbers_[node]);
      Put_sorted(own_, near);
      if (!own_.empty()) near = sorted_.front();
    }
    const Distributions& all = statistics.all;
    for (const Distribution* const distribution :
         {&all.membership, &all.size, &all.overlap, &all.degree})
      Put(*distribution);
  }

  void Put(const Distribution& distribution) {
    block_.Put(distribution.size());
    std::uint32_t before = 0;
    for (const auto& [value, times] : distribution) {
      block_.Put(value - before);
      block_.Put(times);
      before = value;
    }
  }

  /// All in one square, the middle of the plane in its middle.
  void Put_places() {
    double reach = 0;
    for (const layout::Point& place : layout_.nodes)
      reach = std::max({reach, place.x, -place.x, place.y, -place.y});
    Sixteen_bits xs(-reach, 2 * reach);
    Sixteen_bits ys(-reach, 2 * reach);
    for (const Node node : std::span(order_).first(placed_)) {
      xs.Add(layout_.nodes[node].x);
      ys.Add(layout_.nodes[node].y);
    }
    xs.Put(block_);
    ys.Put(block_);
  }

  void Put_circles(std::size_t level) {
    const double radius = layout_.radius;
    Sixteen_bits xs(-radius, 2 * radius);
    Sixteen_bits ys(-radius, 2 * radius);
    Sixteen_bits radii(0, radius);
    for (const std::uint32_t place : Largest(level)) {
      xs.Add(layout_.communities[place].centre.x);
      ys.Add(layout_.communities[place].centre.y);
      radii.Add(layout_.communities[place].radius);
    }
    for (const Sixteen_bits* const values : {&xs, &ys, &radii}) values->Put(block_);
  }

  /// Those that are drawn, the largest first.
  [[nodiscard]] std::vector<std::uint32_t> Largest(std::size_t level) const {
    std::vector<std::uint32_t> places(forest_.First_of(level + 1) - forest_.First_of(level));
    std::iota(places.begin(), places.end(), forest_.First_of(level));
    std::ranges::stable_sort(places, std::ranges::greater(),
                             [&](std::uint32_t place) { return forest_.Size(place); });
    places.resize(std::min(places.size(), drawn_at_k));
    return places;
  }

  const Results& results_;
  Network network_;
  const Forest& forest_;
  const layout::Layout& layout_;
  std::uint32_t placed_ = 0;
  std::vector<Node> order_;             ///< by number in the page: the node
  std::vector<std::uint32_t> numbers_;  ///< by node: its number in the page
  std::vector<std::uint32_t> own_;
  std::vector<std::uint32_t> sorted_;
  Byte_block block_;
};

}  // namespace

std::string Page_data(const Results& results, const Forest& forest, const layout::Layout& layout,
                      const Report_options& options) {
  return Data_writer(results, forest, layout).Write(options);
}

}  // namespace vorlane::report
