#include "report/Report_file.h"

#include <stdexcept>

#include "export/Export_files.h"
#include "export/New_file.h"
#include "face/Errors_of_face.h"
#include "layout/Network_layout.h"
#include "report/Deflated.h"
#include "report/Page_data.h"
#include "report/Page_template.h"
#include "report/Svg_figures.h"

namespace vorlane::report {

namespace {

/// Writes a template up to a place in it, and takes that off its front.
void Write_up_to(std::string_view place, std::string_view& page, exporting::Text_sink& sink) {
  const std::size_t position = page.find(place);
  if (position == std::string_view::npos) throw std::logic_error("The page has lost a place.");
  sink << page.substr(0, position);
  page.remove_prefix(position + place.size());
}

}  // namespace

void Make_report(const Results& results, const std::string& path, const Report_options& options) {
  if (!options.overwrites) exporting::Refuse_existing_files({path}, "report");
  face::With_errors(Error_kind::output, [&] {
    const queries::Forest forest(results);
    const layout::Layout layout = layout::Layout_of(results.Network(), forest);
    external_control::Report_state(std::string("Writing the page\n"));
    const std::string data = Base64(Deflated(Page_data(results, forest, layout, options)));
    exporting::New_file file(path);
    std::string_view page = Page_template();
    Write_up_to(place_of_title, page, file);
    file << exporting::In_xml{options.title};
    Write_up_to(place_of_data, page, file);
    file << data << page;
    file.Finish();
    return true;
  });
}

std::string Make_figure(const Results& results, Figure figure, const Report_options& options) {
  return face::With_errors(Error_kind::other, [&]() -> std::string {
    const Drawing drawing(results, options);
    switch (figure) {
      case Figure::tree:
        return Tree_in_svg(drawing);
      case Figure::graph:
        return Graph_in_svg(drawing);
      default:
        return Distributions_in_svg(drawing);
    }
  });
}

void Write_figure(std::string_view picture, const std::string& path, bool overwrites) {
  if (!overwrites) exporting::Refuse_existing_files({path}, "report");
  face::With_errors(Error_kind::output, [&] {
    exporting::New_file file(path);
    file << picture;
    file.Finish();
    return true;
  });
}

}  // namespace vorlane::report
