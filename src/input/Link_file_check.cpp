#include "input/Link_file_check.h"

#include <algorithm>
#include <array>

#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_kind.h"

namespace gns {

namespace {

using namespace std::string_view_literals;

/// A line with a link, taken apart.
struct Fields {
  explicit Fields(std::string_view cut_line) : line(cut_line) {
    std::string_view rest = cut_line;
    first = Extract_word(rest);
    second = Extract_word(rest);
    third = Extract_word(rest);
  }

  std::string_view line;
  std::string_view first;
  std::string_view second;
  std::string_view third;
};

template <std::size_t N>
bool Is_one_of(std::string_view word, const std::array<std::string_view, N>& words) {
  return std::ranges::find(words, word) != words.end();
}

bool Either_name(const Fields& fields, bool (*is_odd)(std::string_view)) {
  return is_odd(fields.first) || is_odd(fields.second);
}

bool Begins_other_format(const Fields& fields) {
  constexpr std::array starts = {"*vertices"sv, "*network"sv, "*edges"sv,   "*arcs"sv,  "<"sv,
                                 "{"sv,         "["sv,        "nodedef>"sv, "graph ["sv};
  const std::string line = Lower_case(fields.line.substr(0, 80));
  if (std::ranges::any_of(starts, [&](auto start) { return line.starts_with(start); })) return true;
  return fields.line.ends_with('{') && (line.starts_with("graph") || line.starts_with("digraph"));
}

bool Has_header_words(const Fields& fields) {
  constexpr std::array words = {"source"sv, "target"sv, "from"sv,  "to"sv,         "src"sv,
                                "dst"sv,    "node1"sv,  "node2"sv, "node_1"sv,     "node_2"sv,
                                "id1"sv,    "id2"sv,    "id_1"sv,  "id_2"sv,       "node_a"sv,
                                "node_b"sv, "nodea"sv,  "nodeb"sv, "fromnodeid"sv, "tonodeid"sv};
  const auto is_header_word = [&](std::string_view name) {
    return Is_one_of(Trimmed(Lower_case(name.substr(0, 80)), "\",;"), words);
  };
  return is_header_word(fields.first) && is_header_word(fields.second);
}

bool Is_comment(const Fields& fields) {
  return fields.first.starts_with('%') || fields.first.starts_with("//");
}

bool Has_quotes(const Fields& fields) {
  return Either_name(
      fields, [](std::string_view name) { return name.front() == '"' || name.back() == '"'; });
}

bool Has_separators(const Fields& fields) {
  static constexpr std::string_view separators = ",;|";
  return Either_name(fields, [](std::string_view name) {
    return separators.find(name.front()) != std::string_view::npos ||
           separators.find(name.back()) != std::string_view::npos;
  });
}

bool Has_arrow(const Fields& fields) {
  constexpr std::array arrows = {"->"sv, "--"sv, "=>"sv, "<->"sv, "<-"sv};
  return Is_one_of(fields.second, arrows);
}

/// Two names between tabs, and a blank in the first of them.
bool Has_blanks_in_names(const Fields& fields) {
  const std::size_t tab = fields.line.find('\t');
  return tab != std::string_view::npos &&
         Trimmed(fields.line.substr(0, tab), " ").find(' ') != std::string_view::npos;
}

struct Rule {
  bool (*broken)(const Fields& fields);
  bool first_line_only;
  const char* fault;
  const char* cure;
  const char* command;  ///< that mends the file, if there is one
};

constexpr std::array rules = {
    Rule{Begins_other_format, true,
         "this looks like the beginning of a file of another format, whose lines are read as links",
         "tell which by --format, or turn it into lines of two names and perhaps a weight", ""},
    Rule{Is_comment, false, "this looks like a comment, but is read as a link",
         "begin comments with '#'", "sed -E 's:^[ \\t]*(%|//):#:'"},
    Rule{Has_quotes, false, "quotation marks are read as parts of the names", "take them out",
         "tr -d '\"'"},
    Rule{Has_separators, false, "commas, semicolons or bars are read as parts of the names",
         "separate fields by blanks or tabs", "tr ',;|' ' '"},
    Rule{Has_arrow, false, "the arrow between the names is read as the second name", "take it out",
         "sed -E 's/ (->|--|=>|<->|<-) / /'"},
    Rule{Has_blanks_in_names, false,
         "a name between tabs holds blanks, so that its first two words are read as the names",
         "put something else in place of the blanks", "tr ' ' _"},
};

constexpr std::size_t other_format_kind = 0;
constexpr std::size_t utf8_mark_kind = rules.size();
constexpr std::size_t line_end_kind = utf8_mark_kind + 1;
constexpr std::size_t header_kind = utf8_mark_kind + 2;
constexpr std::size_t decimal_comma_kind = utf8_mark_kind + 3;

bool Is_number(std::string_view word) {
  double number = 0.0;
  return stringtodouble(word, number);
}

/// True if a carriage return stands somewhere else than at the end of a line.
bool Has_bare_carriage_return(std::string_view text) {
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at)) {
    at = text.find_first_not_of('\r', at);
    if (at != std::string_view::npos && text[at] != '\n') return true;
  }
  return false;
}

}  // namespace

