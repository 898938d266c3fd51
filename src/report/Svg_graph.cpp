#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "queries/Shared_nodes.h"
#include "report/Svg_figures.h"
#include "report/Svg_sink.h"

namespace vorlane::report {

namespace {

using layout::Point;

constexpr double width = 1000;
constexpr double margin = 40;
constexpr double top = 40;
constexpr Node most_nodes = 3000;  ///< that are drawn one by one
constexpr std::size_t most_circles = 400;

void Put_title(const Drawing& drawing, std::string_view what, Svg_sink& out) {
  out << R"(<text x="10" y="24" font-size="17">)" << exporting::In_xml{drawing.title} << what;
  if (drawing.k) out << ", k = " << *drawing.k;
  out << "</text>\n";
}

/// Fits places into the picture.
class Frame {
 public:
  Frame(double low_x, double low_y, double reach)
      : low_x_(low_x), low_y_(low_y), scale_((width - 2 * margin) / std::max(reach, 1e-9)) {}

  [[nodiscard]] Length X(double x) const { return {margin + (x - low_x_) * scale_}; }
  [[nodiscard]] Length Y(double y) const { return {top + margin + (y - low_y_) * scale_}; }
  [[nodiscard]] double Scale() const { return scale_; }

  static Frame Around(const std::vector<Point>& places) {
    if (places.size() < 2) return {0, 0, 1};
    Point low = places[1];
    Point high = low;
    for (std::size_t node = 2; node < places.size(); ++node) {
      low = {std::min(low.x, places[node].x), std::min(low.y, places[node].y)};
      high = {std::max(high.x, places[node].x), std::max(high.y, places[node].y)};
    }
    return {low.x, low.y, std::max(high.x - low.x, high.y - low.y)};
  }

 private:
  double low_x_;
  double low_y_;
  double scale_;
};

class Network_picture {
 public:
  explicit Network_picture(const Drawing& drawing)
      : drawing_(drawing),
        network_(drawing.selection.Network()),
        layout_(drawing.selection.Layout()),
        frame_(Frame::Around(layout_->nodes)),
        radius_(std::clamp(90 / std::sqrt(std::max(1U, network_.size())), 2.5, 13.0)),
        out_(width, width + top, drawing.title) {}

  std::string Draw() {
    Put_title(drawing_, ": communities", out_);
    Draw_links();
    for (Node node = 1; node <= network_.size(); ++node) Draw_node(node);
    return out_.Text();
  }

 private:
  void Draw_links() {
    const bool directed = drawing_.selection.Is_directed();
    if (directed)
      out_ << "<defs><marker id=\"arrow\" viewBox=\"0 0 10 10\" refX=\"10\" refY=\"5\" "
              "markerWidth=\"6\" markerHeight=\"6\" orient=\"auto\">"
              "<path d=\"M0 1 10 5 0 9z\" fill=\"#777\"/></marker></defs>\n";
    out_ << "<g stroke=\"#999\" stroke-width=\"0.7\" stroke-opacity=\"0.6\">\n";
    drawing_.selection.For_each_link([&](Node first, Node second, double) {
      const Point& from = layout_->nodes[first];
      Point to = layout_->nodes[second];
      if (directed) to = Before(from, to);
      out_ << "<path d=\"M" << frame_.X(from.x) << ' ' << frame_.Y(from.y) << 'L' << frame_.X(to.x)
           << ' ' << frame_.Y(to.y) << "\"" << (directed ? " marker-end=\"url(#arrow)\"" : "")
           << "/>\n";
    });
    out_ << "</g>\n";
  }

  /// Where a link touches the disc of its second node.
  [[nodiscard]] Point Before(const Point& from, const Point& to) const {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double part = std::max(0.0, 1 - radius_ / frame_.Scale() / std::max(length, 1e-9));
    return {from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
  }

  void Draw_node(Node node) {
    const Point& place = layout_->nodes[node];
    const auto communities = drawing_.picture.Communities_of(node);
    out_ << "<g transform=\"translate(" << frame_.X(place.x) << ' ' << frame_.Y(place.y) << ")\">";
    if (communities.size() < 2)
      out_ << "<circle r=\"" << Length{radius_} << "\" fill=\""
           << (communities.empty() ? "#ffffff" : drawing_.picture.Colour_of(node).In_hex())
           << "\" stroke=\"" << (communities.empty() ? "#999" : "#333")
           << R"(" stroke-width="0.8"/>)";
    else
      Draw_pie(communities);
    Draw_texts(node, communities);
    out_ << "</g>\n";
  }

