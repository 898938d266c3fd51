#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "foundation/memory/Growing_array.h"
#include "foundation/text/My_string_to_i.h"

namespace gns {

/// A sequence of signed indices, with the operations of a Name_list.
class Index_list {
 public:
  using Row = std::span<const std::int32_t>;

  Index_list() = default;
  Index_list(std::initializer_list<std::int32_t> indices) {
    indices_.append(indices.begin(), indices.size());
  }

  void push_back(std::int32_t index) { indices_.push_back(index); }
  /// Takes indices off the front of a text and appends them, as far as Chop_plain() does.
  void Append_plain(std::string_view& text, char delimiter) {
    std::int32_t* const from = indices_.Room_for(text.size() / 2 + 1);
    std::int32_t* to = from;
    Chop_plain(text, delimiter, [&to](std::int32_t index) { *to++ = index; });
    indices_.Grew(static_cast<std::size_t>(to - from));
  }
  /// Appends the indices of a line as a Name_list does its words, as far as they are plain ones.
  bool Append_line(std::string_view text, std::size_t& blank, Blank_places& blanks) {
    std::int32_t* const from = indices_.Room_for((text.size() - blank) / 2 + 1);
    std::int32_t* to = from;
    Blank_places places = blanks;
    std::size_t end = places.Next();
    for (; end < text.size() && text[end] == ' '; end = places.Next()) {
      if (!Convert_plain_part(text, blank + 1, end, *to++)) return false;
      blank = end;
    }
    if (end != blank + 1 || end == text.size() || text[end] != '\n' || to == from) return false;
    indices_.Grew(static_cast<std::size_t>(to - from));
    blanks = places;
    return true;
  }
  void Append(const Index_list& indices) {
    indices_.append(indices.indices_.data(), indices.indices_.size());
  }

  [[nodiscard]] std::size_t size() const { return indices_.size(); }
  [[nodiscard]] bool empty() const { return indices_.size() == 0; }
  [[nodiscard]] Row::iterator begin() const { return Row_at(0, size()).begin(); }
  [[nodiscard]] Row::iterator end() const { return Row_at(0, size()).end(); }
  [[nodiscard]] std::size_t Place() const { return indices_.size(); }
  [[nodiscard]] Row Row_at(std::size_t place, std::size_t count) const {
    return {indices_.data() + place, count};
  }
  void Cut(std::size_t place, std::size_t /*count*/) { indices_.Cut(place); }
  /// Makes room for what a text of so many bytes can hold; what is left unused is never touched.
  void Reserve_for_text(std::size_t bytes) { indices_.Reserve(indices_.size() + bytes / 2 + 1); }
  void Shrink_to_fit() { indices_.Shrink_to_fit(); }

 private:
  Growing_array<std::int32_t> indices_;
};

}  // namespace gns
