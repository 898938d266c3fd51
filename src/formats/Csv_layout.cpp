#include "formats/Csv_layout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "formats/Bad_field.h"
#include "formats/Csv_records.h"
#include "foundation/Errors.h"
#include "foundation/io/Byte_source.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

using namespace std::string_view_literals;

using Record = std::vector<std::string>;

constexpr std::size_t records_to_look_at = 20;

constexpr std::array first_words = {
    "source"sv, "from"sv,  "src"sv,       "node1"sv,   "node_1"sv, "id1"sv,        "id_1"sv,
    "node_a"sv, "nodea"sv, "source_id"sv, "person1"sv, "name1"sv,  "fromnodeid"sv, "head"sv};
constexpr std::array second_words = {"target"sv,  "to"sv,    "dst"sv,      "node2"sv, "node_2"sv,
                                     "id2"sv,     "id_2"sv,  "node_b"sv,   "nodeb"sv, "target_id"sv,
                                     "person2"sv, "name2"sv, "tonodeid"sv, "tail"sv};
constexpr std::array weight_words = {"weight"sv, "weights"sv, "w"sv, "value"sv, "count"sv};

/// A text in memory as a file.
class Text_bytes final : public Byte_source {
 public:
  explicit Text_bytes(std::string_view text) : rest_(text) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t given = std::min(size, rest_.size());
    std::memcpy(buffer, rest_.data(), given);
    rest_.remove_prefix(given);
    return given;
  }

 private:
  std::string_view rest_;
};

/// The first records as a separator cuts them, up to one that it can't.
std::vector<Record> Records_of(std::string_view start, char separator) {
  std::vector<Record> records;
  Line_reader reader(std::make_unique<Text_bytes>(start));
  Csv_records cut(reader, separator, std::numeric_limits<std::size_t>::max(), "");
  try {
    while (records.size() < records_to_look_at && cut.Next())
      records.emplace_back(cut.Fields().begin(), cut.Fields().end());
    // The last one may be cut off where the beginning ends.
    if (start.size() >= layout_bytes && records.size() > 1 && !reader.Terminated())
      records.pop_back();
  } catch (const Xep_wrong_line&) {
    return records;  // the reader of the whole file will tell
  }
  return records;
}

/// The one that cuts each of the first records into most fields, and then all of them.
char Separator_of(std::string_view start) {
  constexpr std::array candidates = {'\t', ';', ','};
  const auto fields = [&](char separator) {
    std::size_t least = std::numeric_limits<std::size_t>::max();
    std::size_t all = 0;
    for (const Record& record : Records_of(start, separator)) {
      least = std::min(least, record.size());
      all += record.size();
    }
    return std::pair(all == 0 ? 0 : least, all);
  };
  return std::ranges::max(candidates, {}, fields);
}

bool Is_number(std::string_view field) {
  double ignored = 0.0;
  return stringtodouble(field, ignored);
}

template <typename Words>
std::optional<std::size_t> Column_of(const Record& header, const Words& words) {
  const auto is_word = [&](const std::string& field) {
    return std::ranges::find(words, Lower_case(field)) != std::end(words);
  };
  const auto found = std::ranges::find_if(header, is_word);
  if (found == header.end()) return std::nullopt;
  return static_cast<std::size_t>(found - header.begin());
}

/// True if a field is a number in all records but the first.
bool Is_number_below(const std::vector<Record>& records, std::size_t column) {
  const auto is_number = [column](const Record& record) {
    return column < record.size() && Is_number(record[column]);
  };
  return records.size() > 1 && !is_number(records[0]) && column < records[0].size() &&
         std::all_of(records.begin() + 1, records.end(), is_number);
}

/// A column that was asked for, by its number or its name.
std::size_t Wished_column(const std::string& wish, const Record& header, bool& by_name,
                          const std::string& file) {
  constexpr std::size_t most = 100000;
  std::size_t number = 0;
  const char* const end = wish.data() + wish.size();
  const auto read = std::from_chars(wish.data(), end, number);
  if (read.ec == std::errc() && read.ptr == end && number > 0 && number <= most) return number - 1;
  const auto found = std::ranges::find(header, wish);
  if (found == header.end()) {
    std::string names;
    for (const std::string& name : header) names.append(names.empty() ? "" : ",").append(name);
    Refuse_field(file, {1, 1},
                 {"a column '" + wish + "'", names,
                  "--columns takes names of the first line, or numbers from 1."});
  }
  by_name = true;
  return static_cast<std::size_t>(found - header.begin());
}

void Take_wished_columns(const std::vector<Record>& records, const Input_wishes& wishes,
                         const std::string& file, Csv_layout& layout) {
  bool by_name = false;
  const auto column = [&](std::size_t i) {
    return Wished_column(wishes.columns[i], records[0], by_name, file);
  };
  layout.first = column(0);
  layout.second = column(1);
  if (wishes.columns.size() > 2) layout.weight = column(2);
  const Record& header = records[0];
  const auto is_word = [&](std::size_t at, const auto& words) {
    return at < header.size() && Column_of({header[at]}, words).has_value();
  };
  layout.has_header =
      by_name || (is_word(layout.first, first_words) && is_word(layout.second, second_words)) ||
      (layout.weight && Is_number_below(records, *layout.weight));
}

/// By the names in the first record, or by a third field that is a number everywhere but there.
void Find_columns(const std::vector<Record>& records, Csv_layout& layout) {
  const auto first = Column_of(records[0], first_words);
  const auto second = Column_of(records[0], second_words);
  constexpr std::size_t third = 2;
  layout.has_header = (first && second) || Is_number_below(records, third);
  if (first && second) {
    layout.first = *first;
    layout.second = *second;
    layout.weight = Column_of(records[0], weight_words);
  }
  if (!layout.weight && layout.first < third && layout.second < third) layout.weight = third;
}

}  // namespace

std::size_t Csv_layout::Width() const { return std::max({first, second, weight.value_or(0)}) + 1; }

Csv_layout Layout_of(std::string_view start, Format format, const Input_wishes& wishes,
                     const std::string& file) {
  Csv_layout layout;
  layout.separator = format == Format::tsv ? '\t' : Separator_of(start);
  const std::vector<Record> records = Records_of(start, layout.separator);
  if (records.empty()) return layout;
  if (records[0].size() < 2)
    Refuse_field(file, {1, 1},
                 {format == Format::tsv ? "fields with a tab between them"
                                        : "fields with ',', ';' or a tab between them",
                  records[0][0], "--format=links reads fields with blanks between them."});
  if (wishes.columns.empty())
    Find_columns(records, layout);
  else
    Take_wished_columns(records, wishes, file, layout);
  return layout;
}

}  // namespace gns
