#include "report/Svg_figures.h"

namespace vorlane::report {

Drawing::Drawing(const Results& results, const Report_options& options)
    : title(options.title),
      selection(results, options.k),
      picture(selection),
      k(selection.Shown_k()) {}

}  // namespace vorlane::report
