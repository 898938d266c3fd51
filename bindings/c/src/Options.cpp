#include "bindings/c/src/Options.h"

#include <string>
#include <string_view>
#include <vector>

#include "bindings/c/src/Handles.h"

namespace vorlane::c {

namespace {

/// The columns between the commas.
std::vector<std::string> Columns_in(std::string_view list) {
  std::vector<std::string> columns;
  while (true) {
    const std::size_t comma = list.find(',');
    columns.emplace_back(list.substr(0, comma));
    if (comma == std::string_view::npos) return columns;
    list.remove_prefix(comma + 1);
  }
}

}  // namespace

Link_options Options_of(const vorlane_link_options* given) {
  Link_options options;
  if (given == nullptr) return options;
  options.directed = given->directed != 0;
  options.weighted = given->weighted != 0;
  options.min_weight = Given_number(given->min_weight);
  options.max_weight = Given_number(given->max_weight);
  if (given->format) options.format = given->format;
  if (given->columns) options.columns = Columns_in(given->columns);
  return options;
}

Options Options_of(const vorlane_options* given) {
  Options options;
  if (given == nullptr) return options;
  options.intensity = Given_number(given->intensity);
  options.time_limit = Given_number(given->time_limit);
  if (given->k != 0) options.k = given->k;
  if (given->jobs < -1) throw Error(Error_kind::parameters, "jobs must be -1 or more.");
  if (given->jobs != 0)
    options.workers = given->jobs == -1 ? 0 : static_cast<unsigned>(given->jobs);
  return options;
}

}  // namespace vorlane::c
