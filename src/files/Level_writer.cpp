#include "files/Level_writer.h"

#include <algorithm>
#include <limits>

#include "control/Run_control.h"
#include "files/Result_lines.h"
#include "files/Results_names.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Make_dir_aside.h"

namespace gns {

namespace {

using results_names::Lead;

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

}  // namespace

Level_writer::Level_writer(const Results_writer& results, std::uint32_t k)
    : results_(results), k_(k), directory_(results_names::Dir_of_k(results.Place().directory, k)) {
  Make_dir_aside(directory_);
}

std::string Level_writer::Path(const std::string& base_name) const {
  return results_names::In_dir_of_k(directory_, results_.Place().flag, base_name);
}

void Level_writer::Write_k_cliques(const K_cliques& k_cliques, const Node_names& names) const {
  Text_writer file(results_names::K_cliques(directory_));
  file << "# The k-cliques at k=" << k_ << results_.Place().header << '\n';
  Entry_of_k<Names_by_index> entry(results_.Tables().k_cliques, k_);
  const auto count = static_cast<std::uint32_t>(k_cliques.size());
  for (std::uint32_t i = 0; i < count; ++i)
    Write_members(file, i, count, k_cliques[i], names, entry.Get());
  entry.Complete();
}

void Level_writer::Write_communities(const Row_array<Node_index>& coms, std::uint32_t exact_count,
                                     const Node_names& names) const {
  Text_writer file(Path("communities"));
  Write_head(
      file, "# The " + Lead(results_.Place().flag, ' ') + "communities ", k_,
      results_.Place().header,
      exact_count < coms.size() ? "# Negative indices indicate approximate communities.\n" : "");
  Entry_of_k<Names_by_index> entry(results_.Tables().communities, k_);
  for (std::uint32_t com = 0; com < coms.size(); ++com)
    Write_members(file, com, exact_count, coms[com], names, entry.Get());
  entry.Complete();
}

void Level_writer::Write_com_cliques(const Row_array<Clique_index>& com_cliques,
                                     std::uint32_t exact_count,
                                     std::uint32_t exact_clique_count) const {
  Text_writer file(Path("communities_cliques"));
  constexpr std::uint32_t all_exact = std::numeric_limits<std::uint32_t>::max();
  const std::string flag = Lead(results_.Place().flag, ' ');
  Write_head(file, "# The contained " + flag + "cliques in the " + flag + "communities ", k_,
             results_.Place().header);
  Entry_of_k<Indices_by_index> entry(results_.Tables().com_cliques, k_);
  for (std::uint32_t com = 0; com < com_cliques.size(); ++com) {
    external_control::Check_inside_long_stage();
    Write_index(file, com, exact_count);
    file << ": ";
    Index_list* const indices = Open_row(entry.Get(), com, exact_count);
    // What an exact community holds is exact.
    const std::uint32_t exact_cliques = com < exact_count ? all_exact : exact_clique_count;
    for (const Clique_index clique : com_cliques[com]) {
      Write_index(file, clique, exact_cliques);
      file << ' ';
      if (indices != nullptr) indices->push_back(Signed_index(clique, exact_cliques));
    }
    file << '\n';
  }
  entry.Complete();
}

template <typename For_each_link>
void Level_writer::Write_link_blocks(std::size_t com_count, std::uint32_t exact_count,
                                     For_each_link for_each_link, const Node_names& names) const {
  Text_writer file(Path("communities_links"));
  Write_head(file, "# The links inside the " + Lead(results_.Place().flag, ' ') + "communities ",
             k_, results_.Place().header);
  Entry_of_k<Links_by_index> entry(results_.Tables().com_links, k_);
  for (std::uint32_t com = 0; com < com_count; ++com) {
    Write_index(file, com, exact_count);
    file << ":\n";
    Name_pairs* const links = Open_row(entry.Get(), com, exact_count);
    for_each_link(com, [&](const Index_pair& link) {
      external_control::Check_inside_long_stage();
      file << names[link.first] << ' ' << names[link.second] << '\n';
      if (links != nullptr) links->push_back(names[link.first], names[link.second]);
    });
  }
  entry.Complete();
}

void Level_writer::Write_com_links(const Row_array<Index_pair>& com_links,
                                   std::uint32_t exact_count, const Index_links& index_links,
                                   const Node_names& names) const {
  Link_lookup lookup(index_links);
  Write_link_blocks(
      com_links.size(), exact_count,
      [&](std::uint32_t com, auto use) {
        for (const Index_pair& link : com_links[com])
          use(lookup.Has(link) ? link : Index_pair{link.second, link.first});
      },
      names);
}

void Level_writer::Write_com_links(const K_clique_com_links& com_links, std::uint32_t exact_count,
                                   const Node_names& names) const {
  Write_link_blocks(
      com_links.size(), exact_count,
      [&](std::uint32_t com, auto use) { com_links.For_each(com, use); }, names);
}

void Level_writer::Write_com_graph(const Com_graph& com_graph, std::uint32_t exact_count) const {
  const std::string& flag = results_.Place().flag;
  Text_writer file(results_names::Graph_of_communities(directory_, flag));
  Write_head(file, "# The graph of " + Lead(flag, ' '), k_, results_.Place().header);
  Entry_of_k<Overlap_table> entry(results_.Tables().com_graphs, k_);
  for (const Com_overlap& overlap : com_graph) {
    external_control::Check_inside_long_stage();
    Write_index(file, overlap.first, exact_count);
    file << ' ';
    Write_index(file, overlap.second, exact_count);
    file << ' ' << overlap.shared << '\n';
    if (entry.Get() != nullptr)
      entry.Get()->Set(
          {Signed_index(overlap.first, exact_count), Signed_index(overlap.second, exact_count)},
          overlap.shared);
  }
  entry.Complete();
}

}  // namespace gns
