#include "queries/Diff.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include "queries/Similarity.h"

namespace vorlane::queries {

namespace {

constexpr double least_alike = 0.3;

/// Nodes of the second network by their numbers in the first; those that it lacks are numbered
/// behind its own.
class Common_numbers {
 public:
  Common_numbers(const Network& first, const Network& second) : count_(first.size()) {
    numbers_.resize(second.size() + std::size_t{1});
    for (Node node = 1; node <= second.size(); ++node) {
      const std::optional<Node> same = first.Find(second.Name(node));
      numbers_[node] = same ? *same : ++count_;
    }
  }

  [[nodiscard]] Node Count() const { return count_; }

  [[nodiscard]] Rows Of(const Rows& communities) const {
    struct Renumbered {
      std::vector<std::size_t> starts = {0};
      std::vector<Node> nodes;
    };
    const auto rows = std::make_shared<Renumbered>();
    for (const auto community : communities) {
      for (const Node node : community) rows->nodes.push_back(numbers_[node]);
      std::ranges::sort(rows->nodes.begin() + static_cast<std::ptrdiff_t>(rows->starts.back()),
                        rows->nodes.end());
      rows->starts.push_back(rows->nodes.size());
    }
    return {rows->starts, rows->nodes, rows};
  }

 private:
  std::vector<Node> numbers_;
  Node count_;
};

/// The likest community of the other cover, and the one that holds most of it.
struct Relatives {
  std::optional<std::uint32_t> likest;
  double jaccard = 0.0;
  std::optional<std::uint32_t> around;  ///< holds more than half of the nodes; the likest of such
  double jaccard_around = 0.0;
};

std::vector<Relatives> Relatives_of(const Rows& communities, const Rows& others, Node node_count) {
  Shared_nodes shared_nodes(node_count, others);
  std::vector<Relatives> all;
  for (const auto community : communities) {
    Relatives relatives;
    shared_nodes.For_each(community, [&](std::uint32_t other, std::uint32_t shared) {
      const std::size_t either = community.size() + others[other].size() - shared;
      const double jaccard = static_cast<double>(shared) / static_cast<double>(either);
      if (jaccard > relatives.jaccard) {
        relatives.jaccard = jaccard;
        relatives.likest = other;
      }
      if (2 * std::size_t{shared} > community.size() && jaccard > relatives.jaccard_around) {
        relatives.jaccard_around = jaccard;
        relatives.around = other;
      }
    });
    all.push_back(relatives);
  }
  return all;
}

/// Finds the changes from one cover to another.
class Changes {
 public:
  explicit Changes(const Covers& covers)
      : covers_(covers),
        before_(Relatives_of(covers.first, covers.second, covers.node_count)),
        after_(Relatives_of(covers.second, covers.first, covers.node_count)) {}

  std::vector<Change> Find() {
    for (std::uint32_t i = 0; i < before_.size(); ++i) {
      const Relatives& of = before_[i];
      if (Is_same(i, of))
        Add(Fate_of(i, *of.likest), i, of.likest, of.jaccard);
      else if (of.around)
        Add(Fate::merged, i, of.around, of.jaccard_around);
      else
        Add(Fate::died, i, std::nullopt, 0.0);
    }
    for (std::uint32_t i = 0; i < after_.size(); ++i) {
      const Relatives& of = after_[i];
      if (of.likest && Is_same(*of.likest, before_[*of.likest]) && before_[*of.likest].likest == i)
        continue;
      if (of.around)
        Add(Fate::split, of.around, i, of.jaccard_around);
      else
        Add(Fate::born, std::nullopt, i, 0.0);
    }
    return std::move(changes_);
  }

 private:
  [[nodiscard]] bool Is_same(std::uint32_t before, const Relatives& of) const {
    return of.likest && of.jaccard >= least_alike && after_[*of.likest].likest == before;
  }

  [[nodiscard]] Fate Fate_of(std::uint32_t before, std::uint32_t after) const {
    const auto was = covers_.first[before];
    const auto is = covers_.second[after];
    if (is.size() != was.size()) return is.size() > was.size() ? Fate::grown : Fate::shrunk;
    return std::ranges::equal(was, is) ? Fate::kept : Fate::changed;
  }

  void Add(Fate fate, std::optional<std::uint32_t> before, std::optional<std::uint32_t> after,
           double jaccard) {
    Change change = {fate, before, after, 0, 0, jaccard};
    if (before) change.size_before = covers_.first[*before].size();
    if (after) change.size_after = covers_.second[*after].size();
    changes_.push_back(change);
  }

  const Covers& covers_;
  std::vector<Relatives> before_;
  std::vector<Relatives> after_;
  std::vector<Change> changes_;
};

Rows Members_at(std::uint32_t k, const Results& results) {
  const bool is_there = std::ranges::find(results.Ks(), k) != results.Ks().end();
  return is_there ? results.Communities_at(k).members : Rows();
}

std::vector<std::uint32_t> Ks_of_either(const Results& first, const Results& second) {
  std::vector<std::uint32_t> ks;
  std::ranges::set_union(first.Ks(), second.Ks(), std::back_inserter(ks), std::greater());
  return ks;
}

}  // namespace

std::vector<Change> Changes_between(const Covers& covers) { return Changes(covers).Find(); }

std::vector<Level_diff> Diff_of(const Results& first, const Results& second,
                                std::optional<std::uint32_t> k) {
  const Common_numbers numbers(first.Network(), second.Network());
  std::vector<Level_diff> diffs;
  for (const std::uint32_t at : k ? std::vector{*k} : Ks_of_either(first, second)) {
    const Covers covers = {numbers.Count(), Members_at(at, first),
                           numbers.Of(Members_at(at, second))};
    diffs.push_back({at, Changes_between(covers), Omega_index(covers), Overlapping_nmi(covers)});
  }
  return diffs;
}

}  // namespace vorlane::queries
