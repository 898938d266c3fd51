#include "face/Level_of_face.h"

#include <memory>
#include <utility>
#include <vector>

#include "face/Views.h"

namespace vorlane::face {

namespace {

Distributions Distributions_of(gns::Distributions d) {
  return {std::move(d.membership), std::move(d.size), std::move(d.overlap), std::move(d.degree)};
}
gns::Distributions Distributions_of(const Distributions& d) {
  return {d.membership, d.size, d.overlap, d.degree};
}

/// Rows of k nodes each.
Rows Rows_of_k(gns::K_cliques k_cliques) {
  struct Held_rows {
    gns::K_cliques members;
    std::vector<std::size_t> starts = {};
  };
  const auto held = std::make_shared<Held_rows>(Held_rows{std::move(k_cliques)});
  const std::size_t k = held->members.K();
  held->starts.reserve(held->members.size() + 1);
  for (std::size_t i = 0; i <= held->members.size(); ++i) held->starts.push_back(i * k);
  return {held->starts, held->members.Values(), held};
}

Rows_of<Node_pair> Links_of(const gns::K_clique_com_links& found) {
  gns::Row_array<gns::Index_pair> links;
  for (std::size_t com = 0; com < found.size(); ++com) {
    found.For_each(com, [&](const gns::Index_pair& link) { links.Append(link); });
    links.Close_row();
  }
  return Held(std::move(links));
}

}  // namespace

Level Level_of(gns::Level found, bool with_links) {
  const std::shared_ptr<const gns::Communities> communities = found.communities;
  Level level;
  level.k = found.k;
  level.members = View_of(communities->coms, communities);
  level.exact_count = communities->exact_com_count;
  level.overlaps = Held(std::move(found.com_graph));
  level.statistics = Statistics_of(std::move(found.statistics));
  if (found.k_cliques) {
    if (with_links) level.links = Links_of(found.K_clique_links());
    level.k_cliques = Rows_of_k(*std::move(found.k_cliques));
    return level;
  }
  level.cliques = View_of(communities->com_cliques, communities);
  if (with_links) level.links = View_of(communities->com_links, communities);
  return level;
}

Statistics Statistics_of(gns::Level_statistics s) {
  Statistics result;
  result.all = Distributions_of(std::move(s.all));
  if (s.exact) result.exact = Distributions_of(*std::move(s.exact));
  if (s.approximate) result.approximate = Distributions_of(*std::move(s.approximate));
  return result;
}

gns::Level_statistics Statistics_of(const Statistics& s) {
  gns::Level_statistics result;
  result.all = Distributions_of(s.all);
  if (s.exact) result.exact = Distributions_of(*s.exact);
  if (s.approximate) result.approximate = Distributions_of(*s.approximate);
  return result;
}

}  // namespace vorlane::face
