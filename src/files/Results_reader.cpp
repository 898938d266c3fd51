#include "files/Results_reader.h"

#include <exception>
#include <string_view>
#include <utility>

#include "files/Pair_fields.h"
#include "files/Read_data.h"
#include "files/Results_names.h"
#include "foundation/Errors.h"
#include "foundation/io/Line_reader.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/text/My_convert_from_string.h"

namespace gns {

namespace {

/// Calls read(file_name) and reports its failure.
template <typename Read>
void Guarded(Read read, const std::string& file_name, std::string& errors) {
  try {
    read(file_name);
  } catch (const std::exception& error) {
    errors += "When reading " + file_name + ":\n" + error.what() + "\n";
  }
}

void Read_by_lines(auto& table, const std::string& file_name) { Read_data(table, file_name); }

void Read_by_index(auto& table, const std::string& file_name) {
  Read_data(table, file_name, '\n', ':', ' ', ' ');
}

/// Reads a file at k into the entry of k, which is replaced by what could be read.
template <typename Table, typename Read>
void Guarded_at(std::uint32_t k, By_k<Table>& tables, Read read, const std::string& file_name,
                std::string& errors) {
  Table table;
  Guarded([&](const std::string& name) { read(table, name); }, file_name, errors);
  tables.insert_or_assign(k, std::move(table));
}

void Read_at(std::uint32_t k, const std::string& dir, Method method, const Table_pointers& t,
             std::string& errors) {
  const std::string flag = Flag_of(method);
  const auto in_dir = [&](const char* base_name) {
    return results_names::In_dir_of_k(dir, flag, base_name);
  };
  const auto by_index = [](auto& table, const std::string& name) { Read_by_index(table, name); };
  const auto by_lines = [](auto& table, const std::string& name) { Read_by_lines(table, name); };
  Guarded_at(k, *t.communities, by_index, in_dir("communities"), errors);
  Guarded_at(k, *t.com_links, Read_com_links, in_dir("communities_links"), errors);
  if (method == Method::intensity)
    Guarded_at(k, *t.k_cliques, by_index, results_names::K_cliques(dir), errors);
  else
    Guarded_at(k, *t.com_cliques, by_index, in_dir("communities_cliques"), errors);
  Guarded_at(k, *t.com_graphs, by_lines, results_names::Graph_of_communities(dir, flag), errors);
  Read_VL_dists(in_dir("size_distribution"), k, *t.size_dist_exact, *t.size_dist_appr,
                *t.size_dist_merged, errors);
  Read_VL_dists(in_dir("degree_distribution"), k, *t.degree_dist_exact, *t.degree_dist_appr,
                *t.degree_dist_merged, errors);
  Read_VL_dists(in_dir("overlap_distribution"), k, *t.overlap_dist_exact, *t.overlap_dist_appr,
                *t.overlap_dist_merged, errors);
  Read_VL_dists(in_dir("membership_distribution"), k, *t.membership_dist_exact,
                *t.membership_dist_appr, *t.membership_dist_merged, errors);
}

/// The index of the block that a line "INDEX:" opens.
std::int32_t Community_of_head(std::string_view line) {
  const std::string_view index = line.substr(0, line.size() - 1);
  std::int32_t community = 0;
  bool suspicious = false;
  if (!Convert_from_string(index, community, suspicious))
    throw Xerror_msg("ERROR: unable to convert com. ind. '" + std::string(index) + "'\n");
  return community;
}

void Take_link(std::string_view line, Name_pairs& links) {
  std::string_view rest = line;
  Name_pairs::value_type link;
  if (!Extract_pair(rest, link))
    throw Xerror_msg("ERROR: unable to convert link '" + std::string(line) + "'\n");
  links.push_back(link.first, link.second);
}

}  // namespace

void Read_coms(const std::string& results_dir, const std::string& specifier,
               const Table_pointers& tables, std::string& errors) {
  for (const Method method : {Method::undirected, Method::directed, Method::intensity})
    if (specifier == Flag_of(method)) return Read_coms(results_dir, method, tables, errors);
  errors = "ERROR: unknown specifier '" + specifier + "' received.\n";
}

void Read_coms(const std::string& results_dir, Method method, const Table_pointers& tables,
               std::string& errors) {
  const Kept_buffer of_all_files;
  Guarded([&](const std::string& name) { Read_by_lines(*tables.graph_links, name); },
          results_names::Graph(results_dir, method == Method::directed), errors);
  Guarded([&](const std::string& name) { Read_by_index(*tables.cliques, name); },
          results_names::Cliques(results_dir, Flag_of(method)), errors);
  for (const Dir_entry& entry : List_dir(results_dir)) {
    const auto k = results_names::K_of_dir(entry.first);
    if (k && entry.second == "dir")
      Read_at(*k, results_dir + "/" + entry.first, method, tables, errors);
  }
}

void Read_VL_dists(const std::string& base_name, std::uint32_t k,
                   By_k<Distribution_table>& exact_table, By_k<Distribution_table>& appr_table,
                   By_k<Distribution_table>& merged_table, std::string& errors) {
  if (Is_there_such_file(base_name)) {
    Read_VL_distribution(base_name, k, exact_table, errors);
    return;
  }
  Read_VL_distribution(base_name + "_exact", k, exact_table, errors);
  Read_VL_distribution(base_name + "_appr", k, appr_table, errors);
  Read_VL_distribution(base_name + "_merged", k, merged_table, errors);
}

void Read_VL_distribution(const std::string& file_name, std::uint32_t k,
                          By_k<Distribution_table>& table, std::string& errors) {
  const auto read = [](Distribution_table& at_k, const std::string& name) {
    Read_data(at_k, name);
  };
  Guarded_at(k, table, read, file_name, errors);
}

void Read_com_links(Links_by_index& table, const std::string& file_name) {
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  const Filling filling(&table);
  table.Reserve_for_text(reader.File_size());
  Name_pairs& links = table.Add(0);
  std::size_t held = links.size();
  try {
    for (std::string_view line; reader.Next(line); Take_plain_lines(reader, links)) {
      if (line.empty() || line.front() == '#') continue;
      if (line.back() != ':') {
        Take_link(line, links);
        continue;
      }
      const std::int32_t community = Community_of_head(line);
      if (links.size() == held) table.Drop();
      table.Add(community);
      held = links.size();
    }
  } catch (...) {
    table.Drop();
    throw;
  }
}

}  // namespace gns
