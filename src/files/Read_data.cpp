#include "files/Read_data.h"

#include <string_view>
#include <utility>

#include "files/My_string_chopper.h"
#include "files/Pair_fields.h"
#include "foundation/Errors.h"
#include "foundation/io/Cut_lines.h"
#include "foundation/io/Line_reader.h"
#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Words.h"

namespace gns {

namespace {

/// The loop of the line forms: `take(line)` reads a record off its cut line.
template <typename Take>
void Read_lines(const std::string& file_name, Take take) {
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  for (std::string_view line; Next_cut_line(reader, line);) take(line);
}

/// The delimiters of the forms that have them, by what they end.
struct Delimiters {
  const Character_set& line;
  const Character_set& head;
  const Character_set& key;
  const Character_set& value;

  /// True of those that the writers use.
  [[nodiscard]] bool Are_usual() const {
    const Character_set blank = {' '};
    return line == Character_set{'\n'} && head == Character_set{':'} && key == blank &&
           value == blank;
  }
};

bool Is_digit(char c) { return c >= '0' && c <= '9'; }

/// Takes a key that is told as a plain number right in front of the head's delimiter, as nearly all
/// are; false, with nothing taken, for others.
bool Take_plain_head(std::string_view& record, const Delimiters& delimiters, std::int32_t& key) {
  for (const Character_set* set : {&delimiters.head, &delimiters.key})
    if (set->size() != 1 || Is_digit(set->Only())) return false;
  std::size_t digits = 0;
  while (digits < record.size() && Is_digit(record[digits])) ++digits;
  if (digits == record.size() || record[digits] != delimiters.head.Only() ||
      !Convert_plain(record.substr(0, digits), key))
    return false;
  record.remove_prefix(digits);
  Skip_delimiters(record, delimiters.head);
  return true;
}

std::int32_t Take_head(std::string_view& record, const Delimiters& delimiters) {
  std::int32_t key = 0;
  if (Take_plain_head(record, delimiters, key)) return key;
  my_string_chopper_class::Set_delims(delimiters.head);
  std::string_view head = Chop_word(record, delimiters.head);
  my_string_chopper_class::Set_delims(delimiters.key);
  head >> key;
  return key;
}

template <typename Values>
void Take_record(std::string_view record, const Delimiters& delimiters,
                 Table_by_index<Values>& table) {
  const std::int32_t key = Take_head(record, delimiters);
  my_string_chopper_class::Set_delims(delimiters.value);
  Values& values = table.Add(key);
  const std::size_t held = values.size();
  try {
    record >> values;
    if (values.size() == held) throw No_values();
  } catch (...) {
    table.Drop();
    throw;
  }
}

/// Takes whole lines off what the reader holds, as far as they are plain.
template <typename Table>
void Take_plain_rows(Line_reader& reader, Table& table) {
  const std::string_view held = reader.Held();
  const std::size_t held_rows = table.size();
  const std::size_t taken = table.Add_plain_lines(held.substr(0, held.rfind('\n') + 1));
  reader.Take(taken, table.size() - held_rows);
}

template <typename Table>
void Read_records(Table& table, const std::string& file_name, const Delimiters& delimiters) {
  Line_reader reader(file_name, Line_reader::Source::regular_file, delimiters.line);
  const Filling filling(&table);
  table.Reserve_for_text(reader.File_size());
  const bool usual = delimiters.Are_usual();
  for (std::string_view record; reader.Next(record);) {
    if (record.empty() || record.front() == '#') continue;
    if (!reader.Terminated()) record.remove_suffix(1);
    if (!record.empty()) Take_record(record, delimiters, table);
    if (usual) Take_plain_rows(reader, table);
  }
  my_string_chopper_class::Set_delims_default();
}

}  // namespace

void Read_data(Name_pairs& pairs, const std::string& file_name) {
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  Name_pairs read;
  read.Reserve_for_text(reader.File_size());
  const auto read_all = [&] {
    for (std::string_view line; Next_cut_line(reader, line); Take_plain_lines(reader, read)) {
      Name_pairs::value_type pair;
      if (!Extract_pair(line, pair)) throw Failed_pair();
      read.push_back(pair.first, pair.second);
    }
  };
  const auto finish = [&] {
    read.Append(pairs);
    read.Shrink_to_fit();
    pairs = std::move(read);
  };
  try {
    read_all();
  } catch (...) {
    finish();
    throw;
  }
  finish();
}

void Read_data(Overlap_table& table, const std::string& file_name) {
  const Filling filling(&table);
  Read_lines(file_name, [&](std::string_view line) {
    std::string_view rest = line;
    Overlap_table::key_type pair;
    std::uint32_t shared_nodes = 0;
    if (!Extract_pair(rest, pair)) throw Failed_pair();
    if (!Extract_integer(rest, shared_nodes)) throw Xep_wrong_line(std::string(line), file_name);
    table.Set(pair, shared_nodes);
  });
}

void Read_data(Distribution_table& table, const std::string& file_name) {
  Read_lines(file_name, [&](std::string_view line) {
    std::string_view rest = line;
    std::uint32_t value = 0;
    std::uint32_t count = 0;
    if (!Extract_integer(rest, value) || !Extract_integer(rest, count))
      throw Xep_wrong_line(std::string(line), file_name);
    table.insert_or_assign(table.end(), value, count);
  });
}

void Read_data(Names_by_index& table, const std::string& file_name,
               const Character_set& line_delims, const Character_set& head_delims,
               const Character_set& key_delims, const Character_set& value_delims) {
  Read_records(table, file_name, {line_delims, head_delims, key_delims, value_delims});
}

void Read_data(Indices_by_index& table, const std::string& file_name,
               const Character_set& line_delims, const Character_set& head_delims,
               const Character_set& key_delims, const Character_set& value_delims) {
  Read_records(table, file_name, {line_delims, head_delims, key_delims, value_delims});
}

void Read_data(Names_by_index& table, const std::string& file_name, char line_delim,
               char head_delim, char key_delim, char value_delim) {
  Read_data(table, file_name, Character_set{line_delim}, Character_set{head_delim},
            Character_set{key_delim}, Character_set{value_delim});
}

void Read_data(Indices_by_index& table, const std::string& file_name, char line_delim,
               char head_delim, char key_delim, char value_delim) {
  Read_data(table, file_name, Character_set{line_delim}, Character_set{head_delim},
            Character_set{key_delim}, Character_set{value_delim});
}

}  // namespace gns
