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
#include "files/Results_kind.h"
#include "files/Results_names.h"
#include "files/Row_file.h"
#include "files/Unfinished_mark.h"
#include "foundation/io/Line_reader.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Text_fields.h"
#include "graph/Row_array.h"

namespace vorlane::face {

namespace {

[[noreturn]] void Refuse(const std::string& why) { throw Error(Error_kind::input, why); }

/// The results of a directory, each part read when it is first asked for.
class In_directory : public Results::Body {
 public:
  explicit In_directory(std::string directory) : directory_(std::move(directory)) {
    const auto kind = gns::Kind_of_results(directory_);
    if (!kind)
      Refuse("'" + directory_ + "' is no results directory: there is no input_params.txt inside.");
    method = Method_of(kind->method);
    flag_ = gns::Flag_of(kind->method);
    finished = !gns::Is_marked_unfinished(directory_);
    Find_ks();
    Refuse_missing_files();
    Link_options options;
    options.directed = method == Method::directed;
    options.weighted = kind->weighted;
    const std::string graph = gns::results_names::Graph(directory_, options.directed);
    network = vorlane::Network::Read(graph, options);
  }

  [[nodiscard]] const vorlane::Cliques& Cliques() const override {
    const std::lock_guard guard(lock_);
    if (!cliques_) cliques_ = Read_cliques();
    return *cliques_;
  }

  [[nodiscard]] const Level& At(std::uint32_t k) const override {
    const std::lock_guard guard(lock_);
    auto place = levels_.find(k);
    if (place == levels_.end()) place = levels_.emplace(k, Read_level(k)).first;
    return place->second;
  }

 private:
  void Find_ks() {
    for (const auto& [name, type] : gns::List_dir(directory_)) {
      const auto k = gns::results_names::K_of_dir(name);
      if (k && type == "dir" && (finished || Is_whole(*k))) ks.push_back(*k);
    }
    std::ranges::sort(ks, std::greater());
  }

  [[nodiscard]] std::string Path(std::uint32_t k, const char* base_name) const {
    return gns::results_names::In_dir_of_k(gns::results_names::Dir_of_k(directory_, k), flag_,
                                           base_name);
  }

  /// For a run that hasn't finished: the distributions of the degrees are written last, each at one
  /// stroke.
  [[nodiscard]] bool Is_whole(std::uint32_t k) const {
    return gns::Is_there_such_file(Path(k, "degree_distribution")) ||
           gns::Is_there_such_file(Path(k, "degree_distribution_appr"));
  }

  void Refuse_missing_files() const {
    std::vector<std::string> needed = {
        gns::results_names::Graph(directory_, method == Method::directed)};
    if (finished) needed.push_back(gns::results_names::Cliques(directory_, flag_));
    for (const std::uint32_t k : ks) {
      needed.push_back(Path(k, "communities"));
      needed.push_back(Path(k, "communities_links"));
      if (method == Method::intensity)
        needed.push_back(
            gns::results_names::K_cliques(gns::results_names::Dir_of_k(directory_, k)));
      else
        needed.push_back(Path(k, "communities_cliques"));
    }
    std::string missing;
    for (const std::string& path : needed)
      if (!gns::Is_there_such_file(path)) missing += "\n  " + path;
    if (!missing.empty()) Refuse("'" + directory_ + "' lacks results:" + missing);
  }

  /// Reads rows of words; number_of(word) yields nothing for one that can't be.
  template <typename Number_of>
  static Rows Read_rows(const std::string& path, Number_of number_of, std::size_t& exact_count) {
    gns::Row_array<std::uint32_t> rows;
    const auto take = [&](std::string_view word) {
      const std::optional<std::uint32_t> number = number_of(word);
      if (number) rows.Append(*number);
      return number.has_value();
    };
    exact_count = gns::Read_row_file(path, take, [&] { rows.Close_row(); });
    return Held(std::move(rows));
  }

  [[nodiscard]] auto Nodes() const {
    return [this](std::string_view word) { return network.Find(word); };
  }

  [[nodiscard]] static std::optional<std::uint32_t> Clique_number(std::string_view word) {
    if (word.starts_with('-')) word.remove_prefix(1);
    std::uint32_t number = 0;
    if (!gns::Convert_plain(word, number)) return std::nullopt;
    return number;
  }

  /// Reads within the errors of the face.
  template <typename Work>
  static auto Reading(Work work) {
    const Control control;
    const external_control::Control_in_use in_use(control.Inside().run);
    return With_errors(Error_kind::input, work);
  }

  [[nodiscard]] vorlane::Cliques Read_cliques() const {
    return Reading([&] {
      vorlane::Cliques read;
      read.members =
          Read_rows(gns::results_names::Cliques(directory_, flag_), Nodes(), read.exact_count);
      return read;
    });
  }

  [[nodiscard]] Level Read_level(std::uint32_t k) const {
    return Reading([&] {
      Level level;
      level.k = k;
      level.members = Read_rows(Path(k, "communities"), Nodes(), level.exact_count);
      std::size_t count = 0;
      if (method == Method::intensity)
        level.k_cliques =
            Read_rows(gns::results_names::K_cliques(gns::results_names::Dir_of_k(directory_, k)),
                      Nodes(), count);
      else
        level.cliques = Read_rows(Path(k, "communities_cliques"), Clique_number, count);
      level.links = Read_links(Path(k, "communities_links"));
      Count(level);
      return level;
    });
  }

  [[nodiscard]] Rows_of<Node_pair> Read_links(const std::string& path) const;

  /// The overlaps and statistics follow from the members.
  void Count(Level& level) const {
    gns::Communities found;
    for (const auto row : level.members) found.coms.push_back(row);
    found.exact_com_count = static_cast<std::uint32_t>(level.exact_count);
    gns::Com_graph overlaps;
    gns::Prepare_community_graph(overlaps, found.coms);
    level.statistics = Statistics_of(gns::Statistics_of(found, overlaps, network.size()));
    level.overlaps = Held(std::move(overlaps));
  }

  std::string directory_;
  std::string flag_;
  mutable std::mutex lock_;
  mutable std::optional<vorlane::Cliques> cliques_;
  mutable std::map<std::uint32_t, Level> levels_;
};

/// Blocks of a head line and lines of two names.
Rows_of<Node_pair> In_directory::Read_links(const std::string& path) const {
  gns::Row_array<Node_pair> rows;
  gns::Line_reader reader(path, gns::Line_reader::Source::regular_file);
  bool open = false;
  for (std::string_view line; reader.Next(line);) {
    if (line.empty() || line.front() == '#') continue;
    std::string_view rest = line;
    const auto first = network.Find(gns::Extract_word(rest));
    const auto second = network.Find(gns::Extract_word(rest));
    if (first && second && open) {
      rows.Append({std::min(*first, *second), std::max(*first, *second)});
    } else if (line.ends_with(':')) {
      if (std::exchange(open, true)) rows.Close_row();
    } else {
      throw gns::Xep_wrong_line(std::string(line), {path, reader.Lines_taken(), 0,
                                                    "a link of the network", std::string(line)});
    }
  }
  if (open) rows.Close_row();
  return Held(std::move(rows));
}

}  // namespace

Results Results_in(const std::string& directory) {
  const Control control;
  const external_control::Control_in_use in_use(control.Inside().run);
  return With_errors(Error_kind::input,
                     [&] { return Results(std::make_shared<const In_directory>(directory)); });
}

}  // namespace vorlane::face
