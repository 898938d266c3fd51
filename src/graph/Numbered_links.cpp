#include "graph/Numbered_links.h"

#include <array>
#include <charconv>
#include <utility>

#include "control/Run_control.h"

namespace gns {

namespace {

/// Calls use(number) for the numbers from 1 to `count` in the order of their decimals as texts.
template <typename Use>
void For_each_in_order_of_texts(Node_index count, Use use) {
  constexpr std::uint64_t base = 10;
  std::uint64_t number = 1;
  for (Node_index left = count; left > 0; --left) {
    external_control::Check_inside_long_stage();
    use(static_cast<Node_index>(number));
    if (number * base <= count) {
      number *= base;
      continue;
    }
    while (number % base == base - 1 || number == count) number /= base;
    ++number;
  }
}

}  // namespace

Link_map Numbered_links::Build(std::vector<Node_index>& number_of_name) {
  constexpr Node_index none = ~Node_index{0};
  std::vector<Node_index> name_of_number(count_ + std::size_t{1}, none);
  for (const Index_pair& pair : pairs_)
    for (const Node_index node : {pair.first, pair.second}) name_of_number[node] = 0;

  Name_table names;
  number_of_name.clear();
  For_each_in_order_of_texts(count_, [&](Node_index number) {
    if (name_of_number[number] == none) return;  // no link has it
    constexpr std::size_t most_digits = 10;
    std::array<char, most_digits> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    name_of_number[number] = names.Add({text.data(), static_cast<std::size_t>(end - text.data())});
    number_of_name.push_back(number);
  });
  for (Index_pair& pair : pairs_) pair = {name_of_number[pair.first], name_of_number[pair.second]};
  return Link_map::From_numbers(std::move(names), std::move(pairs_), std::move(weights_));
}

}  // namespace gns
