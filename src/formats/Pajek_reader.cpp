#include "formats/Pajek_reader.h"

#include <array>
#include <limits>
#include <string_view>

#include "control/Run_control.h"
#include "formats/Cut_field.h"
#include "formats/Labelled_links.h"
#include "formats/Number_name.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_kind.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

using namespace std::string_view_literals;

class Pajek_content {
 public:
  Pajek_content(const std::string& file, bool weighted)
      : links(file, true), file_(file), weighted_(weighted) {}

  void Take_line(std::size_t number, std::string_view line) {
    line_number_ = number;
    Cut_field fields(file_, number, line);
    if (fields.Is_at_end()) return;
    const std::string_view trimmed = Trimmed(line, " \t\r");
    if (trimmed.starts_with('%') || trimmed.starts_with("/*")) return;
    if (trimmed.starts_with('*')) return Begin_section(fields);
    switch (section_) {
      case Section::vertices:
        return Take_vertex(fields);
      case Section::lines:
        return Take_link(fields);
      case Section::lists:
        return Take_list(fields);
      case Section::skipped:
        return;
      case Section::none:
        break;
    }
    fields.Word();
    fields.Refuse("*Vertices", "A Pajek network begins with its vertices.");
  }

  Labelled_links links;
  bool has_arcs = false;
  std::size_t first_link_line = 0;

 private:
  enum class Section { none, vertices, lines, lists, skipped };
  struct Section_word {
    std::string_view word;
    Section section;
    bool is_directed;
  };

  void Begin_section(Cut_field& fields) {
    static constexpr std::array words = {Section_word{"*edges"sv, Section::lines, false},
                                         Section_word{"*arcs"sv, Section::lines, true},
                                         Section_word{"*edgeslist"sv, Section::lists, false},
                                         Section_word{"*arcslist"sv, Section::lists, true}};
    const std::string word = Lower_case(fields.Word());
    if (word == "*network") {
      section_ = Section::skipped;
      return;
    }
    if (word == "*vertices") return Begin_vertices(fields);
    for (const Section_word& known : words) {
      if (word != known.word) continue;
      if (count_ == 0) fields.Refuse("*Vertices", "Vertices stand in front of their links.");
      if (first_link_line != 0 && has_arcs != known.is_directed)
        fields.Refuse(has_arcs ? "no edges beside arcs" : "no arcs beside edges",
                      "Put the edges and the arcs into files of their own.");
      section_ = known.section;
      has_arcs = known.is_directed;
      if (first_link_line == 0) first_link_line = line_number_;
      return;
    }
    fields.Refuse("*Vertices, *Edges, *Arcs, *Edgeslist or *Arcslist",
                  "Only these parts of a network are read.");
  }

  void Begin_vertices(Cut_field& fields) {
    if (count_ != 0)
      fields.Refuse("one network in a file", "Put each network into a file of its own.");
    constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max() - 1;
    count_ = fields.Whole_number("how many vertices there are", "", 1, most);
    expected_vertex_ = "the number of a vertex, from 1 to " + std::to_string(count_);
    section_ = Section::vertices;
  }

  void Take_vertex(Cut_field& fields) {
    const std::uint32_t node = Node(fields);
    if (!links.Declare(node, fields.Place()))
      fields.Refuse("a number that no vertex before has", "Leave one of them out.");
    if (!fields.Is_at_end()) links.Set_label(node, fields.Label());
  }

  void Take_link(Cut_field& fields) {
    const std::uint32_t first = Node(fields);
    const std::uint32_t second = Node(fields);
    double weight = 1.0;
    if (weighted_ && !fields.Is_at_end())
      weight = fields.Number(expected_weight, "Write numbers with a point.");
    links.Add(first, second, weight);
  }

  void Take_list(Cut_field& fields) {
    const std::uint32_t first = Node(fields);
    while (!fields.Is_at_end()) links.Add(first, Node(fields), 1.0);
  }

  std::uint32_t Node(Cut_field& fields) {
    const std::uint64_t number = fields.Whole_number(
        expected_vertex_, "The first line tells how many there are.", 1, count_);
    return links.Node_of(Number_name(number).Text(), {line_number_, 0});
  }

  std::string file_;
  bool weighted_;
  Section section_ = Section::none;
  std::uint64_t count_ = 0;
  std::string expected_vertex_;
  std::size_t line_number_ = 0;
};

}  // namespace

void Read_pajek(Line_reader& reader, const Input_wishes& wishes, Name_rule& names,
                const std::string& file, Link_file_check& check, Link_intake& intake) {
  if (reader.Peek(utf8_mark.size()) == utf8_mark) reader.Take(utf8_mark.size(), 0);
  Pajek_content content(file, intake.Is_weighted());
  for (std::string_view line; reader.Next(line);) {
    external_control::Check_inside_long_stage();
    content.Take_line(reader.Lines_taken(), line);
  }
  if (content.first_link_line != 0)
    Check_direction(content.has_arcs, wishes.directed, content.first_link_line, check);
  content.links.Hand_over(intake.Is_weighted(), names, check, intake);
}

}  // namespace gns
