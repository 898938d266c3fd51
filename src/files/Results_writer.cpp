#include "files/Results_writer.h"

#include <utility>

#include "control/Run_control.h"
#include "files/Result_lines.h"
#include "files/Results_names.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Make_dir_aside.h"
#include "results/Method.h"

namespace gns {

Results_writer::Results_writer(Results_place place, const Table_pointers& tables)
    : place_(std::move(place)), tables_(tables) {}

void Results_writer::Write_params() const {
  Make_dir_aside(place_.directory);
  Text_writer file(results_names::Params(place_.directory));
  file << "# Vorlane was run on links taken" << place_.header;
}

void Results_writer::Write_graph(const Link_map& links, bool weighted) const {
  Make_dir_aside(place_.directory);
  const bool directed = place_.flag == Flag_of(Method::directed);
  Text_writer file(results_names::Graph(place_.directory, directed));
  file << "# The links" << place_.header
       << (directed ? "# (self-links were removed)\n"
                    : "# (mutual links and self-links were removed)\n")
       << '\n';
  Name_pairs* const table = tables_.graph_links;
  for (std::size_t i = 0; i < links.size(); ++i) {
    external_control::Check_inside_long_stage();
    file << links.First(i) << ' ' << links.Second(i);
    if (weighted) file << ' ' << links.Weight(i);
    file << '\n';
    if (table != nullptr) table->push_back(links.First(i), links.Second(i));
  }
}

void Results_writer::Write_cliques(const Clique_vector& cliques, std::uint32_t exact_count,
                                   const Node_names& names) const {
  Make_dir_aside(place_.directory);
  Text_writer file(results_names::Cliques(place_.directory, place_.flag));
  const std::string flag = results_names::Clique_flag(place_.flag);
  file << "# The " << results_names::Lead(flag, ' ') << "cliques" << place_.header;
  if (exact_count < cliques.size()) file << "# Negative indices indicate approximate cliques.\n";
  file << '\n';
  const Filling filling(tables_.cliques);
  for (std::uint32_t i = 0; i < cliques.size(); ++i)
    Write_members(file, i, exact_count, cliques[i], names, tables_.cliques);
}

}  // namespace gns
