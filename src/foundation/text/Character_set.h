#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace gns {

/// A set of characters; a look-up is a look at one bit.
class Character_set {
 public:
  constexpr Character_set() = default;
  constexpr Character_set(std::initializer_list<char> characters) {
    for (const char c : characters) insert(c);
  }

  constexpr void insert(char c) {
    if (contains(c)) return;
    bits_[Word(c)] |= Bit(c);
    ++size_;
    newest_ = c;
  }

  [[nodiscard]] constexpr bool contains(char c) const { return (bits_[Word(c)] & Bit(c)) != 0; }
  [[nodiscard]] constexpr std::size_t size() const { return size_; }
  constexpr bool operator==(const Character_set& other) const { return bits_ == other.bits_; }

  /// The member of a set of one character.
  [[nodiscard]] constexpr char Only() const { return newest_; }

  /// The first member of the set in the text; null if there is none.
  [[nodiscard]] const char* Find_in(std::string_view text) const {
    if (text.empty()) return nullptr;
    if (size_ == 1) return static_cast<const char*>(std::memchr(text.data(), newest_, text.size()));
    for (const char& c : text)
      if (contains(c)) return &c;
    return nullptr;
  }

 private:
  static constexpr unsigned word_bits = 64;

  static constexpr std::size_t Word(char c) { return static_cast<unsigned char>(c) / word_bits; }
  static constexpr std::uint64_t Bit(char c) {
    return std::uint64_t{1} << (static_cast<unsigned char>(c) % word_bits);
  }

  std::array<std::uint64_t, 4> bits_{};
  std::size_t size_ = 0;
  char newest_ = 0;
};

}  // namespace gns
