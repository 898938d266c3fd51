#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "foundation/text/Character_set.h"

namespace gns {

/// Where the first delimiter stands from `at` on, or the end. Words are short: a plain loop.
inline const char* Find_delimiter(const char* at, const char* end, char delimiter) {
  while (at != end && *at != delimiter) ++at;
  return at;
}

/// The same for a set.
inline const char* Find_delimiter(const char* at, const char* end,
                                  const Character_set& delimiters) {
  if (delimiters.size() == 1) return Find_delimiter(at, end, delimiters.Only());
  return std::find_if(at, end, [&](char c) { return delimiters.contains(c); });
}

/// Removes the delimiters at the front of `text`.
inline void Skip_delimiters(std::string_view& text, const Character_set& delimiters) {
  std::size_t start = 0;
  while (start < text.size() && delimiters.contains(text[start])) ++start;
  text.remove_prefix(start);
}

/// Takes a word off the front of `text`: what stands up to the next delimiter behind those at the
/// front. Takes the delimiters behind it, too. Empty if there is no word.
inline std::string_view Chop_word(std::string_view& text, const Character_set& delimiters) {
  Skip_delimiters(text, delimiters);
  const char* const start = text.data();
  const std::string_view word(start, Find_delimiter(start, start + text.size(), delimiters));
  text.remove_prefix(word.size());
  Skip_delimiters(text, delimiters);
  return word;
}

/// Calls each(word) for all words of `text`, in order.
template <typename Each>
void For_each_word(std::string_view text, const Character_set& delimiters, Each each) {
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto split = [&](auto is_delimiter, const auto& ends) {
    for (;;) {
      while (at != end && is_delimiter(*at)) ++at;
      if (at == end) return;
      const char* const word = at;
      at = Find_delimiter(at, end, ends);
      each(std::string_view(word, at));
    }
  };
  if (const char only = delimiters.Only(); delimiters.size() == 1)
    split([only](char c) { return c == only; }, only);
  else
    split([&](char c) { return delimiters.contains(c); }, delimiters);
}

}  // namespace gns
