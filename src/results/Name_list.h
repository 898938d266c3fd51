#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <utility>

#include "foundation/memory/Growing_array.h"
#include "foundation/memory/Moving_count.h"
#include "foundation/text/Character_set.h"
#include "foundation/text/Delimiter_places.h"

namespace gns {

/// Names that stand one behind the other in memory, each behind its length; a view of a part of a
/// Name_list.
class Name_row {
 public:
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = std::string_view;

    Iterator() = default;
    Iterator(const char* at, std::size_t left) : at_(at), left_(left) {}

    std::string_view operator*() const {
      const char* name = at_;
      const std::size_t length = Take_length(name);
      return {name, length};
    }
    Iterator& operator++() {
      const std::size_t length = Take_length(at_);
      at_ += length;
      --left_;
      return *this;
    }
    Iterator operator++(int) { return std::exchange(*this, Iterator(++Iterator(*this))); }
    bool operator==(const Iterator& other) const { return left_ == other.left_; }

   private:
    const char* at_ = nullptr;
    std::size_t left_ = 0;  ///< names from here on
  };
  using const_iterator = Iterator;
  using value_type = std::string_view;

  Name_row() = default;
  Name_row(const char* at, std::size_t count) : at_(at), count_(count) {}

  [[nodiscard]] std::size_t size() const { return count_; }
  [[nodiscard]] bool empty() const { return count_ == 0; }
  [[nodiscard]] Iterator begin() const { return {at_, count_}; }
  [[nodiscard]] Iterator end() const { return {nullptr, 0}; }

 private:
  friend class Name_list;

  /// A length is written in groups of seven bits, the lowest first; all but the last have the top
  /// bit set.
  static constexpr unsigned bits_per_byte = 7;
  static constexpr unsigned char more = 1U << bits_per_byte;

  /// True of the lengths of names that take one byte.
  static constexpr bool Is_short(std::size_t length) { return length - 1 < more - 1U; }
  static std::size_t Take_length(const char*& at) {
    const auto first = static_cast<unsigned char>(*at++);
    return first < more ? first : Take_long_length(at, first);
  }
  static std::size_t Take_long_length(const char*& at, unsigned char first);
  /// Yields the place behind the length.
  static char* Write_length(std::size_t length, char* to) {
    for (; length >= more; length >>= bits_per_byte)
      *to++ = static_cast<char>((length % more) | more);
    *to++ = static_cast<char>(length);
    return to;
  }

  const char* at_ = nullptr;
  std::size_t count_ = 0;
};

/// A sequence of names in one piece of memory; result tables hold millions of them, mostly of a few
/// bytes. It grows at its end and is read from front to back.
class Name_list {
 public:
  using Row = Name_row;
  using value_type = std::string_view;
  using const_iterator = Name_row::Iterator;

  Name_list() = default;
  Name_list(std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) push_back(name);
  }

  void push_back(std::string_view name);
  void Append(const Name_list& names);
  /// Appends the words of `text`, which any number of delimiters may separate and enclose.
  void Append_words(std::string_view text, const Character_set& delimiters);
  /// Appends the words of a line, each of which stands between two blanks and has fewer than 128
  /// bytes. `blank` is the place in front of the first word in a text, `blanks` are those behind
  /// it. True if the end of the line is found behind the last blank, whose place `blank` is then.
  /// False, with nothing appended, for a line of another form, for one without words, and perhaps
  /// near the end of the text.
  bool Append_line(std::string_view text, std::size_t& blank, Blank_places& blanks);
  /// Appends the names of the lines of two words at the front of `text`, and yields the size of
  /// these lines. Words are parted by a blank and of fewer than 128 bytes; the first doesn't begin
  /// with '#', the second doesn't end with ':'. A line of another form, and any near the end of the
  /// text, may end the taking.
  std::size_t Append_pair_lines(std::string_view text);

  [[nodiscard]] std::size_t size() const { return count_.value; }
  [[nodiscard]] bool empty() const { return count_.value == 0; }
  [[nodiscard]] Name_row::Iterator begin() const { return Name_row(*this).begin(); }
  [[nodiscard]] Name_row::Iterator end() const { return Name_row(*this).end(); }
  operator Name_row() const { return {packed_.data(), count_.value}; }

  /// Where the next name will stand; Row_at() and Cut() take such places.
  [[nodiscard]] std::size_t Place() const { return packed_.size(); }
  [[nodiscard]] Name_row Row_at(std::size_t place, std::size_t count) const {
    return {packed_.data() + place, count};
  }
  /// Takes all names from the place on away, so that `count` are left.
  void Cut(std::size_t place, std::size_t count) {
    packed_.Cut(place);
    count_.value = count;
  }
  /// Makes room for what a text of so many bytes can hold; what is left unused is never touched.
  void Reserve_for_text(std::size_t bytes) { packed_.Reserve(packed_.size() + bytes + at_once); }
  void Shrink_to_fit() { packed_.Shrink_to_fit(); }

 private:
  static constexpr std::size_t at_once = 32;  ///< bytes that are copied in one step

  std::size_t Pack_plain(std::string_view text, char delimiter, char* to);

  Growing_array<char> packed_;
  Moving_count count_;
};

bool operator==(const Name_row& a, const Name_row& b);

}  // namespace gns
