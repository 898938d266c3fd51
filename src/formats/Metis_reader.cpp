#include "formats/Metis_reader.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <string_view>

#include "control/Run_control.h"
#include "formats/Cut_field.h"
#include "formats/Number_name.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

constexpr std::uint64_t any = std::numeric_limits<std::uint64_t>::max();

/// What the first line tells.
struct Metis_head {
  std::uint64_t nodes = 0;
  std::uint64_t links = 0;
  std::uint64_t skipped = 0;  ///< numbers in front of the neighbours of a node
  bool has_weights = false;
};

Metis_head Head_of(Cut_field& fields) {
  constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max() - 1;
  Metis_head head;
  head.nodes = fields.Whole_number("the number of nodes", "", 0, most);
  head.links = fields.Whole_number("the number of links", "", 0, any / 2);
  if (fields.Is_at_end()) return head;
  const std::string_view format = fields.Word();
  if (format.size() > 3 || format.find_first_not_of("01") != std::string_view::npos)
    fields.Refuse("three digits of 0 and 1", "They tell of sizes, weights of nodes and of links.");
  const auto digit = [&](std::size_t from_end) {
    return format.size() >= from_end && format[format.size() - from_end] == '1';
  };
  head.has_weights = digit(1);
  head.skipped = digit(2) ? 1 : 0;
  if (!fields.Is_at_end()) {
    const std::uint64_t each = fields.Whole_number("the number of weights of a node", "", 0, most);
    head.skipped *= each;
  }
  head.skipped += digit(3) ? 1 : 0;
  return head;
}

/// Equal for both ends of a link, and for hardly anything else.
std::uint64_t Mark_of(std::uint64_t a, std::uint64_t b, double weight) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
  std::uint64_t mark = std::min(a, b) * odd;
  mark = (mark ^ (mark >> 31U) ^ std::max(a, b)) * odd;
  mark = (mark ^ (mark >> 29U) ^ std::bit_cast<std::uint64_t>(weight)) * odd;
  return mark ^ (mark >> 32U);
}

class Metis_content {
 public:
  Metis_content(const Metis_head& head, bool directed, Link_intake& intake)
      : head_(head),
        directed_(directed),
        intake_(intake),
        expected_neighbour_("a neighbour from 1 to " + std::to_string(head.nodes)) {}

  void Take_node(std::uint64_t node, Cut_field& fields) {
    for (std::uint64_t i = 0; i < head_.skipped; ++i)
      fields.Number("a size or weight of the node", "The first line tells how many there are.");
    const Number_name name(node);
    while (!fields.Is_at_end()) {
      const std::uint64_t other =
          fields.Whole_number(expected_neighbour_, "Nodes are counted from 1.", 1, head_.nodes);
      const double weight =
          head_.has_weights ? fields.Number(expected_weight, "Each neighbour has one behind it.")
                            : 0.0;
      ++ends;
      if (other == node) ++ends;  // both of its ends are here
      balance += (node < other ? 1U : node == other ? 0U : any) * Mark_of(node, other, weight);
      if (directed_ || node <= other) intake_.Take(name.Text(), Number_name(other).Text(), weight);
    }
  }

  std::uint64_t ends = 0;     ///< of links
  std::uint64_t balance = 0;  ///< 0 if each link stands at both ends

 private:
  const Metis_head& head_;
  bool directed_;
  Link_intake& intake_;
  std::string expected_neighbour_;
};

}  // namespace

void Read_metis(Line_reader& reader, bool directed, const std::string& file, Link_intake& intake) {
  Metis_head head;
  std::string_view line;
  const auto next = [&] {
    do {
      external_control::Check_inside_long_stage();
      if (!reader.Next(line)) return false;
    } while (line.starts_with('%'));
    return true;
  };
  const auto refuse = [&](std::size_t at, const std::string& expected, const std::string& found) {
    Refuse_field(file, {at, 0}, {expected, found, "The file isn't whole, or no METIS graph."});
  };
  if (!next()) refuse(1, "the number of nodes", "");
  const std::size_t head_line = reader.Lines_taken();
  Cut_field first_line(file, head_line, line);
  head = Head_of(first_line);
  if (intake.Is_weighted() && !head.has_weights)
    Refuse_field(file, {head_line, 0},
                 {"a third field that ends with 1", Trimmed(line, " \t\r"),
                  "Runs with -w, -W or -I need weights of links."});
  Metis_content content(head, directed, intake);
  for (std::uint64_t node = 1; node <= head.nodes; ++node) {
    if (!next())
      refuse(reader.Lines_taken() + 1,
             "a line for each of " + std::to_string(head.nodes) + " nodes", "");
    Cut_field fields(file, reader.Lines_taken(), line);
    content.Take_node(node, fields);
  }
  while (next()) {
    Cut_field fields(file, reader.Lines_taken(), line);
    if (fields.Is_at_end()) continue;
    fields.Word();
    fields.Refuse("no more lines than nodes", "The first line tells how many nodes there are.");
  }
  if (content.ends != head.links * 2)
    refuse(head_line, "the number of links, " + std::to_string(content.ends / 2),
           std::to_string(head.links));
  if (content.balance != 0)
    refuse(head_line, "each link at both of its nodes, with the same weight", "one that isn't");
}

}  // namespace gns
