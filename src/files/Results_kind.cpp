#include "files/Results_kind.h"

#include <string_view>

#include "files/Results_names.h"
#include "foundation/io/Line_reader.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

/// By the lines that the header has for the one and the other.
Method Told_method(const std::string& params_file) {
  bool directed = false;
  bool intensity = false;
  Line_reader reader(params_file, Line_reader::Source::regular_file);
  for (std::string_view line; reader.Next(line);) {
    directed = directed || line == "# Links were treated as directed.";
    intensity = intensity || line.starts_with("# A lower link weight intensity threshold");
  }
  return Method_of(directed, intensity);
}

bool Has_weights(const std::string& graph_file) {
  Line_reader reader(graph_file, Line_reader::Source::regular_file);
  for (std::string_view line; reader.Next(line);) {
    if (line.empty() || line.front() == '#') continue;
    for (int name = 0; name < 2; ++name) Extract_word(line);
    return !Extract_word(line).empty();
  }
  return false;
}

}  // namespace

std::optional<Results_kind> Kind_of_results(const std::string& results_dir) {
  const std::string params = results_names::Params(results_dir);
  if (!Is_there_such_file(params)) return std::nullopt;
  const Method method = Told_method(params);
  const std::string graph = results_names::Graph(results_dir, method == Method::directed);
  return Results_kind{method, Is_there_such_file(graph) && Has_weights(graph)};
}

}  // namespace gns
