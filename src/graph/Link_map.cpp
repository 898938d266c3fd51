#include "graph/Link_map.h"

#include <algorithm>
#include <numeric>

#include "control/Run_control.h"
#include "graph/Pair_sort.h"

namespace gns {

namespace {

/// The first eight bytes as a number that orders as they do; shorter texts are filled with zeros.
std::uint64_t Leading_bytes(std::string_view text) {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < sizeof key; ++i)
    key = (key << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  return key;
}

/// Puts the names in ascending order and yields the new number of each old one.
std::vector<std::uint32_t> Sort_names(Name_table& names) {
  struct Entry {
    std::uint64_t leading;
    std::uint32_t number;
  };
  std::vector<Entry> entries;
  entries.reserve(names.size());
  for (std::uint32_t i = 0; i < names.size(); ++i) {
    external_control::Check_inside_long_stage();
    entries.push_back({Leading_bytes(names[i]), i});
  }
  std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
    external_control::Check_inside_long_stage();
    return a.leading != b.leading ? a.leading < b.leading : names[a.number] < names[b.number];
  });

  Name_table sorted;
  sorted.Reserve(names.size(), names.Bytes());
  std::vector<std::uint32_t> new_numbers(names.size());
  for (const Entry& entry : entries) {
    external_control::Check_inside_long_stage();
    new_numbers[entry.number] = sorted.Add(names[entry.number]);
  }
  names = std::move(sorted);
  return new_numbers;
}

}  // namespace

void Link_map_builder::Add(std::string_view first, std::string_view second, double weight) {
  if (waiting_.Is_full()) Number_waiting_names();
  waiting_.Add(first, names_);
  waiting_.Add(second, names_);
  if (weighted_) weights_.push_back(weight);
}

void Link_map_builder::Number_waiting_names() {
  static_assert(Name_queue::most % 2 == 0, "links must not be cut in two");
  bool is_first = true;
  waiting_.Take_numbers(names_, [&](std::uint32_t number) {
    if (is_first)
      pairs_.push_back({number, 0});
    else
      pairs_.back().second = number;
    is_first = !is_first;
  });
}

Link_map Link_map_builder::Build() {
  Number_waiting_names();
  Name_table names = names_.Take();
  const std::vector<std::uint32_t> new_numbers = Sort_names(names);
  for (Index_pair& pair : pairs_) {
    external_control::Check_inside_long_stage();
    pair = {new_numbers[pair.first], new_numbers[pair.second]};
  }
  return Link_map::From_numbers(std::move(names), std::move(pairs_), std::move(weights_));
}

Link_map Link_map::From_numbers(Name_table names, std::vector<Index_pair> pairs,
                                std::vector<double> weights) {
  Sort_pairs(pairs, weights, names.size());
  Fold_equal_pairs(pairs, weights);
  Link_map links;
  links.names_ = std::move(names);
  links.pairs_ = std::move(pairs);
  links.weights_ = std::move(weights);
  return links;
}

}  // namespace gns
