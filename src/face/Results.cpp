#include "vorlane/results.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "face/Analysis_inside.h"
#include "face/Results_body.h"
#include "face/Views.h"

namespace vorlane {

namespace {

/// Goes on to the end; everything goes to the writer too, unless it is null.
template <typename Use>
void Find_levels(Analysis::Inside& analysis, Results_writer* writer, Use use) {
  analysis.Go_on([&] {
    if (!analysis.found) analysis.Search();
    return true;
  });
  if (writer) writer->Write(analysis.cliques);
  analysis.Go_on([&] {
    analysis.For_each_level([&](Level& level) {
      if (writer) writer->Write(level);
      use(level);
    });
    return true;
  });
  if (writer) writer->Finish();
}

/// All that an analysis found.
struct Found : Results::Body {
  [[nodiscard]] const vorlane::Cliques& Cliques() const override { return cliques; }
  [[nodiscard]] const vorlane::Network& Network() const override { return network; }
  [[nodiscard]] const Level& At(std::uint32_t k) const override {
    return levels[static_cast<std::size_t>(std::ranges::find(ks, k) - ks.begin())];
  }
  [[nodiscard]] vorlane::Statistics Statistics_at(std::uint32_t k) const override {
    return At(k).statistics;
  }
  [[nodiscard]] Array<std::uint32_t> Sizes_at(std::uint32_t k) const override {
    std::vector<std::uint32_t> sizes;
    for (const auto members : At(k).members)
      sizes.push_back(static_cast<std::uint32_t>(members.size()));
    return face::Held(std::move(sizes));
  }
  [[nodiscard]] Communities Communities_at(std::uint32_t k) const override {
    return {At(k).members, At(k).exact_count};
  }
  [[nodiscard]] Rows Cliques_at(std::uint32_t k) const override { return At(k).cliques; }
  [[nodiscard]] Rows K_cliques_at(std::uint32_t k) const override { return At(k).k_cliques; }

  [[nodiscard]] Array<Overlap> Overlaps_at(std::uint32_t k) const override {
    return At(k).overlaps;
  }

  [[nodiscard]] std::optional<std::vector<std::string>> Names_in(Place place) const override {
    const Rows& members = At(place.k).members;
    if (place.community >= members.size()) return std::nullopt;
    std::vector<std::string> names;
    for (const Node node : members[place.community]) names.emplace_back(network.Name(node));
    return names;
  }

  [[nodiscard]] std::optional<std::vector<Place>> Places_of(std::string_view name) const override {
    const std::optional<Node> node = network.Find(name);
    if (!node) return std::nullopt;
    std::vector<Place> places;
    for (const Level& level : levels)
      for (std::size_t i = 0; i < level.members.size(); ++i)
        if (std::ranges::binary_search(level.members[i], *node)) places.push_back({level.k, i});
    return places;
  }

  /// Finds the levels again, now with their links, from the cliques where they are all there.
  void Write(const std::string& directory, const std::string& source,
             const Control& control) const override {
    Options with_links = options;
    with_links.links = true;
    Analysis::Inside analysis(network, with_links, control);
    analysis.needs_all_cliques = true;
    if (has_all_cliques) analysis.Take(cliques);
    Results_writer writer(directory, network, options, source);
    Find_levels(analysis, &writer, [](const Level&) {});
  }

  vorlane::Network network;
  Options options;
  bool has_all_cliques = true;
  vorlane::Cliques cliques;
  std::vector<Level> levels;
};

}  // namespace

Results::Results(std::shared_ptr<const Body> body) : body_(std::move(body)) {}

Results Results::Open(const std::string& directory) { return face::Results_in(directory); }

Method Results::Method() const { return body_->method; }
const Network& Results::Network() const { return body_->Network(); }
bool Results::Is_finished() const { return body_->finished; }
const std::vector<std::uint32_t>& Results::Ks() const { return body_->ks; }
const Cliques& Results::Cliques() const { return body_->Cliques(); }

const Level& Results::At(std::uint32_t k) const { return Body_with(k).At(k); }
Statistics Results::Statistics_at(std::uint32_t k) const { return Body_with(k).Statistics_at(k); }
Array<std::uint32_t> Results::Sizes_at(std::uint32_t k) const { return Body_with(k).Sizes_at(k); }
Communities Results::Communities_at(std::uint32_t k) const {
  return Body_with(k).Communities_at(k);
}
Rows Results::Cliques_at(std::uint32_t k) const { return Body_with(k).Cliques_at(k); }
Rows Results::K_cliques_at(std::uint32_t k) const { return Body_with(k).K_cliques_at(k); }
Array<Overlap> Results::Overlaps_at(std::uint32_t k) const { return Body_with(k).Overlaps_at(k); }

std::vector<std::string> Results::Names_in(Place place) const {
  auto names = Body_with(place.k).Names_in(place);
  if (names) return *std::move(names);
  throw Error(Error_kind::parameters, "There is no community " + std::to_string(place.community) +
                                          " at k = " + std::to_string(place.k) + ": " +
                                          std::to_string(Sizes_at(place.k).size()) +
                                          " are counted from 0.");
}

std::optional<std::vector<Place>> Results::Places_of(std::string_view name) const {
  return body_->Places_of(name);
}

const Results::Body& Results::Body_with(std::uint32_t k) const {
  if (std::ranges::find(body_->ks, k) != body_->ks.end()) return *body_;
  std::string there = body_->ks.empty() ? "there is no level" : "the levels are those of k =";
  for (const std::uint32_t other : body_->ks) there += ' ' + std::to_string(other);
  throw Error(Error_kind::parameters,
              "There is no level at k = " + std::to_string(k) + "; " + there + ".");
}

void Results::Write(const std::string& directory, const std::string& source,
                    const Control& control) const {
  body_->Write(directory, source, control);
}

namespace {

Results Find_all(const Network& network, const Options& options, const Control& control,
                 const vorlane::Cliques* known, const std::function<Results_writer()>& writer_of) {
  auto found = std::make_shared<Found>();
  found->method = face::Method_of(network, options);
  found->network = network;
  found->options = options;
  Options needed = options;
  needed.links = needed.links || writer_of;
  Analysis::Inside analysis(network, needed, control);
  if (known) analysis.Take(*known);
  std::optional<Results_writer> writer;
  if (writer_of) writer.emplace(writer_of());
  analysis.needs_all_cliques = writer.has_value();
  Find_levels(analysis, writer ? &*writer : nullptr, [&](Level& level) {
    if (!options.links) level.links = {};
    found->ks.push_back(level.k);
    found->levels.push_back(std::move(level));
  });
  found->has_all_cliques = known || !analysis.Can_leave_out_cliques();
  found->cliques = analysis.cliques;
  return Results(std::move(found));
}

}  // namespace

Results Find(const Network& network, const Options& options, const Control& control) {
  return Find_all(network, options, control, nullptr, nullptr);
}

Results Find(const Network& network, const Cliques& known, const Options& options,
             const Control& control) {
  return Find_all(network, options, control, &known, nullptr);
}

Results Find_and_write(const Network& network, const Options& options, const std::string& directory,
                       const std::string& source, const Control& control) {
  return Find_all(network, options, control, nullptr,
                  [&] { return Results_writer(directory, network, options, source); });
}

}  // namespace vorlane
