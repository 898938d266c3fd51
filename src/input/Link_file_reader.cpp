#include "input/Link_file_reader.h"

#include <string_view>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "foundation/io/Cut_lines.h"
#include "foundation/io/Line_reader.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_kind.h"

namespace gns {

namespace {

/// Where a line can't be read: at `rest`, a part of it.
Place_in_file Place_of(std::string_view rest, const std::string& file_name, std::size_t line_number,
                       std::string_view line, std::string_view expected) {
  constexpr std::size_t enough = 1000;  // for any message
  Skip_space(rest);
  const std::string_view before(line.data(), rest.data());
  return {file_name, line_number, Count_characters(before) + 1, std::string(expected),
          std::string(Beginning(Extract_word(rest), enough))};
}

/// The loop of all readers. `accept(rest, weight)` takes off what it reads behind the two names; it
/// yields false if the line is bad.
template <typename Accept>
void Read_lines(Line_reader& reader, const std::string& file_name, const Link_rule& rule,
                Link_map& links, Link_file_check* check, Accept accept) {
  if (check != nullptr) check->Begin(file_name, reader.Peek(kind_bytes));
  std::size_t to_look_at = check == nullptr ? 0 : Link_file_check::lines_to_look_at;
  links.clear();
  Link_intake intake(rule);
  std::string_view line;
  for (std::string_view cut_line; Next_cut_line(reader, cut_line, line);) {
    external_control::Check_inside_long_stage();
    if (to_look_at > 0) {
      --to_look_at;
      check->Look_at(cut_line, reader.Lines_taken());
    }
    std::string_view rest = cut_line;
    const std::string_view first = Extract_word(rest);
    const std::string_view second = Extract_word(rest);
    double weight = 0.0;
    if (second.empty() || !accept(rest, weight)) {
      links = intake.Build();
      throw Xep_wrong_line(std::string(cut_line),
                           Place_of(rest, file_name, reader.Lines_taken(), line,
                                    second.empty() ? expected_second_name : expected_weight));
    }
    intake.Take(first, second, weight);
    if (check != nullptr && rest.starts_with(','))
      check->Look_behind_weight(rest, reader.Lines_taken());
  }
  if (check != nullptr) check->counts = intake.Counts();
  links = intake.Build();
}

void Read_file(const std::string& file_name, const Link_rule& rule, Link_map& links,
               Link_file_check* check) {
  Line_reader reader(file_name, Line_reader::Source::any_file, {'\n'},
                     external_control::Check_inside_long_stage);
  Read_link_lines(reader, file_name, rule, links, check);
}

}  // namespace

void Read_link_lines(Line_reader& reader, const std::string& file_name, const Link_rule& rule,
                     Link_map& links, Link_file_check* check) {
  if (rule.weighted)
    Read_lines(reader, file_name, rule, links, check,
               [](std::string_view& rest, double& weight) { return Extract_double(rest, weight); });
  else
    Read_lines(reader, file_name, rule, links, check,
               [](std::string_view&, double&) { return true; });
}

void Read_weighted_links(const std::string& file_name, Link_map& links, bool use_lower_threshold,
                         double lower_threshold, bool use_upper_threshold, double upper_threshold,
                         Link_file_check* check) {
  Read_file(file_name,
            {true, use_lower_threshold, lower_threshold, use_upper_threshold, upper_threshold},
            links, check);
}

void Read_unw_links(const std::string& file_name, Link_map& links, Link_file_check* check) {
  Read_file(file_name, {}, links, check);
}

}  // namespace gns
