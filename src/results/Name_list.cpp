#include "results/Name_list.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "foundation/text/Words.h"

namespace gns {

namespace {

/// Copies a name, mostly a short one, and yields the place behind it.
char* Copy(std::string_view name, char* to) {
  using Half = std::uint32_t;
  if (name.size() < sizeof(Half) || name.size() > 2 * sizeof(Half))
    return std::copy(name.begin(), name.end(), to);
  // Two halves, which may overlap.
  Half first = 0;
  Half last = 0;
  std::memcpy(&first, name.data(), sizeof first);
  std::memcpy(&last, name.data() + name.size() - sizeof last, sizeof last);
  std::memcpy(to, &first, sizeof first);
  std::memcpy(to + name.size() - sizeof last, &last, sizeof last);
  return to + name.size();
}

}  // namespace

std::size_t Name_row::Take_long_length(const char*& at, unsigned char first) {
  std::size_t length = first % more;
  unsigned char group = first;
  for (unsigned shift = bits_per_byte; group >= more; shift += bits_per_byte) {
    group = static_cast<unsigned char>(*at++);
    length |= static_cast<std::size_t>(group % more) << shift;
  }
  return length;
}

void Name_list::push_back(std::string_view name) {
  constexpr std::size_t longest_length = sizeof(std::size_t) * 8 / Name_row::bits_per_byte + 1;
  char* const from = packed_.Room_for(name.size() + longest_length);
  char* const to = Name_row::Write_length(name.size(), from);
  packed_.Grew(static_cast<std::size_t>(Copy(name, to) - from));
  ++count_.value;
}

/// Words with one delimiter between two take as much room as in the text: the length of each stands
/// in place of the delimiter in front of it. Yields where the first word begins that stands
/// otherwise, or is a long one, or the last.
std::size_t Name_list::Pack_plain(std::string_view text, char delimiter, char* to) {
  std::memcpy(to + 1, text.data(), text.size());
  Delimiter_places delimiters(text, Equal_to(delimiter));
  std::size_t start = 0;
  std::size_t words = 0;
  for (std::size_t end = delimiters.Next(); end < text.size() && Name_row::Is_short(end - start);
       end = delimiters.Next()) {
    to[start] = static_cast<char>(end - start);
    start = end + 1;
    ++words;
  }
  count_.value += words;
  return start;
}

void Name_list::Append_words(std::string_view text, const Character_set& delimiters) {
  Skip_delimiters(text, delimiters);
  // A length takes the byte of the delimiter, and one more at most for every `more` bytes.
  const std::size_t most = text.size() + text.size() / Name_row::more + 1;
  char* const from = packed_.Room_for(most);
  const std::size_t plain = delimiters.size() == 1 ? Pack_plain(text, delimiters.Only(), from) : 0;
  char* to = from + plain;
  For_each_word(text.substr(plain), delimiters, [&](std::string_view word) {
    to = Copy(word, Name_row::Write_length(word.size(), to));
    ++count_.value;
  });
  packed_.Grew(static_cast<std::size_t>(to - from));
}

bool Name_list::Append_line(std::string_view text, std::size_t& blank, Blank_places& blanks) {
  constexpr std::size_t step = at_once / 2;
  char* const from = packed_.Room_for(text.size() - blank + step);
  char* to = from;
  const char* const at = text.data();
  Blank_places places = blanks;
  std::size_t words = 0;
  std::size_t start = blank;
  std::size_t end = places.Next();
  for (; end < text.size() && at[end] == ' '; end = places.Next()) {
    const std::size_t length = end - start - 1;
    if (!Name_row::Is_short(length) || start + step > text.size()) return false;
    // Mostly one step; what is copied too much is overwritten by the next word.
    std::memcpy(to, at + start, step);
    if (length >= step) std::memcpy(to, at + start, length + 1);
    *to = static_cast<char>(length);
    to += length + 1;
    start = end;
    ++words;
  }
  if (end != start + 1 || end == text.size() || at[end] != '\n' || words == 0) return false;
  packed_.Grew(static_cast<std::size_t>(to - from));
  count_.value += words;
  blanks = places;
  blank = start;
  return true;
}

std::size_t Name_list::Append_pair_lines(std::string_view text) {
  char* const from = packed_.Room_for(text.size() + 1);
  const char* const at = text.data();
  Delimiter_places blanks(text, Up_to_blank());
  std::size_t start = 0;
  std::size_t lines = 0;
  while (start + at_once <= text.size()) {
    const std::size_t middle = blanks.Next();
    const std::size_t end = blanks.Next();
    if (end == text.size() || at[middle] != ' ' || at[end] != '\n' || at[start] == '#' ||
        at[end - 1] == ':' || !Name_row::Is_short(middle - start) ||
        !Name_row::Is_short(end - middle - 1))
      break;
    // Mostly one step; what is copied too much is overwritten by the next line.
    std::memcpy(from + start + 1, at + start, at_once);
    if (end - start > at_once) std::memcpy(from + start + 1, at + start, end - start);
    from[start] = static_cast<char>(middle - start);
    from[middle + 1] = static_cast<char>(end - middle - 1);
    start = end + 1;
    ++lines;
  }
  packed_.Grew(start);
  count_.value += 2 * lines;
  return start;
}

void Name_list::Append(const Name_list& names) {
  packed_.append(names.packed_.data(), names.packed_.size());
  count_.value += names.count_.value;
}

bool operator==(const Name_row& a, const Name_row& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin());
}

}  // namespace gns
