#include "vorlane/report.h"

#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"
#include "bindings/c/src/Results_handle.h"

namespace vorlane::c {

namespace {

Report_options Options_of(std::uint32_t k) {
  Report_options options;
  if (k != 0) options.k = k;
  return options;
}

Figure Figure_of(vorlane_figure which) {
  switch (which) {
    case VORLANE_TREE:
      return Figure::tree;
    case VORLANE_GRAPH:
      return Figure::graph;
    case VORLANE_DISTRIBUTIONS:
      return Figure::distributions;
  }
  throw Error(Error_kind::parameters, "There is no such figure.");
}

}  // namespace
}  // namespace vorlane::c

using vorlane::c::Check_given;
using vorlane::c::With_code;

vorlane_code vorlane_results_report(const vorlane_results* results, const char* path,
                                    const char* title, uint32_t k, int overwrite,
                                    vorlane_control* control) {
  return With_code([&] {
    Check_given(path, "path");
    vorlane::Report_options options = vorlane::c::Options_of(k);
    if (title) options.title = title;
    options.overwrites = overwrite != 0;
    vorlane::Write_report(results->results, path, options, vorlane::c::Control_of(control));
  });
}

vorlane_code vorlane_results_figure(const vorlane_results* results, vorlane_figure which,
                                    uint32_t k, vorlane_control* control, const char** svg) {
  return With_code([&] {
    std::string made =
        vorlane::Figure_in_svg(results->results, vorlane::c::Figure_of(which),
                               vorlane::c::Options_of(k), vorlane::c::Control_of(control));
    const std::lock_guard guard(results->lock);
    results->figure = std::move(made);
    *svg = results->figure.c_str();
  });
}
