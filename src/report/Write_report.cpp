#include "face/Control_body.h"
#include "report/Report_file.h"
#include "vorlane/report.h"

namespace vorlane {

void Write_report(const Results& results, const std::string& path, const Report_options& options,
                  const Control& control) {
  const external_control::Control_in_use in_use(control.Inside().run);
  report::Make_report(results, path, options);
}

std::string Figure_in_svg(const Results& results, Figure figure, const Report_options& options,
                          const Control& control) {
  const external_control::Control_in_use in_use(control.Inside().run);
  return report::Make_figure(results, figure, options);
}

}  // namespace vorlane
