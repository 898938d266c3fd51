#include "files/Level_reader.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "files/Read_data.h"
#include "files/Results_names.h"
#include "files/Row_file.h"
#include "foundation/Errors.h"
#include "foundation/io/Line_reader.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

/// Calls add(word) for each word of the rows; it yields false for one that can't be.
template <typename Add>
Read_rows Rows_of(const std::string& file_name, Add add) {
  Read_rows read;
  read.exact_count = Read_row_file(
      file_name, [&](std::string_view word) { return add(word, read.rows); },
      [&] { read.rows.Close_row(); });
  return read;
}

bool Holds_word(std::string_view line, std::string_view word) {
  for (std::size_t at = line.find(word); at != std::string_view::npos;
       at = line.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    if ((at == 0 || line[at - 1] == ' ') && (end == line.size() || line[end] == ' ')) return true;
  }
  return false;
}

/// Calls use(row, what stands behind the colon) for each row, without a look at it.
template <typename Use>
void For_each_row(const std::string& file_name, Use use) {
  std::size_t row = 0;
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  for (std::string_view line; reader.Next(line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t colon = line.find(':');
    if (colon != std::string_view::npos) use(row, line.substr(colon + 1));
    ++row;
  }
}

}  // namespace

bool Has_line_with(const std::string& file_name, std::string_view name) {
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  for (std::string_view line; reader.Next(line);)
    if (!line.starts_with('#') && Holds_word(line, name)) return true;
  return false;
}

Read_rows Read_rows_of_names(const std::string& file_name, const Node_of_name& node_of) {
  return Rows_of(file_name, [&](std::string_view name, Row_array<Node_index>& rows) {
    const std::optional<Node_index> node = node_of(name);
    if (node) rows.Append(*node);
    return node.has_value();
  });
}

Level_reader::Level_reader(const std::string& results_dir, Method method, std::uint32_t k)
    : directory_(results_names::Dir_of_k(results_dir, k)), method_(method) {}

std::string Level_reader::Path(const std::string& base_name) const {
  return results_names::In_dir_of_k(directory_, Flag_of(method_), base_name);
}

std::vector<std::string> Level_reader::Needed_files() const {
  return {Path("communities"), Path("communities_links"),
          method_ == Method::intensity ? results_names::K_cliques(directory_)
                                       : Path("communities_cliques")};
}

bool Level_reader::Is_whole() const {
  return Is_there_such_file(Path("degree_distribution")) ||
         Is_there_such_file(Path("degree_distribution_appr"));
}

Level_statistics Level_reader::Read_statistics() const {
  Level_statistics statistics;
  if (Is_there_such_file(Path("degree_distribution"))) {
    statistics.all = Read_distributions("");
    return statistics;
  }
  statistics.all = Read_distributions("_merged");
  statistics.exact = Read_distributions("_exact");
  statistics.approximate = Read_distributions("_appr");
  return statistics;
}

Distributions Level_reader::Read_distributions(const std::string& stat_flag) const {
  Distributions d;
  Read_data(d.membership, Path("membership_distribution" + stat_flag));
  Read_data(d.size, Path("size_distribution" + stat_flag));
  Read_data(d.overlap, Path("overlap_distribution" + stat_flag));
  Read_data(d.degree, Path("degree_distribution" + stat_flag));
  return d;
}

Read_rows Level_reader::Read_communities(const Node_of_name& node_of) const {
  return Read_rows_of_names(Path("communities"), node_of);
}

std::vector<std::uint32_t> Level_reader::Read_sizes() const {
  std::vector<std::uint32_t> sizes;
  std::uint32_t size = 0;
  Read_row_file(
      Path("communities"), [&](std::string_view) { return ++size > 0; },
      [&] { sizes.push_back(std::exchange(size, 0)); });
  return sizes;
}

Row_array<Clique_index> Level_reader::Read_com_cliques() const {
  return Rows_of(Path("communities_cliques"),
                 [](std::string_view word, Row_array<Clique_index>& rows) {
                   if (word.starts_with('-')) word.remove_prefix(1);
                   Clique_index clique = 0;
                   if (!Convert_plain(word, clique)) return false;
                   rows.Append(clique);
                   return true;
                 })
      .rows;
}

Row_array<Node_index> Level_reader::Read_k_cliques(const Node_of_name& node_of) const {
  return Read_rows_of_names(results_names::K_cliques(directory_), node_of).rows;
}

/// Blocks of a head line and lines of two names.
Row_array<Index_pair> Level_reader::Read_com_links(const Node_of_name& node_of) const {
  const std::string path = Path("communities_links");
  Row_array<Index_pair> rows;
  Line_reader reader(path, Line_reader::Source::regular_file);
  bool open = false;
  for (std::string_view line; reader.Next(line);) {
    if (line.empty() || line.front() == '#') continue;
    std::string_view rest = line;
    const auto first = node_of(Extract_word(rest));
    const auto second = node_of(Extract_word(rest));
    if (first && second && open) {
      rows.Append({std::min(*first, *second), std::max(*first, *second)});
    } else if (line.ends_with(':')) {
      if (std::exchange(open, true)) rows.Close_row();
    } else {
      throw Xep_wrong_line(std::string(line), {path, reader.Lines_taken(), 0,
                                               "a link of the network", std::string(line)});
    }
  }
  if (open) rows.Close_row();
  return rows;
}

Com_graph Level_reader::Read_overlaps() const {
  Overlap_table table;
  Read_data(table, results_names::Graph_of_communities(directory_, Flag_of(method_)));
  const auto unsigned_index = [](std::int32_t index) {
    return static_cast<std::uint32_t>(std::abs(index));
  };
  Com_graph overlaps;
  for (const auto& [pair, shared] : table)
    overlaps.push_back({unsigned_index(pair.first), unsigned_index(pair.second), shared});
  std::ranges::sort(overlaps, {},
                    [](const Com_overlap& o) { return std::pair(o.first, o.second); });
  return overlaps;
}

std::optional<std::vector<std::string>> Level_reader::Names_in(std::size_t community) const {
  std::optional<std::vector<std::string>> names;
  For_each_row(Path("communities"), [&](std::size_t row, std::string_view members) {
    if (row != community) return;
    names.emplace();
    for (auto name = Extract_word(members); !name.empty(); name = Extract_word(members))
      names->emplace_back(name);
  });
  return names;
}

std::vector<std::uint32_t> Level_reader::Communities_with(std::string_view name) const {
  std::vector<std::uint32_t> communities;
  For_each_row(Path("communities"), [&](std::size_t row, std::string_view members) {
    if (Holds_word(members, name)) communities.push_back(static_cast<std::uint32_t>(row));
  });
  return communities;
}

}  // namespace gns
