#include "files/Results_writer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "face/Errors_of_face.h"
#include "face/Level_of_face.h"
#include "face/Network_body.h"
#include "face/Results_body.h"
#include "files/Level_writer.h"
#include "files/Results_directory.h"
#include "files/Unfinished_mark.h"
#include "foundation/io/File_faults.h"
#include "foundation/text/Text_fields.h"
#include "vorlane/results.h"

namespace vorlane {

namespace {

template <typename Value>
gns::Row_array<Value> Copy_of(const Rows_of<Value>& rows) {
  gns::Row_array<Value> copy;
  for (const auto row : rows) copy.push_back(row);
  return copy;
}

void Check_names(const Network& network) {
  for (Node node = 1; node <= network.size(); ++node) {
    const std::string_view name = network.Name(node);
    if (name.empty() || std::ranges::any_of(name, gns::Is_space))
      throw Error(Error_kind::parameters, "Results files can't hold the name of node " +
                                              std::to_string(node) + ", '" + std::string(name) +
                                              "': it has blanks inside, or nothing.");
  }
  const gns::Name_table& names = network.Inside()->links_as_given.Names();
  for (std::uint32_t i = 1; i < names.size(); ++i)
    if (names[i] == names[i - 1])
      throw Error(Error_kind::parameters, "Two nodes have the name '" + std::string(names[i]) +
                                              "': results files can't tell them apart.");
}

std::string Header_of(const Network& network, const Options& options, const std::string& source) {
  const Link_options& taken = network.How_taken();
  std::string header;
  gns::Generate_header(header, source, taken.min_weight.has_value(), taken.min_weight.value_or(0),
                       taken.max_weight.has_value(), taken.max_weight.value_or(0));
  gns::Extend_alap_szoveg(header, options.intensity.has_value(), options.intensity.value_or(0),
                          taken.directed, options.time_limit.has_value(),
                          options.time_limit.value_or(0), options.k.has_value(),
                          options.k.value_or(0));
  return header;
}

}  // namespace

struct Results_writer::Inside {
  Inside(const std::string& directory, const Network& of, const Options& options,
         const std::string& source)
      : network(of),
        method(face::Method_of(of, options)),
        mark(directory),
        files({directory, gns::Flag_of(face::Method_of(method)), Header_of(of, options, source)}) {}

  Network network;
  Method method;
  gns::File_fault_list faults;
  gns::Unfinished_mark mark;
  gns::Results_writer files;
  std::size_t exact_cliques = 0;
};

namespace {

/// Writes with the faults in the writer's own list.
template <typename Work>
void Writing(gns::File_fault_list& faults, Work work) {
  const gns::File_faults_kept kept(faults);
  face::With_errors(Error_kind::output, [&] {
    work();
    return true;
  });
}

}  // namespace

Results_writer::Results_writer(const std::string& directory, const Network& network,
                               const Options& options, const std::string& source) {
  Check_names(network);
  face::With_errors(Error_kind::output, [&] {
    inside_ = std::make_unique<Inside>(directory, network, options, source);
    return true;
  });
  Writing(inside_->faults, [&] {
    inside_->files.Write_params();
    inside_->files.Write_graph(network.Inside()->links_as_given, network.How_taken().weighted);
  });
}

Results_writer::~Results_writer() = default;
Results_writer::Results_writer(Results_writer&&) noexcept = default;
Results_writer& Results_writer::operator=(Results_writer&&) noexcept = default;

void Results_writer::Write(const Cliques& cliques) {
  Inside& in = *inside_;
  in.exact_cliques = cliques.exact_count;
  Writing(in.faults, [&] {
    in.mark.Check();
    in.files.Write_cliques(Copy_of(cliques.members),
                           static_cast<std::uint32_t>(cliques.exact_count),
                           in.network.Inside()->graph.names);
  });
}

void Results_writer::Write(const Level& level) {
  if (level.links.size() != level.members.size())
    throw Error(Error_kind::parameters,
                "The level at k = " + std::to_string(level.k) +
                    " has no links of its communities, which Options::links asks for.");
  Inside& in = *inside_;
  const gns::Named_graph& graph = in.network.Inside()->graph;
  const auto exact = static_cast<std::uint32_t>(level.exact_count);
  Writing(in.faults, [&] {
    in.mark.Check();
    const gns::Level_writer files(in.files, level.k);
    if (in.method == Method::intensity) {
      gns::K_cliques k_cliques(level.k);
      for (const auto row : level.k_cliques) k_cliques.push_back(row);
      files.Write_k_cliques(k_cliques, graph.names);
    }
    files.Write_communities(Copy_of(level.members), exact, graph.names);
    if (in.method != Method::intensity)
      files.Write_com_cliques(Copy_of(level.cliques), exact,
                              static_cast<std::uint32_t>(in.exact_cliques));
    files.Write_com_links(Copy_of(level.links), exact, graph.links, graph.names);
    const auto overlaps = level.overlaps.Values();
    files.Write_com_graph({overlaps.begin(), overlaps.end()}, exact);
    files.Write_statistics(face::Statistics_of(level.statistics));
  });
}

void Results_writer::Finish() {
  Inside& in = *inside_;
  Writing(in.faults, [&] {
    if (in.faults.All().empty()) in.mark.Remove();
  });
  std::string failed;
  for (const gns::File_fault& fault : in.faults.All())
    failed += "\n  " + fault.path + ": " + fault.reason;
  if (!failed.empty()) throw Error(Error_kind::output, "Files could not be written:" + failed);
}

}  // namespace vorlane
