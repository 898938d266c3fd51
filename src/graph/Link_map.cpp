#include "graph/Link_map.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "graph/Pair_sort.h"

namespace gns {

namespace {

constexpr std::uint64_t hash_half = 0xFFFFFFFF00000000U;

/// Folds a text into 64 bits, eight bytes at a time.
std::uint64_t Hash(std::string_view text) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = text.size() * odd;
  for (std::size_t at = 0; at < text.size(); at += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, std::min(sizeof word, text.size() - at));
    hash = (hash ^ word) * odd;
    hash ^= hash >> 29U;
  }
  return hash * odd;
}

/// The first eight bytes as a number that orders as they do; shorter texts are filled with zeros.
std::uint64_t Leading_bytes(std::string_view text) {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < sizeof key; ++i)
    key = (key << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  return key;
}

}  // namespace

void Link_map_builder::Add(std::string_view first, std::string_view second, double weight) {
  const std::uint32_t from = Number_of(first);
  pairs_.push_back({from, Number_of(second)});
  if (weighted_) weights_.push_back(weight);
}

std::uint32_t Link_map_builder::Number_of(std::string_view name) {
  if (names_.size() >= slots_.size() / 2) Grow_slots();
  const std::uint64_t hash = Hash(name);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const std::uint64_t slot = slots_[at];
    if (slot == 0) {
      const std::uint32_t number = names_.Add(name);
      slots_[at] = (hash & hash_half) | (number + 1);
      return number;
    }
    const auto number = static_cast<std::uint32_t>(slot) - 1;
    if (((slot ^ hash) & hash_half) == 0 && names_[number] == name) return number;
  }
}

void Link_map_builder::Grow_slots() {
  slots_.assign(std::max<std::size_t>(1024, slots_.size() * 2), 0);
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t number = 0; number < names_.size(); ++number) {
    const std::uint64_t hash = Hash(names_[number]);
    std::size_t at = hash & mask;
    while (slots_[at] != 0) at = (at + 1) & mask;
    slots_[at] = (hash & hash_half) | (number + 1);
  }
}

/// Puts the names in ascending order and yields the new number of each old one.
std::vector<std::uint32_t> Link_map_builder::Sort_names() {
  struct Entry {
    std::uint64_t leading;
    std::uint32_t number;
  };
  std::vector<Entry> entries(names_.size());
  for (std::uint32_t i = 0; i < names_.size(); ++i) entries[i] = {Leading_bytes(names_[i]), i};
  std::sort(entries.begin(), entries.end(), [this](const Entry& a, const Entry& b) {
    return a.leading != b.leading ? a.leading < b.leading : names_[a.number] < names_[b.number];
  });

  Name_table sorted;
  sorted.Reserve(names_.size(), names_.Bytes());
  std::vector<std::uint32_t> new_numbers(names_.size());
  for (const Entry& entry : entries) new_numbers[entry.number] = sorted.Add(names_[entry.number]);
  names_ = std::move(sorted);
  return new_numbers;
}

Link_map Link_map_builder::Build() {
  slots_ = {};
  const std::vector<std::uint32_t> new_numbers = Sort_names();
  for (Index_pair& pair : pairs_) pair = {new_numbers[pair.first], new_numbers[pair.second]};
  Sort_pairs(pairs_, weights_, names_.size());
  Fold_equal_pairs(pairs_, weights_);

  Link_map links;
  links.names_ = std::make_shared<const Name_table>(std::move(names_));
  links.pairs_ = std::move(pairs_);
  links.weights_ = std::move(weights_);
  return links;
}

}  // namespace gns
