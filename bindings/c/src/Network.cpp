#include <charconv>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"
#include "bindings/c/src/Options.h"
#include "face/Network_body.h"

namespace vorlane::c {

namespace {

/// What numbered nodes are called, as views of one block of text.
class Node_texts {
 public:
  explicit Node_texts(const vorlane_links& links) {
    if (links.names)
      Take_names(links);
    else if (links.numbers)
      Write_numbers(links);
  }

  [[nodiscard]] bool empty() const { return views_.empty(); }
  [[nodiscard]] std::span<const std::string_view> All() const { return views_; }

 private:
  void Take_names(const vorlane_links& links) {
    Check_given(links.name_starts, "name_starts");
    views_.reserve(links.node_count);
    for (std::size_t i = 0; i < links.node_count; ++i) {
      if (links.name_starts[i + 1] < links.name_starts[i])
        throw Error(Error_kind::parameters, "name_starts must ascend.");
      views_.emplace_back(links.names + links.name_starts[i],
                          links.name_starts[i + 1] - links.name_starts[i]);
    }
  }

  void Write_numbers(const vorlane_links& links) {
    constexpr std::size_t most_digits = 20;
    text_.resize(links.node_count * most_digits);
    views_.reserve(links.node_count);
    char* at = text_.data();
    for (std::size_t i = 0; i < links.node_count; ++i) {
      char* const end = std::to_chars(at, at + most_digits, links.numbers[i]).ptr;
      views_.emplace_back(at, static_cast<std::size_t>(end - at));
      at = end;
    }
  }

  std::vector<char> text_;
  std::vector<std::string_view> views_;
};

Network::Builder Builder_of(const vorlane_links& links, const Link_options& options) {
  const Node_texts texts(links);
  if (texts.empty()) return {links.node_count, options};
  return {texts.All(), options};
}

Network Network_of(const vorlane_links& links, const Link_options& options) {
  const auto array = [&](const auto* values, const char* name) {
    if (links.link_count > 0) Check_given(values, name);
    return std::span(values, links.link_count);
  };
  Network::Builder builder = Builder_of(links, options);
  if (links.weights)
    builder.Add(array(links.from, "from"), array(links.to, "to"), array(links.weights, "weights"));
  else
    builder.Add(array(links.from, "from"), array(links.to, "to"));
  return builder.Build();
}

/// Fills what vorlane_network_given_links() hands out.
void Fill_given_links(const vorlane_network& of) {
  const gns::Link_map& links = of.network.Inside()->links_as_given;
  const std::vector<std::uint32_t>& places = of.network.Inside()->name_places;
  std::vector<Node> node_of_place(links.Names().size(), 0);
  for (std::size_t i = 0; i < places.size(); ++i)
    node_of_place[places[i]] = static_cast<Node>(i + 1);
  for (const gns::Index_pair& pair : links.Pairs()) {
    of.given_from.push_back(node_of_place[pair.first]);
    of.given_to.push_back(node_of_place[pair.second]);
  }
  if (!of.network.How_taken().weighted) return;
  for (std::size_t i = 0; i < links.size(); ++i) of.given_weights.push_back(links.Weight(i));
}

}  // namespace
}  // namespace vorlane::c

using vorlane::c::Check_given;
using vorlane::c::With_code;

vorlane_code vorlane_network_read(const char* path, const vorlane_link_options* options,
                                  vorlane_control* control, vorlane_network** network) {
  return With_code([&] {
    Check_given(path, "path");
    *network = new vorlane_network(vorlane::Network::Read(path, vorlane::c::Options_of(options),
                                                          vorlane::c::Control_of(control)));
  });
}

vorlane_code vorlane_network_from_links(const vorlane_links* links,
                                        const vorlane_link_options* options,
                                        vorlane_network** network) {
  return With_code([&] {
    Check_given(links, "links");
    *network = new vorlane_network(vorlane::c::Network_of(*links, vorlane::c::Options_of(options)));
  });
}

void vorlane_network_free(vorlane_network* network) { delete network; }

void vorlane_network_look(const vorlane_network* network, vorlane_network_view* view) {
  const vorlane::Network& of = network->network;
  *view = {};
  view->size = of.size();
  view->link_count = of.Link_count();
  view->directed = of.How_taken().directed;
  view->weighted = of.How_taken().weighted;
  view->warning_count = of.Warnings().size();
  view->links = vorlane::c::View_of(of.Links());
  view->weights = of.Weights().Values().data();
  view->given = of.Given_numbers().Values().data();
  for (vorlane::Node node = 1; node <= of.size(); ++node) view->name_bytes += of.Name(node).size();
}

const char* vorlane_network_warning(const vorlane_network* network, size_t warning) {
  const auto& warnings = network->network.Warnings();
  return warning < warnings.size() ? warnings[warning].c_str() : nullptr;
}

void vorlane_network_names(const vorlane_network* network, char* names, size_t* starts) {
  const vorlane::Network& of = network->network;
  size_t end = 0;
  starts[0] = 0;
  for (vorlane::Node node = 1; node <= of.size(); ++node) {
    end += of.Name(node).copy(names + end, of.Name(node).size());
    starts[node] = end;
  }
}

vorlane_code vorlane_network_given_links(const vorlane_network* network, const uint32_t** from,
                                         const uint32_t** to, const double** weights,
                                         size_t* count) {
  return With_code([&] {
    std::call_once(network->given_once, vorlane::c::Fill_given_links, *network);
    *from = network->given_from.data();
    *to = network->given_to.data();
    *weights = network->network.How_taken().weighted ? network->given_weights.data() : nullptr;
    *count = network->given_from.size();
  });
}

vorlane_code vorlane_network_find(const vorlane_network* network, const char* name, size_t length,
                                  uint32_t* node) {
  return With_code([&] { *node = network->network.Find({name, length}).value_or(0); });
}
