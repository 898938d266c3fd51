#include "engine/Results_bound.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/Joined_cliques.h"
#include "engine/K_clique_counts.h"
#include "foundation/text/Decimal_digits.h"

namespace gns {

namespace {

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

std::uint64_t Rounded_up(double value) {
  constexpr double beyond = 1.8e19;
  return value < beyond ? static_cast<std::uint64_t>(std::ceil(value)) : unlimited;
}

double Digits(double number) { return Decimal_digits(Rounded_up(number)); }

/// Adds up the files of one level after the other.
class Files_of_levels {
 public:
  Files_of_levels(const Levels_input& input, std::size_t header_bytes)
      : nodes_(input.node_count),
        header_bytes_(static_cast<double>(header_bytes)),
        approximate_(input.exact_clique_count < input.cliques.size()) {}

  void Add_percolation(const Level_counts& c) {
    const double index = Index_digits(c.communities);
    Add_file(c.members, c.member_bytes + c.communities * (index + member_line));
    Add_file(c.cliques, c.clique_bytes + c.communities * (index + member_line));
    Add_file(c.links, c.link_bytes + c.communities * (index + head_of_links));
    Add_rest(c, approximate_ && c.communities > 0 ? 3 : 1);
  }

  /// In the worst case each k-clique is a community of its own.
  void Add_intensity(const K_clique_counts::Figures& found, std::uint32_t k) {
    const double count = found.k_cliques;
    const double index = Index_digits(count);
    const double members = count * k;
    Add_file(members, found.name_bytes + count * (index + member_line));
    Add_file(members, found.name_bytes + count * (index + member_line));
    Add_file(members * (k - 1.0) / 2,
             found.name_bytes * (k - 1.0) + count * (index + head_of_links));
    Level_counts c;
    c.communities = count;
    c.members = members;
    c.second_size = members;
    Add_rest(c, 1);
  }

  [[nodiscard]] Results_bound Sum(std::uint64_t levels) const {
    return {Rounded_up(entries_), Rounded_up(files_), levels, Rounded_up(bytes_),
            Rounded_up(pair_bytes_)};
  }

 private:
  static constexpr double member_line = 3;    ///< colon, blank, end of line
  static constexpr double head_of_links = 2;  ///< colon, end of line
  static constexpr double pair_line = 3;      ///< two blanks, end of line

  [[nodiscard]] double Index_digits(double count) const {
    return Digits(std::max(count - 1, 0.0)) + (approximate_ ? 1 : 0);
  }

  void Add_file(double entries, double body) {
    constexpr double longest_title = 100;  // with the remark on approximate communities
    entries_ += entries;
    bytes_ += body + longest_title + header_bytes_;
    files_ += 1;
  }

  /// Values that add up to `sum` are about the square root of twice the sum, if all differ.
  static double Different(double sum) { return std::floor(std::sqrt(2 * sum)) + 1; }

  void Add_distribution(double lines, double greatest_value, double greatest_count) {
    constexpr double blank_and_end = 2;
    constexpr double last_line = 1;
    Add_file(lines,
             lines * (Digits(greatest_value) + Digits(greatest_count) + blank_and_end) + last_line);
  }

  /// The graph of the communities and so many sets of distributions.
  void Add_rest(const Level_counts& c, int sets) {
    const double nodes = nodes_;
    const double pairs = c.communities * std::max(c.communities - 1, 0.0) / 2;
    Add_file(0, 0);
    pair_bytes_ += pairs * (2 * Index_digits(c.communities) + pair_line + Digits(nodes));
    for (; sets > 0; --sets) {
      Add_distribution(std::min(Different(c.members), nodes) + 1, c.communities, nodes);
      Add_distribution(std::min(Different(c.members), c.communities), nodes, c.communities);
      Add_distribution(std::min({c.second_size, nodes, pairs}), nodes, pairs);
      Add_distribution(std::min(Different(2 * pairs), c.communities), c.communities, c.communities);
    }
  }

  double nodes_;
  double header_bytes_;
  bool approximate_;
  double entries_ = 0.0;
  double files_ = 0.0;
  double bytes_ = 0.0;
  double pair_bytes_ = 0.0;
};

}  // namespace

std::uint64_t Results_bound::On_disk(std::uint64_t block_size) const {
  const double blocks = static_cast<double>(files) + static_cast<double>(directories);
  return Rounded_up(static_cast<double>(bytes) + blocks * static_cast<double>(block_size));
}

Results_bound Bound_of_results(const Levels_input& input, const Node_names& names,
                               std::size_t header_bytes, std::uint32_t largest_k,
                               std::uint32_t least_k) {
  Files_of_levels files(input, header_bytes);
  if (largest_k < least_k) return files.Sum(0);
  if (input.intensity_threshold) {
    const K_clique_counts k_cliques(input.cliques, names);
    for (std::uint64_t k = least_k; k <= largest_k; ++k) {
      const auto level = static_cast<std::uint32_t>(k);
      files.Add_intensity(k_cliques.At(level), level);
    }
  } else {
    Joined_cliques joined(input.cliques, input.exact_clique_count, input.index_links, names);
    for (std::uint64_t k = std::uint64_t{largest_k} + 1; k-- > least_k;)
      files.Add_percolation(joined.At(static_cast<std::uint32_t>(k)));
  }
  return files.Sum(largest_k - least_k + std::uint64_t{1});
}

}  // namespace gns
