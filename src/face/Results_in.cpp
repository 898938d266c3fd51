#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "communities/Level_statistics.h"
#include "face/Control_body.h"
#include "face/Errors_of_face.h"
#include "face/Level_of_face.h"
#include "face/Results_body.h"
#include "face/Views.h"
#include "files/Level_reader.h"
#include "files/Results_kind.h"
#include "files/Results_names.h"
#include "files/Unfinished_mark.h"
#include "foundation/paths/Direktoriz.h"
#include "graph/Name_numbers.h"

namespace vorlane::face {

namespace {

/// Reads within the errors of the face.
template <typename Work>
auto Reading(Work work) {
  const Control control;
  const external_control::Control_in_use in_use(control.Inside().run);
  return With_errors(Error_kind::input, work);
}

/// The nodes of a network by their names, for many look-ups.
class Node_lookup {
 public:
  explicit Node_lookup(const Network& network) : size_(network.size()) {
    for (Node node = 1; node <= size_; ++node) numbers_.Of(network.Name(node));
  }

  std::optional<Node> operator()(std::string_view name) {
    const std::uint32_t number = numbers_.Of(name);
    return number < size_ ? std::optional(number + 1) : std::nullopt;
  }

 private:
  Node size_;
  gns::Name_numbers numbers_;  ///< a name that isn't known is noted behind the others
};

/// The results of a directory, each part read when it is first asked for.
class In_directory : public Results::Body {
 public:
  explicit In_directory(std::string directory) : directory_(std::move(directory)) {
    const auto kind = gns::Kind_of_results(directory_);
    if (!kind)
      throw Error(Error_kind::input, "'" + directory_ +
                                         "' is no results directory: there is no "
                                         "input_params.txt inside.");
    kind_ = *kind;
    method = Method_of(kind_.method);
    finished = !gns::Is_marked_unfinished(directory_);
    Find_ks();
    Refuse_missing_files();
  }

  [[nodiscard]] const vorlane::Network& Network() const override {
    const std::lock_guard guard(lock_);
    return Network_read();
  }

  [[nodiscard]] const vorlane::Cliques& Cliques() const override {
    const std::lock_guard guard(lock_);
    if (!cliques_) cliques_ = Reading([&] { return Read_cliques(); });
    return *cliques_;
  }

  [[nodiscard]] const Level& At(std::uint32_t k) const override {
    const std::lock_guard guard(lock_);
    auto place = levels_.find(k);
    if (place == levels_.end())
      place = levels_.emplace(k, Reading([&] { return Read_level(k); })).first;
    return place->second;
  }

  [[nodiscard]] vorlane::Statistics Statistics_at(std::uint32_t k) const override {
    return Reading([&] { return Statistics_of(Reader(k).Read_statistics()); });
  }

  [[nodiscard]] Array<std::uint32_t> Sizes_at(std::uint32_t k) const override {
    return Reading([&] { return Held(Reader(k).Read_sizes()); });
  }

  [[nodiscard]] Communities Communities_at(std::uint32_t k) const override {
    const std::lock_guard guard(lock_);
    return Reading([&] {
      gns::Read_rows read = Reader(k).Read_communities(Nodes());
      return Communities{Held(std::move(read.rows)), read.exact_count};
    });
  }

  [[nodiscard]] Rows K_cliques_at(std::uint32_t k) const override {
    if (method != Method::intensity) return {};
    const std::lock_guard guard(lock_);
    return Reading([&] { return Held(Reader(k).Read_k_cliques(Nodes())); });
  }

  [[nodiscard]] Rows Cliques_at(std::uint32_t k) const override {
    if (method == Method::intensity) return {};
    return Reading([&] { return Held(Reader(k).Read_com_cliques()); });
  }

  [[nodiscard]] Array<Overlap> Overlaps_at(std::uint32_t k) const override {
    return Reading([&] { return Held(Reader(k).Read_overlaps()); });
  }

  [[nodiscard]] std::optional<std::vector<std::string>> Names_in(Place place) const override {
    return Reading([&] { return Reader(place.k).Names_in(place.community); });
  }

