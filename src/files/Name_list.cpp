#include "files/Name_list.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "foundation/Words.h"

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

void Name_list::Append_words(std::string_view text, const Character_set& delimiters) {
  // A length takes the byte of the delimiter, and one more at most for every `more` bytes.
  const std::size_t most = text.size() + text.size() / Name_row::more + 1;
  char* const from = packed_.Room_for(most);
  char* to = from;
  For_each_word(text, delimiters, [&](std::string_view word) {
    to = Copy(word, Name_row::Write_length(word.size(), to));
    ++count_.value;
  });
  packed_.Grew(static_cast<std::size_t>(to - from));
}

void Name_list::Append(const Name_list& names) {
  packed_.append(names.packed_.data(), names.packed_.size());
  count_.value += names.count_.value;
}

bool operator==(const Name_row& a, const Name_row& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin());
}

}  // namespace gns
