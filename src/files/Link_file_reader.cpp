#include "files/Link_file_reader.h"

#include <string_view>

#include "control/Clique_find_ext_cont.h"
#include "files/Cut_lines.h"
#include "foundation/Errors.h"
#include "foundation/Line_reader.h"
#include "foundation/My_string_to_d.h"
#include "foundation/Text_fields.h"

namespace gns {

namespace {

/// The loop of both readers. `accept(rest, weight)` reads what follows the two names; it yields
/// false if the line is bad. `keeps(weight)` tells whether a good line enters the map.
template <typename Accept, typename Keeps>
void Read_links(const std::string& file_name, Link_map& links, bool weighted, Accept accept,
                Keeps keeps) {
  Line_reader reader(file_name, Line_reader::Source::any_file, {'\n'},
                     external_control::Check_inside_long_stage);
  links.clear();
  Link_map_builder builder(weighted);
  for (std::string_view cut_line; Next_cut_line(reader, cut_line);) {
    external_control::Check_inside_long_stage();
    std::string_view rest = cut_line;
    const std::string_view first = Extract_word(rest);
    const std::string_view second = Extract_word(rest);
    double weight = 0.0;
    if (second.empty() || !accept(rest, weight)) {
      links = builder.Build();
      throw Xep_wrong_line(std::string(cut_line));
    }
    if (first != second && keeps(weight)) builder.Add(first, second, weight);
  }
  links = builder.Build();
}

}  // namespace

bool Link_in_interval(double weight, bool use_lower_threshold, double lower_threshold,
                      bool use_upper_threshold, double upper_threshold) {
  if (use_lower_threshold && !(weight > lower_threshold)) return false;
  return !(use_upper_threshold && !(weight < upper_threshold));
}

void Read_weighted_links(const std::string& file_name, Link_map& links, bool use_lower_threshold,
                         double lower_threshold, bool use_upper_threshold, double upper_threshold) {
  Read_links(
      file_name, links, true,
      [](std::string_view rest, double& weight) { return Extract_double(rest, weight); },
      [&](double weight) {
        return Link_in_interval(weight, use_lower_threshold, lower_threshold, use_upper_threshold,
                                upper_threshold);
      });
}

void Read_unw_links(const std::string& file_name, Link_map& links) {
  Read_links(
      file_name, links, false, [](std::string_view, double&) { return true; },
      [](double) { return true; });
}

}  // namespace gns