  [[nodiscard]] std::optional<std::vector<Place>> Places_of(std::string_view name) const override {
    return Reading([&]() -> std::optional<std::vector<Place>> {
      std::vector<Place> places;
      for (const std::uint32_t k : ks)
        for (const std::uint32_t community : Reader(k).Communities_with(name))
          places.push_back({k, community});
      if (places.empty() && !gns::Has_line_with(Graph_file(), name)) return std::nullopt;
      return places;
    });
  }

  void Write(const std::string& directory, const std::string& /*source*/,
             const Control& /*control*/) const override {
    throw Error(Error_kind::parameters, "These results stand in '" + directory_ +
                                            "' already, which can be copied to '" + directory +
                                            "'.");
  }

 private:
  [[nodiscard]] gns::Level_reader Reader(std::uint32_t k) const {
    return {directory_, kind_.method, k};
  }

  void Find_ks() {
    for (const auto& [name, type] : gns::List_dir(directory_)) {
      const auto k = gns::results_names::K_of_dir(name);
      if (k && type == "dir" && (finished || Reader(*k).Is_whole())) ks.push_back(*k);
    }
    std::ranges::sort(ks, std::greater());
  }

  [[nodiscard]] std::string Graph_file() const {
    return gns::results_names::Graph(directory_, method == Method::directed);
  }
  [[nodiscard]] std::string Cliques_file() const {
    return gns::results_names::Cliques(directory_, gns::Flag_of(kind_.method));
  }

  void Refuse_missing_files() const {
    std::string missing;
    const auto look_for = [&](const std::string& path) {
      if (!gns::Is_there_such_file(path)) missing += "\n  " + path;
    };
    look_for(Graph_file());
    if (finished) look_for(Cliques_file());
    for (const std::uint32_t k : ks) std::ranges::for_each(Reader(k).Needed_files(), look_for);
    if (!missing.empty())
      throw Error(Error_kind::input, "'" + directory_ + "' lacks results:" + missing);
  }

  const vorlane::Network& Network_read() const {
    if (network_) return *network_;
    Link_options options;
    options.directed = method == Method::directed;
    options.weighted = kind_.weighted;
    network_ = vorlane::Network::Read(Graph_file(), options);
    lookup_.emplace(*network_);
    return *network_;
  }

  [[nodiscard]] gns::Node_of_name Nodes() const {
    Network_read();
    return [this](std::string_view name) { return (*lookup_)(name); };
  }

  [[nodiscard]] vorlane::Cliques Read_cliques() const {
    gns::Read_rows read = gns::Read_rows_of_names(Cliques_file(), Nodes());
    return {Held(std::move(read.rows)), read.exact_count};
  }

  [[nodiscard]] Level Read_level(std::uint32_t k) const {
    const gns::Level_reader reader = Reader(k);
    const gns::Node_of_name nodes = Nodes();
    gns::Read_rows communities = reader.Read_communities(nodes);
    gns::Com_graph overlaps;  // they follow from the members
    gns::Prepare_community_graph(overlaps, communities.rows);

    Level level;
    level.k = k;
    level.exact_count = communities.exact_count;
    level.members = Held(std::move(communities.rows));
    if (method == Method::intensity)
      level.k_cliques = Held(reader.Read_k_cliques(nodes));
    else
      level.cliques = Held(reader.Read_com_cliques());
    level.links = Held(reader.Read_com_links(nodes));
    level.overlaps = Held(std::move(overlaps));
    level.statistics = Statistics_of(reader.Read_statistics());
    return level;
  }

  std::string directory_;
  gns::Results_kind kind_;
  mutable std::mutex lock_;  ///< of what follows
  mutable std::optional<vorlane::Network> network_;
  mutable std::optional<Node_lookup> lookup_;
  mutable std::optional<vorlane::Cliques> cliques_;
  mutable std::map<std::uint32_t, Level> levels_;
};

}  // namespace

Results Results_in(const std::string& directory) {
  return Reading([&] { return Results(std::make_shared<const In_directory>(directory)); });
}

}  // namespace vorlane::face
