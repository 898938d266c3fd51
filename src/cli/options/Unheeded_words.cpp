#include "cli/options/Unheeded_words.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "cli/options/Option_table.h"
#include "cli/options/Parameters.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

/// What people call an option.
struct Called {
  std::string_view name;
  std::string_view word;
};

std::vector<Called> All_names() {
  std::vector<Called> names;
  for (const Option& option : All_options())
    for (const std::string_view name : option.names)
      if (!name.empty()) names.push_back({name, option.word});
  return names;
}

/// How many letters must be put in, left out or replaced to make one word of the other.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char letter : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (letter == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

/// The option that a longer word is nearest to; empty if none is near.
std::string_view Nearest_by_name(std::string_view word) {
  constexpr std::size_t most_wrong_letters = 2;
  constexpr std::size_t longest = 20;
  if (word.empty() || word.size() > longest) return "";
  const std::vector<Called> names = All_names();
  for (const Called& called : names)
    if (called.name.starts_with(word)) return called.word;
  const auto distance = [&](const Called& called) { return Distance(word, called.name); };
  const Called& nearest = *std::ranges::min_element(names, {}, distance);
  const bool near =
      distance(nearest) <= most_wrong_letters && distance(nearest) * 2 <= nearest.name.size();
  return near ? nearest.word : "";
}

/// The switch that may have been meant by an unknown one; empty if none is near.
std::string Nearest(const std::string& key) {
  std::string in_other_case = {key[0], static_cast<char>(key[1] ^ ' ')};
  if (key.size() == 2 && Values_of(in_other_case)) return in_other_case;
  const std::string_view word = std::string_view(key).substr(key.find_first_not_of('-', 1));
  return std::string(Nearest_by_name(word.substr(0, word.find('='))));
}

std::string Of_unknown_switch(const std::string& key) {
  const std::string no_switch = Quoted(key) + " is no switch";
  double number = 0.0;
  if (stringtodouble(key, number)) return no_switch + "; a value can't begin with '-'";
  if (key.find_first_not_of('-') == std::string::npos)
    return no_switch + "; --help shows all that there are";
  const std::string nearest = Nearest(key);
  const std::string front = key.substr(0, 2);
  const bool equals_sign = key.size() > 2 && key[2] == '=';
  if ((equals_sign || nearest.empty()) && Values_of(front) == 1) {
    const std::string value = key.substr(equals_sign ? 3 : 2);
    return no_switch + "; did you mean " + front + " " + Shell_word(value) + "?";
  }
  if (nearest.empty()) return no_switch + "; --help shows all that there are";
  return no_switch + "; did you mean " + nearest + "?";
}

std::string Of_dropped_words(const std::string& key, const std::vector<std::string>& words,
                             std::size_t taken) {
  std::string text = Quoted(words[taken]);
  const std::size_t more = words.size() - taken - 1;
  if (more > 0) text.append(" and ").append(std::to_string(more)).append(" more");
  text.append(" behind ").append(key);
  if (taken == 0) return text.append(" is not heeded, as ").append(key).append(" takes no value");
  text.append(" ").append(Shell_word(words[0])).append(" is not heeded, as ").append(key);
  return text.append(" takes one value; put one with blanks in quotes");
}

}  // namespace

std::vector<std::string> Unheeded_words(const Switch_map& params) {
  std::vector<std::string> texts;
  for (const auto& [key, words] : params) {
    const std::optional<std::size_t> taken = Values_of(key);
    if (key == "---noname") {
      texts.push_back(Quoted(words[0]) + " belongs to no switch; did you mean -i " +
                      Shell_word(words[0]) + "?");
    } else if (!taken) {
      texts.push_back(Of_unknown_switch(key));
    } else if (words.size() > *taken) {
      texts.push_back(Of_dropped_words(key, words, *taken));
    }
  }
  return texts;
}

}  // namespace gns