  void Draw_pie(std::span<const std::uint32_t> communities) {
    const double radius = radius_ * 1.35;
    const double turn = 2 * std::numbers::pi / static_cast<double>(communities.size());
    const auto corner = [&](double slice) {
      out_ << Length{radius * std::sin(slice * turn)} << ' '
           << Length{-radius * std::cos(slice * turn)};
    };
    for (std::size_t i = 0; i < communities.size(); ++i) {
      out_ << "<path d=\"M0 0L";
      corner(static_cast<double>(i));
      out_ << 'A' << Length{radius} << ' ' << Length{radius} << " 0 0 1 ";
      corner(static_cast<double>(i + 1));
      out_ << "Z\" fill=\"" << drawing_.picture.Colour_of_community(communities[i]).In_hex()
           << R"(" stroke="#fff" stroke-width="0.6"/>)";
    }
    out_ << "<circle r=\"" << Length{radius} << R"(" fill="none" stroke="#000" )"
         << "stroke-width=\"1.6\"/>";
  }

  /// The numbers of the communities in the disc, so that colours aren't needed, and the name.
  void Draw_texts(Node node, std::span<const std::uint32_t> communities) {
    constexpr double least_radius = 5;
    constexpr Node most_names = 80;
    if (radius_ >= least_radius && !communities.empty()) {
      out_ << "<text y=\"" << Length{radius_ * 0.35} << "\" font-size=\"" << Length{radius_ * 0.95}
           << R"(" text-anchor="middle" stroke="#fff" stroke-width="2" paint-order="stroke">)";
      for (std::size_t i = 0; i < communities.size(); ++i)
        out_ << (i > 0 ? "+" : "") << communities[i];
      out_ << "</text>";
    }
    if (network_.size() > most_names) return;
    out_ << "<text y=\"" << Length{-1.5 * radius_} << R"(" text-anchor="middle" stroke="#fff" )"
         << R"(stroke-width="3" paint-order="stroke">)" << exporting::In_xml{network_.Name(node)}
         << "</text>";
  }

  const Drawing& drawing_;
  Network network_;
  std::shared_ptr<const layout::Layout> layout_;
  Frame frame_;
  double radius_;
  Svg_sink out_;
};

/// The largest communities as circles, with lines between those that share nodes.
std::string Communities_in_svg(const Drawing& drawing) {
  const auto layout = drawing.selection.Layout();
  const queries::Forest forest(drawing.selection.Results());
  const auto& ks = forest.Ks();
  const auto level = static_cast<std::size_t>(std::ranges::find(ks, *drawing.k) - ks.begin());
  const std::uint32_t first = forest.First_of(level);
  std::vector<std::uint32_t> drawn(forest.First_of(level + 1) - first);
  for (std::uint32_t i = 0; i < drawn.size(); ++i) drawn[i] = i;
  std::ranges::stable_sort(drawn, std::ranges::greater(),
                           [&](std::uint32_t i) { return forest.Size(first + i); });
  drawn.resize(std::min(drawn.size(), most_circles));
  std::ranges::sort(drawn);
  Svg_sink out(width, width + top, drawing.title);
  Put_title(drawing, ": its largest communities, overlaps as lines", out);
  const Frame frame(-layout->radius, -layout->radius, 2 * layout->radius);
  const auto circle = [&](std::uint32_t i) { return layout->communities[first + i]; };
  for (const std::uint32_t i : drawn) {
    const double radius = circle(i).radius * frame.Scale();
    out << "<circle cx=\"" << frame.X(circle(i).centre.x) << "\" cy=\""
        << frame.Y(circle(i).centre.y) << "\" r=\"" << Length{radius} << "\" fill=\""
        << drawing.picture.Colour_of_community(i).In_hex()
        << "\" fill-opacity=\"0.75\" stroke=\"#222\" stroke-width=\"0.6\"/>\n";
  }
  out << "<g stroke=\"#000\" stroke-opacity=\"0.5\" fill=\"none\">\n";
  for (const Overlap& overlap : drawing.selection.Results().Overlaps_at(*drawing.k)) {
    if (!std::ranges::binary_search(drawn, overlap.first) ||
        !std::ranges::binary_search(drawn, overlap.second))
      continue;
    const Point from = circle(overlap.first).centre;
    const Point to = circle(overlap.second).centre;
    out << "<path d=\"M" << frame.X(from.x) << ' ' << frame.Y(from.y) << 'L' << frame.X(to.x) << ' '
        << frame.Y(to.y) << "\" stroke-width=\"" << Length{0.5 + std::sqrt(overlap.shared) / 3}
        << "\"/>\n";
  }
  out << "</g>\n";
  for (const std::uint32_t i : drawn) {
    constexpr double least_radius = 9;
    if (circle(i).radius * frame.Scale() < least_radius) continue;
    out << "<text x=\"" << frame.X(circle(i).centre.x) << "\" y=\"" << frame.Y(circle(i).centre.y)
        << R"(" dy="4" text-anchor="middle" stroke="#fff" stroke-width="3" )"
        << "paint-order=\"stroke\">" << i << "</text>\n";
  }
  return out.Text();
}

}  // namespace

std::string Graph_in_svg(const Drawing& drawing) {
  if (drawing.selection.Network().size() <= most_nodes || !drawing.k)
    return Network_picture(drawing).Draw();
  return Communities_in_svg(drawing);
}

}  // namespace vorlane::report