void Link_file_check::Begin(const std::string& path, std::string_view first_bytes) {
  path_ = path;
  Refuse_other_kinds(path, first_bytes);
  if (refuse_zeros_) Refuse_zeros(path, first_bytes);
  if (first_bytes.starts_with(utf8_mark))
    Warn(utf8_mark_kind, 1, "the mark of UTF-8 at the start is read as a part of the first name",
         "take it out: " + To_new_file("tail -c +4"));
  if (Has_bare_carriage_return(first_bytes))
    Warn(line_end_kind, 1, "lines end with a carriage return alone, so that they are read as one",
         "end them with a line feed: " + To_new_file("tr '\\r' '\\n'"));
}

void Link_file_check::Look_at(std::string_view cut_line, std::size_t line_number) {
  const bool first_line = lines_seen_++ == 0;
  if (first_line && cut_line.starts_with(utf8_mark)) cut_line.remove_prefix(utf8_mark.size());
  const Fields fields(cut_line);
  // Where there is no link, the reader will tell; one word about another format is enough.
  if (fields.second.empty() || warned_[other_format_kind]) return;
  for (std::size_t kind = 0; kind < rules.size(); ++kind) {
    const Rule& rule = rules[kind];
    if ((rule.first_line_only && !first_line) || warned_[kind] || !rule.broken(fields)) continue;
    Warn(kind, line_number, rule.fault,
         rule.cure + (*rule.command == '\0' ? "" : ": " + To_new_file(rule.command)));
    if (rule.first_line_only) return;
  }
  if (first_line && Has_header_words(fields)) Warn_of_header(line_number);
  // A third field that is no number in the first line alone is a header, too.
  if (first_line && !fields.third.empty() && !Is_number(fields.third)) odd_line_ = line_number;
  if (lines_seen_ == 2 && odd_line_ != 0 && Is_number(fields.third)) Warn_of_header(odd_line_);
}

void Link_file_check::Warn_of_header(std::size_t line_number) {
  if (!warned_[header_kind])
    Warn(header_kind, line_number, "this looks like a header, but is read as a link",
         "put '#' in front of the line: " +
             To_new_file("sed '" + std::to_string(line_number) + "s/^/#/'"));
}

void Link_file_check::Look_behind_weight(std::string_view rest, std::size_t line_number) {
  const bool decimal_comma = rest.size() > 1 && rest[0] == ',' && rest[1] >= '0' && rest[1] <= '9';
  if (decimal_comma && !warned_[decimal_comma_kind])
    Warn(decimal_comma_kind, line_number, "the weight is read up to its comma only",
         "write a point: " + To_new_file("sed -E 's/([0-9]),([0-9])/\\1.\\2/g'"));
}

void Link_file_check::Warn(std::size_t kind, std::size_t line_number, const std::string& fault,
                           const std::string& cure) {
  warned_.set(kind);
  warnings_.push_back({line_number, fault, cure});
}

std::string Link_file_check::To_new_file(const std::string& command) const {
  if (unpacking_.empty()) return command + " < " + Shell_word(path_) + " > NEW_FILE";
  return unpacking_ + " " + Shell_word(path_) + " | " + command + " > NEW_FILE";
}

std::string In_words(const Link_file_warning& warning, const std::string& file) {
  return file + ", line " + std::to_string(warning.line) + ": " + warning.fault + "; " +
         warning.cure;
}

}  // namespace gns
