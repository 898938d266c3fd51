#include "vorlane/network.h"

#include <algorithm>
#include <utility>

#include "face/Control_body.h"
#include "face/Errors_of_face.h"
#include "face/Input_of_face.h"
#include "face/Network_body.h"
#include "face/Views.h"
#include "formats/Network_file.h"
#include "graph/Link_conversion.h"

namespace vorlane {

namespace face {

/// `number_of_name[i]`: the number that was given for the name at place i of the links.
Network Network_of(gns::Link_map links, const Link_options& options,
                   std::vector<Node> number_of_name, std::vector<std::string> warnings) {
  auto body = std::make_shared<Network::Body>();
  body->warnings = std::move(warnings);
  body->options = options;
  body->links_as_given = std::move(links);
  gns::Named_graph& graph = body->graph;
  graph.directed = options.directed;
  body->name_places =
      gns::Convert_s_links(graph.links, graph.names, body->links_as_given, options.directed);
  gns::Make_vertices(graph);
  if (!number_of_name.empty()) {
    body->given_numbers.assign(graph.Node_count() + std::size_t{1}, 0);
    for (std::size_t i = 0; i < body->name_places.size(); ++i)
      body->given_numbers[i + 1] = number_of_name[body->name_places[i]];
  }
  return Network(std::move(body));
}

}  // namespace face

Network::Network() : body_(std::make_shared<const Body>()) {}
Network::Network(std::shared_ptr<const Body> body) : body_(std::move(body)) {}

Network Network::Read(const std::string& path, const Link_options& options,
                      const Control& control) {
  const external_control::Control_in_use in_use(control.Inside().run);
  return face::With_errors(Error_kind::input, [&] {
    external_control::Report_state(" Reading input ...\n");
    Link_options taken = options;
    taken.weighted = taken.weighted || taken.min_weight || taken.max_weight;
    const gns::Link_rule rule = {taken.weighted, taken.min_weight.has_value(),
                                 taken.min_weight.value_or(0), taken.max_weight.has_value(),
                                 taken.max_weight.value_or(0)};
    gns::Link_map links;
    gns::Link_file_check check;
    gns::Read_network_file(path, face::Wishes_of(taken), rule, links, check);
    std::vector<std::string> warnings;
    for (const gns::Link_file_warning& warning : check.Warnings())
      warnings.push_back(gns::In_words(warning, path));
    return face::Network_of(std::move(links), taken, {}, std::move(warnings));
  });
}

Node Network::size() const { return body_->graph.Node_count(); }
std::size_t Network::Link_count() const { return body_->graph.links.size(); }
const Link_options& Network::How_taken() const { return body_->options; }
const std::vector<std::string>& Network::Warnings() const { return body_->warnings; }
std::string_view Network::Name(Node node) const { return body_->graph.names[node]; }

std::optional<Node> Network::Find(std::string_view name) const {
  const auto name_of = [this](Node node) { return Name(node); };
  std::vector<Node>& nodes = body_->by_name;
  std::call_once(body_->sorted_once, [&] {
    for (Node node = 1; node <= size(); ++node) nodes.push_back(node);
    std::ranges::sort(nodes, {}, name_of);
  });
  const auto found = std::ranges::lower_bound(nodes, name, {}, name_of);
  if (found == nodes.end() || Name(*found) != name) return std::nullopt;
  return *found;
}

Array<Node> Network::Given_numbers() const { return face::View_of(body_->given_numbers, body_); }
Rows Network::Links() const { return face::View_of(body_->graph.links.All_rows(), body_); }
Array<double> Network::Weights() const {
  return face::View_of(body_->graph.links.Weights(), body_);
}

}  // namespace vorlane
