#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "foundation/text/My_convert_from_string.h"

/// The readers of link files and result files told step by step, with the formatted input of the
/// standard library. Each yields the table in words and how the reading failed, as Words_after()
/// does; they start with empty tables.
namespace gns::literal {

/// The text of a failure; as a message it ends at a NUL byte.
inline std::string Message(const std::string& text) { return text.c_str(); }

inline std::string Wrong(const std::string& line) { return "wrong '" + line + "'"; }

/// The lines that hold something, cut by blanks and tabs.
inline std::vector<std::string> Cut_lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream file(text);
  for (std::string line; std::getline(file, line);) {
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos) continue;
    line = line.substr(first, line.find_last_not_of(" \t") - first + 1);
    if (line.size() > 1 && line[0] != '#') lines.push_back(line);
  }
  return lines;
}

struct Thresholds {
  bool use_lower = false;
  double lower = 0;
  bool use_upper = false;
  double upper = 0;
};

inline std::string Links(const std::string& text, bool weighted, const Thresholds& t = {}) {
  std::map<std::pair<std::string, std::string>, double> links;
  std::string failure;
  for (const std::string& line : Cut_lines(text)) {
    std::istringstream fields(line);
    std::string a;
    std::string b;
    double weight = 0;
    fields >> a >> b;
    if (weighted) fields >> weight;
    if (!fields) {
      failure = Wrong(line);
      break;
    }
    if (a == b || (t.use_lower && !(weight > t.lower)) || (t.use_upper && !(weight < t.upper)))
      continue;
    links[{a, b}] += weight;
  }
  std::ostringstream words;
  for (const auto& [key, weight] : links)
    words << key.first << ' ' << key.second << '=' << weight << '|';
  return words.str() + failure;
}

inline std::string Pairs(const std::string& text) {
  std::string words;
  for (const std::string& line : Cut_lines(text)) {
    std::istringstream fields(line);
    std::string a;
    std::string b;
    if (!(fields >> a >> b)) return words + "ERROR: failed to read pair.\n";
    words += a + ' ' + b + '|';
  }
  return words;
}

inline std::string Overlaps(const std::string& text) {
  std::map<std::pair<std::int32_t, std::int32_t>, std::uint32_t> table;
  std::string failure;
  for (const std::string& line : Cut_lines(text)) {
    std::istringstream fields(line);
    std::int32_t a = 0;
    std::int32_t b = 0;
    std::uint32_t shared = 0;
    if (!(fields >> a >> b)) failure = "ERROR: failed to read pair.\n";
    if (failure.empty() && !(fields >> shared)) failure = Wrong(line);
    if (!failure.empty()) break;
    table[{a, b}] = shared;
  }
  std::ostringstream words;
  for (const auto& [key, shared] : table)
    words << key.first << ' ' << key.second << '=' << shared << '|';
  return words.str() + failure;
}

inline std::string Distribution(const std::string& text) {
  std::map<std::uint32_t, std::uint32_t> table;
  std::string failure;
  for (const std::string& line : Cut_lines(text)) {
    std::istringstream fields(line);
    std::uint32_t value = 0;
    std::uint32_t count = 0;
    if (!(fields >> value >> count)) {
      failure = Wrong(line);
      break;
    }
    table[value] = count;
  }
  std::ostringstream words;
  for (const auto& [value, count] : table) words << value << '=' << count << '|';
  return words.str() + failure;
}

/// Index -> what its line or block holds, in words.
using Rows = std::map<std::int32_t, std::string>;

inline std::string In_words(const Rows& rows) {
  std::string words;
  for (const auto& [index, row] : rows) words += std::to_string(index) + ':' + row + '|';
  return words;
}

inline std::optional<std::int32_t> Number(const std::string& word) {
  std::int32_t number = 0;
  bool suspicious = false;
  if (!Convert_from_string(word, number, suspicious)) return std::nullopt;
  return number;
}

/// The form with delimiters, of which there are four sets.
class Records {
 public:
  std::string line, head, key, value;

  std::string Read(const std::string& text, bool of_numbers) const {
    Rows rows;
    std::string failure;
    std::string current;
    for (std::size_t i = 0; i < text.size() && failure.empty(); ++i) {
      if (!In(line, text[i])) {
        current += text[i];
        continue;
      }
      if (!current.empty() && current[0] != '#') failure = Take(current, of_numbers, rows);
      current.clear();
    }
    if (failure.empty() && current.size() > 1 && current[0] != '#') {
      current.pop_back();
      failure = Take(current, of_numbers, rows);
    }
    return In_words(rows) + Message(failure);
  }

 private:
  static bool In(const std::string& set, char c) { return set.find(c) != std::string::npos; }

  static std::string Chop(std::string& text, const std::string& set) {
    std::size_t start = 0;
    while (start < text.size() && In(set, text[start])) ++start;
    std::size_t end = start;
    while (end < text.size() && !In(set, text[end])) ++end;
    std::string word = text.substr(start, end - start);
    while (end < text.size() && In(set, text[end])) ++end;
    text.erase(0, end);
    return word;
  }

  std::string Take(std::string record, bool of_numbers, Rows& rows) const {
    std::string first = Chop(record, head);
    const std::string index = Chop(first, key);
    const auto number = Number(index);
    if (!number) return "ERROR: failed to convert input" + index + "\n";
    std::string items;
    for (std::string word; !(word = Chop(record, value)).empty();) {
      if (of_numbers && !Number(word)) return "ERROR: failed to convert input '" + word + "'\n";
      items += ' ' + (of_numbers ? std::to_string(*Number(word)) : word);
    }
    if (items.empty()) return "ERROR: input vector has zero size.\n";
    rows[*number] = items;
    return "";
  }
};

inline std::string Com_links(const std::string& text) {
  Rows rows;
  std::string block = " ";
  std::int32_t community = 0;
  std::istringstream file(text);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    if (line.back() == ':') {
      line.pop_back();
      const auto number = Number(line);
      if (!number)
        return In_words(rows) + Message("ERROR: unable to convert com. ind. '" + line + "'\n");
      if (block != " ") rows[community] = block;
      community = *number;
      block = " ";
      continue;
    }
    std::istringstream fields(line);
    std::string a;
    std::string b;
    if (!(fields >> a >> b))
      return In_words(rows) + Message("ERROR: unable to convert link '" + line + "'\n");
    block += a + ' ' + b + '|';
  }
  rows[community] = block;
  return In_words(rows);
}

}  // namespace gns::literal
