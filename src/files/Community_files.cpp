#include "files/Community_files.h"

#include <algorithm>
#include <limits>

#include "control/Run_control.h"
#include "files/Result_lines.h"
#include "files/Results_names.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Dir_prepare.h"

namespace gns {

namespace {

using results_names::Lead;

std::string Prepared_dir(const std::string& output_dir, std::uint32_t k) {
  std::string dir_of_k = results_names::Dir_of_k(output_dir, k);
  Dir_prepare(dir_of_k, "keep");
  return dir_of_k;
}

/// The lines above the body: title, header, perhaps a remark, and a blank line.
void Write_head(Text_writer& file, const std::string& title, std::uint32_t k,
                const std::string& run_header, const char* remark = "") {
  file << title << "at k=" << k << "\n#" << run_header << remark << '\n';
}

/// Tells for the links of a community, asked in their order, whether `index_links` holds them. The
/// position in the row of the smaller node is kept from one link to the next.
class Link_lookup {
 public:
  explicit Link_lookup(const Index_links& links) : links_(links) {}

  bool Has(const Index_pair& link) {
    if (link.first != node_ || (next_ > 0 && row_[next_ - 1] >= link.second)) {
      node_ = link.first;
      row_ = node_ <= links_.Node_count() ? links_.Row(node_) : Node_span();
      next_ = 0;
    }
    if (next_ == row_.size() || row_[next_] != link.second) {
      const auto from = row_.begin() + static_cast<std::ptrdiff_t>(next_);
      next_ =
          static_cast<std::size_t>(std::lower_bound(from, row_.end(), link.second) - row_.begin());
    }
    if (next_ == row_.size() || row_[next_] != link.second) return false;
    ++next_;
    return true;
  }

 private:
  const Index_links& links_;
  Node_index node_ = 0;
  Node_span row_;
  std::size_t next_ = 0;
};

/// The file of the links; for_each_link(com, use) calls use(link) for each link of a community,
/// with the nodes in the order in which they are shown.
template <typename For_each_link>
void Write_com_links(std::size_t com_count, For_each_link for_each_link,
                     const std::string& output_dir, std::uint32_t k, const Node_names& node_names,
                     std::uint32_t exact_com_count, const std::string& com_flag,
                     const std::string& run_header, By_k<Links_by_index>* tables) {
  const std::string dir_of_k = Prepared_dir(output_dir, k);
  Text_writer file(results_names::In_dir_of_k(dir_of_k, com_flag, "communities_links"));
  Write_head(file, "# The links inside the " + Lead(com_flag, ' ') + "communities ", k, run_header);
  Entry_of_k<Links_by_index> entry(tables, k);
  for (std::uint32_t com = 0; com < com_count; ++com) {
    Write_index(file, com, exact_com_count);
    file << ":\n";
    Name_pairs* const links = Open_row(entry.Get(), com, exact_com_count);
    for_each_link(com, [&](const Index_pair& link) {
      external_control::Check_inside_long_stage();
      file << node_names[link.first] << ' ' << node_names[link.second] << '\n';
      if (links != nullptr) links->push_back(node_names[link.first], node_names[link.second]);
    });
  }
  entry.Complete();
}

}  // namespace

void Kiir_coms_VL_ret(const Row_array<Node_index>& coms, const std::string& output_dir,
                      std::uint32_t k, const Node_names& node_names, std::uint32_t exact_com_count,
                      const std::string& com_flag, const std::string& run_header,
                      By_k<Names_by_index>* tables) {
  const std::string dir_of_k = Prepared_dir(output_dir, k);
  Text_writer file(results_names::In_dir_of_k(dir_of_k, com_flag, "communities"));
  Write_head(file, "# The " + Lead(com_flag, ' ') + "communities ", k, run_header,
             exact_com_count < coms.size()
                 ? "# Negative indices indicate approximate communities.\n"
                 : "");
  Entry_of_k<Names_by_index> entry(tables, k);
  for (std::uint32_t com = 0; com < coms.size(); ++com)
    Write_members(file, com, exact_com_count, coms[com], node_names, entry.Get());
  entry.Complete();
}

void Kiir_coms_cliques_VL_ret(const Row_array<Clique_index>& com_cliques,
                              const std::string& output_dir, std::uint32_t k,
                              std::uint32_t exact_com_count, std::uint32_t exact_clique_count,
                              const std::string& com_flag, const std::string& run_header,
                              By_k<Indices_by_index>* tables) {
  const std::string dir_of_k = Prepared_dir(output_dir, k);
  Text_writer file(results_names::In_dir_of_k(dir_of_k, com_flag, "communities_cliques"));
  constexpr std::uint32_t all_exact = std::numeric_limits<std::uint32_t>::max();
  const std::string flag = Lead(com_flag, ' ');
  Write_head(file, "# The contained " + flag + "cliques in the " + flag + "communities ", k,
             run_header);
  Entry_of_k<Indices_by_index> entry(tables, k);
  for (std::uint32_t com = 0; com < com_cliques.size(); ++com) {
    external_control::Check_inside_long_stage();
    Write_index(file, com, exact_com_count);
    file << ": ";
    Index_list* const indices = Open_row(entry.Get(), com, exact_com_count);
    // What an exact community holds is exact.
    const std::uint32_t exact_count = com < exact_com_count ? all_exact : exact_clique_count;
    for (const Clique_index clique : com_cliques[com]) {
      Write_index(file, clique, exact_count);
      file << ' ';
      if (indices != nullptr) indices->push_back(Signed_index(clique, exact_count));
    }
    file << '\n';
  }
  entry.Complete();
}

void Kiir_com_links_VL_ret(const Row_array<Index_pair>& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables,
                           const Index_links& index_links) {
  Link_lookup lookup(index_links);
  const auto for_each_link = [&](std::uint32_t com, auto use) {
    for (const Index_pair& link : com_links[com])
      use(lookup.Has(link) ? link : Index_pair{link.second, link.first});
  };
  Write_com_links(com_links.size(), for_each_link, output_dir, k, node_names, exact_com_count,
                  com_flag, run_header, tables);
}

void Kiir_com_links_VL_ret(const K_clique_com_links& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables) {
  const auto for_each_link = [&](std::uint32_t com, auto use) { com_links.For_each(com, use); };
  Write_com_links(com_links.size(), for_each_link, output_dir, k, node_names, exact_com_count,
                  com_flag, run_header, tables);
}

void Kiir_com_graph_VL_ret(const Com_graph& com_graph, std::uint32_t exact_com_count,
                           const std::string& output_dir, std::uint32_t k,
                           const std::string& com_flag, const std::string& run_header,
                           By_k<Overlap_table>* tables) {
  const std::string dir_of_k = Prepared_dir(output_dir, k);
  Text_writer file(results_names::Graph_of_communities(dir_of_k, com_flag));
  Write_head(file, "# The graph of " + Lead(com_flag, ' '), k, run_header);
  Entry_of_k<Overlap_table> entry(tables, k);
  for (const Com_overlap& overlap : com_graph) {
    external_control::Check_inside_long_stage();
    Write_index(file, overlap.first, exact_com_count);
    file << ' ';
    Write_index(file, overlap.second, exact_com_count);
    file << ' ' << overlap.shared << '\n';
    if (entry.Get() != nullptr)
      entry.Get()->Set({Signed_index(overlap.first, exact_com_count),
                        Signed_index(overlap.second, exact_com_count)},
                       overlap.shared);
  }
  entry.Complete();
}

}  // namespace gns
