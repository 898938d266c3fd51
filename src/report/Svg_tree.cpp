#include <algorithm>
#include <utility>
#include <vector>

#include "report/Svg_figures.h"
#include "report/Svg_sink.h"

namespace vorlane::report {

namespace {

using queries::Forest;

constexpr double width = 1000;
constexpr double left = 50;
constexpr double top = 50;
constexpr double narrow = 0.6;  ///< blocks below it can't be seen alone

/// Where the communities stand, in nodes from the left.
struct Span_of_nodes {
  double from = 0;
  double width = 0;
};

/// As wide as its nodes, or as those inside it together if these overlap; the widest to the left.
std::vector<Span_of_nodes> Spans(const Forest& forest, double& total) {
  std::vector<Span_of_nodes> spans(forest.size());
  std::vector<double> inside(forest.size(), 0);
  total = 0;
  for (std::uint32_t place = forest.size(); place-- > 0;) {
    spans[place].width = std::max<double>(forest.Size(place), inside[place]);
    const std::uint32_t parent = forest.Parent(place);
    (parent == Forest::none ? total : inside[parent]) += spans[place].width;
  }
  std::vector<std::uint32_t> order(forest.size());
  for (std::uint32_t place = 0; place < order.size(); ++place) order[place] = place;
  std::ranges::stable_sort(order, [&](std::uint32_t a, std::uint32_t b) {
    return std::pair(forest.Level_of(a), -spans[a].width) <
           std::pair(forest.Level_of(b), -spans[b].width);
  });
  double next_root = 0;
  std::vector<double> next(forest.size());
  for (const std::uint32_t place : order) {
    const std::uint32_t parent = forest.Parent(place);
    double& from = parent == Forest::none ? next_root : next[parent];
    next[place] = spans[place].from = from;
    from += spans[place].width;
  }
  return spans;
}

/// By place, the community at the shown k that holds it; `none` below that k.
std::vector<std::uint32_t> Shown_around(const Forest& forest, std::size_t shown) {
  std::vector<std::uint32_t> around(forest.size(), Forest::none);
  for (std::uint32_t place = forest.First_of(shown); place < forest.size(); ++place) {
    const std::uint32_t parent = forest.Parent(place);
    if (place < forest.First_of(shown + 1))
      around[place] = place;
    else if (parent != Forest::none)
      around[place] = around[parent];
  }
  return around;
}

/// Rows of smaller k are higher, as 1 / k, since more happens there.
std::vector<double> Row_bounds(const std::vector<std::uint32_t>& ks) {
  constexpr double most = 60;
  constexpr double all = 600;
  std::vector<double> bounds(ks.size() + 1, 0);
  for (std::size_t level = ks.size(); level-- > 0;)
    bounds[level] = bounds[level + 1] + 1.0 / ks[level];
  const double scale = ks.empty() ? 0 : std::min(all / bounds[0], most * ks[0]);
  for (double& bound : bounds) bound *= scale;
  return bounds;
}

class Tree_picture {
 public:
  explicit Tree_picture(const Drawing& drawing)
      : drawing_(drawing),
        forest_(drawing.selection.Results()),
        spans_(Spans(forest_, total_)),
        rows_(Row_bounds(forest_.Ks())),
        height_(top + rows_.front() + 40),
        out_(width, height_, drawing.title) {}

  std::string Draw() {
    out_ << R"(<text x="10" y="24" font-size="17">)" << exporting::In_xml{drawing_.title}
         << ": communities in communities";
    if (drawing_.k) out_ << ", coloured at k = " << *drawing_.k;
    out_ << "</text>\n";
    if (drawing_.k) {
      const auto& ks = forest_.Ks();
      shown_ = static_cast<std::size_t>(std::ranges::find(ks, *drawing_.k) - ks.begin());
      around_ = Shown_around(forest_, shown_);
      for (std::size_t level = 0; level < ks.size(); ++level) Draw_level(level);
    }
    out_ << "<text x=\"" << Length{left} << "\" y=\"" << Length{height_ - 12}
         << "\" fill=\"#444\">width: nodes; a block stands on the community that holds it; "
            "upwards: greater k, tighter communities</text>\n";
    return out_.Text();
  }

 private:
  struct Block {
    double x;
    double y;
    double wide;
    double row;
  };

  void Draw_level(std::size_t level) {
    const double y = top + rows_[level + 1];
    const double row = rows_[level] - rows_[level + 1];
    const std::uint32_t k = forest_.Ks()[level];
    constexpr double least_for_text = 12;
    const bool has_room = row >= least_for_text || forest_.Ks()[level] % 10 == 0;
    if (has_room)
      out_ << "<text x=\"" << Length{left - 8} << "\" y=\"" << Length{y + row / 2 + 4}
           << R"(" text-anchor="end")" << (level == shown_ ? " font-weight=\"bold\"" : "") << '>'
           << (level == shown_ || level == 0 ? "k = " : "") << k << "</text>\n";
    double haze_from = width;
    double haze_end = 0;
    for (std::uint32_t place = forest_.First_of(level); place < forest_.First_of(level + 1);
         ++place) {
      const double x = left + Scaled(spans_[place].from);
      const double wide = Scaled(spans_[place].width);
      if (wide >= narrow) {
        Draw_block(place, {x, y, wide, row});
      } else {
        haze_from = std::min(haze_from, x);
        haze_end = std::max(haze_end, x + wide);
      }
    }
    if (haze_from < haze_end)
      out_ << "<rect x=\"" << Length{haze_from} << "\" y=\"" << Length{y + row - 1.5}
           << "\" width=\"" << Length{haze_end - haze_from}
           << "\" height=\"1\" fill=\"#888\" opacity=\"0.5\"/>\n";
  }

  [[nodiscard]] double Scaled(double nodes) const { return nodes * (width - left - 10) / total_; }

  void Draw_block(std::uint32_t place, const Block& block) {
    const auto& [x, y, wide, row] = block;
    const bool in_colour = around_[place] != Forest::none;
    constexpr double gap = 0.8;
    out_ << "<rect x=\"" << Length{x} << "\" y=\"" << Length{y} << "\" width=\""
         << Length{std::max(wide - gap, narrow / 2)} << "\" height=\"" << Length{row - gap}
         << "\" fill=\""
         << (in_colour
                 ? drawing_.picture.Colour_of_community(around_[place] - forest_.First_of(shown_))
                       .In_hex()
                 : "#dddddd")
         << "\" stroke=\"#333\" stroke-width=\"0.4\"/>\n";
    constexpr double room_for_text = 30;
    constexpr double least_row = 14;
    if (wide < room_for_text || row < least_row) return;
    out_ << "<text x=\"" << Length{x + wide / 2} << "\" y=\"" << Length{y + row / 2 + 4}
         << R"(" text-anchor="middle" stroke="#fff" stroke-width="3" paint-order="stroke">)"
         << forest_.Size(place) << "</text>\n";
  }

  const Drawing& drawing_;
  Forest forest_;
  double total_ = 0;
  std::vector<Span_of_nodes> spans_;
  std::vector<double> rows_;  ///< by level, and the end: its lower edge
  double height_;
  Svg_sink out_;
  std::size_t shown_ = 0;
  std::vector<std::uint32_t> around_;
};

}  // namespace

std::string Tree_in_svg(const Drawing& drawing) { return Tree_picture(drawing).Draw(); }

}  // namespace vorlane::report
