#include "graph/Numbered_links.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>
#include <string_view>
#include <utility>

#include "control/Run_control.h"

namespace gns {

namespace {

/// Calls use(number, text) for the numbers from 1 to `count` in the order of their decimals as
/// texts.
template <typename Use>
void For_each_in_order_of_decimals(Node_index count, Use use) {
  constexpr std::uint64_t base = 10;
  std::uint64_t number = 1;
  for (Node_index left = count; left > 0; --left) {
    constexpr std::size_t most_digits = 10;
    std::array<char, most_digits> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    use(static_cast<Node_index>(number), std::string_view(text.data(), end));
    if (number * base <= count) {
      number *= base;
      continue;
    }
    while (number % base == base - 1 || number == count) number /= base;
    ++number;
  }
}

/// The same for the names that the numbers are called by.
template <typename Use>
void For_each_in_order_of_names(const Name_table& called, Use use) {
  std::vector<Node_index> numbers(called.size());
  std::iota(numbers.begin(), numbers.end(), Node_index{1});
  std::ranges::stable_sort(numbers, {}, [&](Node_index number) { return called[number - 1]; });
  for (const Node_index number : numbers) use(number, called[number - 1]);
}

}  // namespace

Link_map Numbered_links::Build(std::vector<Node_index>& number_of_name, const Name_table* called) {
  constexpr Node_index none = ~Node_index{0};
  std::vector<Node_index> name_of_number(count_ + std::size_t{1}, none);
  for (const Index_pair& pair : pairs_)
    for (const Node_index node : {pair.first, pair.second}) name_of_number[node] = 0;

  Name_table names;
  number_of_name.clear();
  const auto take = [&](Node_index number, std::string_view text) {
    external_control::Check_inside_long_stage();
    if (name_of_number[number] == none) return;  // no link has it
    name_of_number[number] = names.Add(text);
    number_of_name.push_back(number);
  };
  if (called)
    For_each_in_order_of_names(*called, take);
  else
    For_each_in_order_of_decimals(count_, take);
  for (Index_pair& pair : pairs_) pair = {name_of_number[pair.first], name_of_number[pair.second]};
  return Link_map::From_numbers(std::move(names), std::move(pairs_), std::move(weights_));
}

}  // namespace gns
