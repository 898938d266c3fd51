#include <cmath>
#include <string>
#include <utility>

#include "control/Run_control.h"
#include "face/Control_body.h"
#include "face/Errors_of_face.h"
#include "face/Network_body.h"
#include "graph/Link_map.h"
#include "graph/Name_table.h"
#include "graph/Numbered_links.h"
#include "input/Link_file_reader.h"
#include "vorlane/network.h"

namespace vorlane {

namespace {

[[noreturn]] void Refuse_link(std::size_t place, const std::string& why) {
  throw Error(Error_kind::input, "Link " + std::to_string(place) + " (counted from 0): " + why);
}

void Check_weight(double weight, std::size_t place) {
  if (std::isnan(weight)) Refuse_link(place, "its weight is not a number.");
}

}  // namespace

/// One of the two ways of collecting links is in use.
struct Network::Builder::Inside {
  explicit Inside(const Link_options& how, std::optional<Node> count_of_numbers,
                  std::optional<gns::Name_table> names_of_numbers = std::nullopt)
      : options(how), count(count_of_numbers), called(std::move(names_of_numbers)) {
    options.weighted = options.weighted || options.min_weight || options.max_weight;
    Empty();
  }

  void Empty() {
    names = gns::Link_map_builder(options.weighted);
    numbers = gns::Numbered_links(count.value_or(0), options.weighted);
    added = 0;
  }

  [[nodiscard]] bool Takes(double weight) const {
    return gns::Link_in_interval(weight, options.min_weight.has_value(),
                                 options.min_weight.value_or(0), options.max_weight.has_value(),
                                 options.max_weight.value_or(0));
  }

  void Check_kind(bool with_numbers, bool with_weights) const {
    if (count.has_value() != with_numbers)
      throw Error(Error_kind::parameters, count ? "This builder takes links between numbers."
                                                : "This builder takes links between names; give it "
                                                  "a count of nodes for links between numbers.");
    if (with_weights && !options.weighted)
      throw Error(Error_kind::parameters,
                  "This builder takes no weights; set Link_options::weighted.");
    if (!with_weights && options.weighted)
      throw Error(Error_kind::parameters, "This builder needs a weight for each link.");
  }

  Link_options options;
  std::optional<Node> count;              ///< of numbers; nothing if links are between names
  std::optional<gns::Name_table> called;  ///< what numbers are called; nothing: their decimals
  gns::Link_map_builder names{false};
  gns::Numbered_links numbers{0, false};
  std::size_t added = 0;
};

Network::Builder::Builder(const Link_options& options)
    : inside_(std::make_unique<Inside>(options, std::nullopt)) {}
Network::Builder::Builder(Node count, const Link_options& options)
    : inside_(std::make_unique<Inside>(options, count)) {}
Network::Builder::Builder(std::span<const std::string_view> names, const Link_options& options) {
  face::With_errors(Error_kind::input, [&] {
    gns::Name_table called;
    for (const std::string_view name : names) called.Add(name);
    inside_ = std::make_unique<Inside>(options, called.size(), std::move(called));
    return true;
  });
}
Network::Builder::~Builder() = default;
Network::Builder::Builder(Builder&&) noexcept = default;
Network::Builder& Network::Builder::operator=(Builder&&) noexcept = default;

void Network::Builder::Add(std::string_view from, std::string_view to) {
  inside_->Check_kind(false, false);
  ++inside_->added;
  if (from != to) inside_->names.Add(from, to);
}

void Network::Builder::Add(std::string_view from, std::string_view to, double weight) {
  inside_->Check_kind(false, true);
  Check_weight(weight, inside_->added);
  ++inside_->added;
  if (from != to && inside_->Takes(weight)) inside_->names.Add(from, to, weight);
}

void Network::Builder::Add(std::span<const Node> from, std::span<const Node> to,
                           std::span<const double> weights) {
  Inside& in = *inside_;
  if (from.size() != to.size() || (!weights.empty() && weights.size() != from.size()))
    throw Error(Error_kind::input,
                "The arrays of links differ in length: " + std::to_string(from.size()) + " from, " +
                    std::to_string(to.size()) + " to, " + std::to_string(weights.size()) +
                    " weights.");
  if (!from.empty()) in.Check_kind(true, !weights.empty());
  for (std::size_t i = 0; i < from.size(); ++i) {
    for (const Node node : {from[i], to[i]})
      if (node == 0 || node > *in.count)
        Refuse_link(in.added + i, "node " + std::to_string(node) + " is not between 1 and " +
                                      std::to_string(*in.count) + ".");
    if (!weights.empty()) Check_weight(weights[i], in.added + i);
  }
  in.added += from.size();
  for (std::size_t i = 0; i < from.size(); ++i) {
    const double weight = weights.empty() ? 0.0 : weights[i];
    if (from[i] != to[i] && in.Takes(weight)) in.numbers.Add({from[i], to[i]}, weight);
  }
}

Network Network::Builder::Build() {
  Inside& in = *inside_;
  Control control;
  const external_control::Control_in_use in_use(control.Inside().run);
  return face::With_errors(Error_kind::input, [&] {
    std::vector<Node> number_of_name;
    gns::Link_map links = in.count
                              ? in.numbers.Build(number_of_name, in.called ? &*in.called : nullptr)
                              : in.names.Build();
    in.Empty();
    return face::Network_of(std::move(links), in.options, std::move(number_of_name));
  });
}

}  // namespace vorlane
