#include "cli/options/Marked_text.h"

#include <algorithm>

namespace gns {

std::string Without_marks(std::string_view text) {
  std::string plain(text);
  std::erase(plain, '`');
  return plain;
}

std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent,
                    std::size_t used) {
  std::string lines;
  std::size_t column = used;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (lines.empty()) {
      lines = word;
    } else if (column + 1 + word.size() > width) {
      lines.append("\n").append(indent, ' ').append(word);
      column = indent;
    } else {
      lines.append(" ").append(word);
      ++column;
    }
    column += word.size();
  }
  return lines;
}

std::string Help_entry(std::string_view term, std::size_t column, std::string_view meaning) {
  constexpr std::size_t width = 80;
  constexpr std::size_t indent = 2;
  std::string entry(indent, ' ');
  entry.append(term);
  if (entry.size() + indent > column)
    entry.append("\n").append(column, ' ');
  else
    entry.resize(column, ' ');
  return entry.append(Wrapped(Without_marks(meaning), width, column, column)).append("\n");
}

}  // namespace gns
