#include <optional>
#include <string>
#include <utility>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"
#include "bindings/c/src/Options.h"
#include "bindings/c/src/Results_handle.h"
#include "export/Export_files.h"

namespace vorlane::c {

namespace {

const char* Source_or_memory(const char* source) { return source ? source : "memory"; }

Results Found(const Network& network, const vorlane_options* given, const Control& control) {
  const Options options = Options_of(given);
  if (given == nullptr) return Find(network, options, control);
  if (given->cliques && given->directory)
    throw Error(
        Error_kind::parameters,
        "Results of cliques that were found before are written by vorlane_results_write().");
  if (given->cliques)
    return Find(network, {Rows_of(*given->cliques), given->exact_clique_count}, options, control);
  if (given->directory == nullptr) return Find(network, options, control);
  return Find_and_write(network, options, given->directory, Source_or_memory(given->source),
                        control);
}

vorlane_method Method_of(Method method) {
  switch (method) {
    case Method::undirected:
      return VORLANE_UNDIRECTED;
    case Method::directed:
      return VORLANE_DIRECTED;
    case Method::intensity:
      break;
  }
  return VORLANE_INTENSITY;
}

vorlane_level Shown(const Level& level) {
  static_assert(sizeof(Overlap) == 3 * sizeof(std::uint32_t));
  vorlane_level view = {};
  view.k = level.k;
  view.exact_count = level.exact_count;
  view.members = View_of(level.members);
  view.cliques = View_of(level.cliques);
  view.k_cliques = View_of(level.k_cliques);
  if (!level.overlaps.empty()) view.overlaps = &level.overlaps[0].first;
  view.overlap_count = level.overlaps.size();
  return view;
}

void Export(const Results& results, const std::string& format, std::uint32_t k, const char* path,
            bool overwrites) {
  exporting::Export_order order;
  order.format = exporting::Format_of(format);
  if (order.format == nullptr)
    throw Error(Error_kind::parameters, "There is no format '" + format + "' to export.");
  order.overwrites = overwrites;
  const bool one_file = order.format->files.size() == 1 && !order.format->one_k;
  (one_file ? order.file : order.stem) = path;
  exporting::Export(order, exporting::Selection(results, k == 0 ? std::nullopt : std::optional(k)));
}

}  // namespace
}  // namespace vorlane::c

using vorlane::c::Check_given;
using vorlane::c::With_code;

vorlane_code vorlane_find(const vorlane_network* network, const vorlane_options* options,
                          vorlane_control* control, vorlane_results** results) {
  return With_code([&] {
    Check_given(network, "network");
    *results = new vorlane_results(
        vorlane::c::Found(network->network, options, vorlane::c::Control_of(control)));
  });
}

vorlane_code vorlane_results_open(const char* directory, vorlane_results** results) {
  return With_code([&] {
    Check_given(directory, "directory");
    *results = new vorlane_results(vorlane::Results::Open(directory));
  });
}

void vorlane_results_free(vorlane_results* results) { delete results; }

void vorlane_results_look(const vorlane_results* results, vorlane_results_view* view) {
  const vorlane::Results& of = results->results;
  *view = {vorlane::c::Method_of(of.Method()), of.Is_finished() ? 1 : 0, of.Ks().data(),
           of.Ks().size()};
}

vorlane_code vorlane_results_network(const vorlane_results* results, vorlane_network** network) {
  return With_code([&] { *network = new vorlane_network(results->results.Network()); });
}

vorlane_code vorlane_results_cliques(const vorlane_results* results, vorlane_rows* members,
                                     size_t* exact_count) {
  return With_code([&] {
    const vorlane::Cliques& cliques = results->results.Cliques();
    *members = vorlane::c::View_of(cliques.members);
    *exact_count = cliques.exact_count;
  });
}

vorlane_code vorlane_results_level(const vorlane_results* results, uint32_t k,
                                   vorlane_level* level) {
  return With_code([&] { *level = vorlane::c::Shown(results->results.At(k)); });
}

vorlane_code vorlane_results_write(const vorlane_results* results, const char* directory,
                                   const char* source, vorlane_control* control) {
  return With_code([&] {
    Check_given(directory, "directory");
    results->results.Write(directory, vorlane::c::Source_or_memory(source),
                           vorlane::c::Control_of(control));
  });
}

vorlane_code vorlane_results_export(const vorlane_results* results, const char* format, uint32_t k,
                                    const char* path, int overwrite) {
  return With_code([&] {
    Check_given(format, "format");
    Check_given(path, "path");
    vorlane::c::Export(results->results, format, k, path, overwrite != 0);
  });
}
