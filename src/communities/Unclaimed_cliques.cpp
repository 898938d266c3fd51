#include "communities/Unclaimed_cliques.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "communities/Coms_funcs.h"
#include "control/Polled_resize.h"
#include "foundation/Processor_level.h"

namespace gns {

namespace {

Node_index Node_limit(const Clique_vector& cliques) {
  const std::vector<Node_index>& members = cliques.Values();
  return members.empty() ? 1 : *std::ranges::max_element(members) + 1;
}

constexpr unsigned half = 32;  ///< bits of the lower half of a choice

constexpr std::uint32_t List_of(std::uint64_t choice) { return static_cast<std::uint32_t>(choice); }

/// What coming to a list costs, in entries read.
constexpr std::uint64_t price_of_a_list = 64;

/// Entries to be read, with the price of coming to their lists.
std::uint64_t Reading_cost(std::span<const std::uint64_t> choices) {
  std::uint64_t cost = choices.size() * price_of_a_list;
  for (const std::uint64_t choice : choices) cost += choice >> half;
  return cost;
}

}  // namespace

Unclaimed_cliques::Unclaimed_cliques(const Clique_vector& cliques)
    : cliques_(cliques),
      node_limit_(Node_limit(cliques)),
      largest_(Max_clique_size_in_cl_vec(cliques)),
      met_(cliques.size(), 0),
      marked_(node_limit_, 0) {
  Deal_turns();
  Sign();
  Lay_out_lists();
}

/// Numbers the nodes from the most frequent on.
void Unclaimed_cliques::Deal_turns() {
  std::vector<std::uint32_t> frequency(node_limit_, 0);
  for (const Node_index node : cliques_.Values()) ++frequency[node];
  std::vector<Node_index> by_frequency(node_limit_);
  std::iota(by_frequency.begin(), by_frequency.end(), 0U);
  std::sort(by_frequency.begin(), by_frequency.end(),
            [&](Node_index a, Node_index b) { return frequency[a] > frequency[b]; });
  turns_.resize(node_limit_);
  for (std::uint32_t turn = 0; turn < node_limit_; ++turn) turns_[by_frequency[turn]] = turn;
}

void Unclaimed_cliques::Sign() {
  external_control::Assign_zeros(short_signatures_, cliques_.size());
  external_control::Assign_zeros(long_signatures_, cliques_.size());
  for (std::size_t clique = 0; clique < cliques_.size(); ++clique) {
    external_control::Check_inside_long_stage();
    for (const Node_index node : cliques_[clique]) {
      short_signatures_[clique].Add(turns_[node]);
      long_signatures_[clique].Add(turns_[node]);
    }
  }
}

/// Calls use(index) for each list that a clique stands in.
template <typename Use>
void Unclaimed_cliques::For_each_list_of(Clique_index clique, Use use) const {
  const Node_span members = cliques_[clique];
  for (const Node_index node : members) use(node);
  use(node_limit_ + static_cast<List_index>(members.size()));
  if (!alike_.Built()) return;
  for (const std::uint32_t bucket : alike_.Of(clique)) use(node_limit_ + largest_ + 1 + bucket);
}

/// Gives each list its place, for all cliques.
void Unclaimed_cliques::Lay_out_lists() {
  lists_.assign(std::size_t{node_limit_} + largest_ + 1 + alike_.Count(), List{});
  for (Clique_index clique = 0; clique < cliques_.size(); ++clique) {
    external_control::Check_inside_long_stage();
    For_each_list_of(clique, [this](List_index list) { ++lists_[list].length; });
  }
  std::size_t start = 0;
  std::uint32_t longest = 0;
  for (List& list : lists_) {
    list.start = start;
    start += list.length;
    longest = std::max(longest, list.length);
  }
  passed_.resize(longest + std::size_t{1});
  external_control::Assign_zeros(list_signatures_, start);
  external_control::Assign_zeros(list_cliques_, start);
}

void Unclaimed_cliques::Fill_lists() {
  std::vector<Clique_index> by_size(cliques_.size());
  std::iota(by_size.begin(), by_size.end(), 0U);
  std::stable_sort(by_size.begin(), by_size.end(), [this](Clique_index a, Clique_index b) {
    external_control::Check_inside_long_stage();
    return cliques_[a].size() > cliques_[b].size();
  });
  for (List& list : lists_) list.length = 0;
  for (const Clique_index clique : by_size) {
    external_control::Check_inside_long_stage();
    For_each_list_of(clique, [this, clique](List_index index) {
      List& list = lists_[index];
      const std::size_t place = list.start + list.length++;
      list_signatures_[place] = short_signatures_[clique];
      list_cliques_[place] = clique;
    });
  }
}

/// Dropping claimed cliques moves entries about among those listed, so a list keeps its bigger
/// cliques in front as long as the least size only falls.
void Unclaimed_cliques::Reset(std::size_t least_size) {
  constexpr std::uint64_t dear_question = 4096;  // entries read; buckets pay from here on
  const bool dense = entries_read_ > std::uint64_t{question_} * dear_question;
  if (dense && !alike_.Built()) {
    alike_.Build(cliques_, turns_);
    Lay_out_lists();
    least_size_ = 0;
  }
  if (least_size_ == 0 || least_size > least_size_) Fill_lists();
  least_size_ = least_size;
  question_ = 1;
  entries_read_ = 0;
  std::ranges::fill(met_, 0U);
  for (std::size_t index = 0; index < lists_.size(); ++index) {
    List& list = lists_[index];
    const std::size_t next =
        index + 1 < lists_.size() ? lists_[index + 1].start : list_cliques_.size();
    const auto first = list_cliques_.begin() + static_cast<std::ptrdiff_t>(list.start);
    const auto last = list_cliques_.begin() + static_cast<std::ptrdiff_t>(next);
    const auto end = std::partition_point(
        first, last, [&](Clique_index clique) { return cliques_[clique].size() >= least_size; });
    list.length = list.unclaimed = static_cast<std::uint32_t>(end - first);
    list.asked_for = 0;
  }
}

void Unclaimed_cliques::Claim(Clique_index clique) {
  met_[clique] = claimed;
  if (cliques_[clique].size() < least_size_) return;
  For_each_list_of(clique, [this](List_index list) { --lists_[list].unclaimed; });
}

void Unclaimed_cliques::Append_neighbours(Clique_index clique, std::uint32_t overlap,
                                          std::vector<Clique_index>& neighbours) {
  const std::span<const Choice> chosen = Choose_lists(clique, overlap);
  candidates_.clear();
  const Short_signature question = short_signatures_[clique].As_question();
  for (const Choice choice : chosen) {
    List& list = lists_[List_of(choice)];
    constexpr std::uint32_t most_claimed_share = 4;  // a list is cleaned when a fourth is claimed
    if (list.length - list.unclaimed > list.length / most_claimed_share) Drop_claimed(list);
    Meet(list, question, overlap);
  }
  if (candidates_.empty()) return;
  Keep_by_signature(clique, overlap);
  Append_checked(clique, overlap, neighbours);
}

/// Begins a question: collects the nodes of the clique that have unclaimed cliques.
void Unclaimed_cliques::Collect_choices(Clique_index clique) {
  const std::uint32_t question_before = question_++;
  std::size_t count = 0;
  std::size_t fresh_count = 0;
  for (const Node_index node : cliques_[clique]) {
    List& list = lists_[node];
    const bool fresh = list.unclaimed != 0 && list.asked_for != question_before;
    list.asked_for = question_;
    choices_[count] = fresh_[fresh_count] = Choice_of(node);
    count += list.unclaimed != 0 ? 1U : 0U;
    fresh_count += fresh ? 1U : 0U;
  }
  choices_.resize(count);
  fresh_.resize(fresh_count);
}

/// Begins a question and yields the lists to be read: none if fewer than `overlap` nodes of the
/// clique have an unclaimed clique.
std::span<const Unclaimed_cliques::Choice> Unclaimed_cliques::Choose_lists(Clique_index clique,
                                                                           std::uint32_t overlap) {
  choices_.resize(cliques_[clique].size() + 1);
  fresh_.resize(choices_.size());
  Collect_choices(clique);
  if (choices_.size() < overlap || fresh_.empty()) return {};
  std::span<const Choice> chosen = fresh_;
  const std::size_t lists = choices_.size() - overlap + 1;
  const std::uint64_t fresh_cost = Reading_cost(fresh_);
  if (fresh_cost > lists * price_of_a_list) {
    const auto first = choices_.begin();
    if (lists < choices_.size())
      std::nth_element(first, first + static_cast<std::ptrdiff_t>(lists - 1), choices_.end());
    const std::span<const Choice> shortest(choices_.data(), lists);
    if (Reading_cost(shortest) < fresh_cost) chosen = shortest;
  }
  chosen = Choose_among_all(clique, overlap, chosen);
  for (const Choice choice : chosen)
    __builtin_prefetch(list_signatures_.data() + lists_[List_of(choice)].start);
  return chosen;
}

/// Compares what was chosen, if it is dear, with the lists of sizes and buckets.
std::span<const Unclaimed_cliques::Choice> Unclaimed_cliques::Choose_among_all(
    Clique_index clique, std::uint32_t overlap, std::span<const Choice> chosen) {
  constexpr std::uint64_t dear = 1024;
  constexpr unsigned splits = std::size(Alike_buckets::splits);
  std::uint64_t least_cost = Reading_cost(chosen);
  if (least_cost < dear) return chosen;
  for (unsigned split = 0; split <= splits; ++split) {
    if (split < splits && !alike_.Built()) continue;
    Collect_alike(clique, overlap, split);
    const std::uint64_t cost = Reading_cost(other_);
    if (cost >= least_cost) continue;
    least_cost = cost;
    best_.swap(other_);
    chosen = best_;
  }
  return chosen;
}

/// Collects the buckets of a split, and the sizes of which a clique differs by too many nodes to be
/// in a common bucket for sure; the sizes all, if there is no such split.
void Unclaimed_cliques::Collect_alike(Clique_index clique, std::uint32_t overlap, unsigned split) {
  other_.clear();
  std::size_t largest_alike = 0;
  if (split < std::size(Alike_buckets::splits)) {
    for (const std::uint32_t bucket : alike_.Of(clique, split))
      other_.push_back(Choice_of(node_limit_ + largest_ + 1 + bucket));
    const std::size_t size = cliques_[clique].size();
    const std::size_t reach = std::size_t{2} * overlap + Alike_buckets::splits[split] - 1;
    largest_alike = reach > size ? reach - size : 0;
  }
  for (std::size_t size = std::max(largest_alike + 1, least_size_); size <= largest_; ++size) {
    const List_index list = node_limit_ + static_cast<List_index>(size);
    if (lists_[list].unclaimed != 0) other_.push_back(Choice_of(list));
  }
}

Unclaimed_cliques::Choice Unclaimed_cliques::Choice_of(List_index list) const {
  return (Choice{lists_[list].unclaimed} << half) | list;
}

void Unclaimed_cliques::Drop_claimed(List& list) {
  Short_signature* const signatures = list_signatures_.data() + list.start;
  Clique_index* const cliques = list_cliques_.data() + list.start;
  std::uint32_t kept = 0;
  for (std::uint32_t i = 0; i < list.length; ++i) {
    if (!Is_unclaimed(cliques[i])) continue;
    std::swap(cliques[i], cliques[kept]);
    std::swap(signatures[i], signatures[kept]);
    ++kept;
  }
  list.length = kept;
}

/// Adds the unclaimed cliques of a list to the candidates, as far as their signatures allow.
void Unclaimed_cliques::Meet(const List& list, Short_signature question, std::uint32_t overlap) {
  const Short_signature* const signatures = list_signatures_.data() + list.start;
  const Clique_index* const cliques = list_cliques_.data() + list.start;
  entries_read_ += list.length;
  const std::uint32_t least_bound = std::min(overlap, Short_signature::bits);
  std::uint32_t* const passed = passed_.data();
  std::size_t count = 0;
  Run_at_processor_level([&] {
    const std::uint32_t length = list.length;
    std::size_t end = 0;
    for (std::uint32_t i = 0; i < length; ++i) {
      passed[end] = i;
      end += signatures[i].Shared_at_most(question) >= least_bound ? 1U : 0U;
    }
    count = end;
  });
  for (std::size_t i = 0; i < count; ++i) {
    const Clique_index met = cliques[passed[i]];
    if (met_[met] >= question_) continue;  // claimed, or met in this question before
    met_[met] = question_;
    candidates_.push_back(met);
    __builtin_prefetch(&long_signatures_[met]);
  }
}

void Unclaimed_cliques::Keep_by_signature(Clique_index clique, std::uint32_t overlap) {
  const Long_signature question = long_signatures_[clique].As_question();
  const std::uint32_t least_bound = std::min(overlap, Long_signature::bits);
  std::size_t kept = 0;
  Run_at_processor_level([&] {
    for (const Clique_index candidate : candidates_) {
      candidates_[kept] = candidate;
      kept += long_signatures_[candidate].Shared_at_most(question) >= least_bound ? 1U : 0U;
    }
  });
  candidates_.resize(kept);
}

void Unclaimed_cliques::Append_checked(Clique_index clique, std::uint32_t overlap,
                                       std::vector<Clique_index>& neighbours) {
  if (candidates_.empty()) return;
  for (const Node_index node : cliques_[clique]) marked_[node] = 1;
  const auto first = static_cast<std::ptrdiff_t>(neighbours.size());
  for (const Clique_index candidate : candidates_) {
    std::uint32_t shared = 0;
    for (const Node_index node : cliques_[candidate]) shared += marked_[node];
    if (shared >= overlap) neighbours.push_back(candidate);
  }
  for (const Node_index node : cliques_[clique]) marked_[node] = 0;
  std::sort(neighbours.begin() + first, neighbours.end());
}

}  // namespace gns
