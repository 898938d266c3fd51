#include <algorithm>
#include <cmath>
#include <string_view>

#include "report/Svg_figures.h"
#include "report/Svg_sink.h"

namespace vorlane::report {

namespace {

constexpr double width = 1000;
constexpr double height = 820;
constexpr double panel_width = 410;
constexpr double panel_height = 300;

struct Panel {
  std::string_view title;
  std::string_view across;
  std::string_view upwards;
  const Distribution& distribution;
  double left;
  double top;
};

/// Powers of ten that hold all values from 1 on.
int Decades(double most) {
  return std::max(1, static_cast<int>(std::ceil(std::log10(std::max(most, 1.0)))));
}

void Draw_axis_texts(const Panel& panel, int across, int upwards, Svg_sink& out) {
  for (int decade = 0; decade <= across; ++decade) {
    const double x = panel.left + panel_width * decade / across;
    out << "<text x=\"" << Length{x} << "\" y=\"" << Length{panel.top + panel_height + 16}
        << R"(" text-anchor="middle">)" << Length{std::pow(10.0, decade)} << "</text>\n";
  }
  for (int decade = 0; decade <= upwards; ++decade) {
    const double y = panel.top + panel_height * (1 - static_cast<double>(decade) / upwards);
    out << "<path d=\"M" << Length{panel.left} << ' ' << Length{y} << 'h' << Length{panel_width}
        << R"(" stroke="#ddd"/><text x=")" << Length{panel.left - 6} << "\" y=\"" << Length{y + 4}
        << R"(" text-anchor="end">)" << Length{std::pow(10.0, decade)} << "</text>\n";
  }
  out << "<text x=\"" << Length{panel.left} << "\" y=\"" << Length{panel.top - 10}
      << R"(" font-size="15">)" << panel.title << "</text><text x=\""
      << Length{panel.left + panel_width / 2} << "\" y=\"" << Length{panel.top + panel_height + 34}
      << R"(" text-anchor="middle">)" << panel.across << "</text><text transform=\"translate("
      << Length{panel.left - 48} << ' ' << Length{panel.top + panel_height / 2}
      << ") rotate(-90)\" text-anchor=\"middle\">" << panel.upwards << "</text>\n";
}

void Draw(const Panel& panel, Svg_sink& out) {
  double largest = 1;
  double most = 1;
  std::uint32_t of_zero = 0;
  for (const auto& [value, times] : panel.distribution) {
    largest = std::max<double>(largest, value);
    most = std::max<double>(most, times);
    if (value == 0) of_zero = times;
  }
  const int across = Decades(largest);
  const int upwards = Decades(most);
  Draw_axis_texts(panel, across, upwards, out);
  out << "<rect x=\"" << Length{panel.left} << "\" y=\"" << Length{panel.top} << "\" width=\""
      << Length{panel_width} << "\" height=\"" << Length{panel_height}
      << "\" fill=\"none\" stroke=\"#333\"/>\n<g fill=\"#0072b2\" stroke=\"#000\" "
         "stroke-width=\"0.6\">\n";
  for (const auto& [value, times] : panel.distribution)
    if (value > 0 && times > 0)
      out << "<circle cx=\"" << Length{panel.left + panel_width * std::log10(value) / across}
          << "\" cy=\"" << Length{panel.top + panel_height * (1 - std::log10(times) / upwards)}
          << "\" r=\"4\"/>\n";
  out << "</g>\n";
  if (of_zero > 0)
    out << "<text x=\"" << Length{panel.left + panel_width - 8} << "\" y=\""
        << Length{panel.top + 18} << R"(" text-anchor="end">)" << of_zero << " at 0</text>\n";
}

}  // namespace

std::string Distributions_in_svg(const Drawing& drawing) {
  Svg_sink out(width, height, drawing.title);
  out << R"(<text x="10" y="24" font-size="17">)" << exporting::In_xml{drawing.title}
      << ": distributions";
  if (drawing.k) out << " at k = " << *drawing.k;
  out << "</text>\n";
  Distributions all;
  if (drawing.k) all = drawing.selection.Results().Statistics_at(*drawing.k).all;
  const Panel panels[] = {
      {"Community sizes", "nodes of a community", "communities", all.size, 70, 70},
      {"Memberships", "communities of a node", "nodes", all.membership, 570, 70},
      {"Overlaps", "nodes that two communities share", "pairs", all.overlap, 70, 470},
      {"Degrees", "communities that one overlaps with", "communities", all.degree, 570, 470}};
  for (const Panel& panel : panels) Draw(panel, out);
  return out.Text();
}

}  // namespace vorlane::report
