#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace gns {

/// Marks the bytes of eight that are `c`: the top bits of those, wherever in memory they stand.
/// Where the processor compares sixteen bytes at once, all bits of those.
class Equal_to {
 public:
  explicit constexpr Equal_to(char c) : eight_times_(ones * static_cast<unsigned char>(c)) {}
#ifdef __SSE2__
  __m128i operator()(__m128i sixteen) const {
    return _mm_cmpeq_epi8(sixteen, _mm_set1_epi8(static_cast<char>(eight_times_)));
  }
#endif
  constexpr std::uint64_t operator()(std::uint64_t eight) const {
    const std::uint64_t differs = eight ^ eight_times_;
    return ~(((differs & ~tops) + ~tops) | differs) & tops;
  }

  static constexpr std::uint64_t ones = 0x0101010101010101;
  static constexpr std::uint64_t tops = 0x8080808080808080;

 private:
  std::uint64_t eight_times_;
};

/// Marks the bytes up to a blank: all white space, and what nobody uses in names.
struct Up_to_blank {
#ifdef __SSE2__
  __m128i operator()(__m128i sixteen) const {
    return _mm_cmpeq_epi8(_mm_min_epu8(sixteen, _mm_set1_epi8(' ')), sixteen);
  }
#endif
  constexpr std::uint64_t operator()(std::uint64_t eight) const {
    constexpr std::uint64_t tops = Equal_to::tops;
    return ~(((eight & ~tops) + Equal_to::ones * (0x7F - ' ')) | eight) & tops;
  }
};

/// The places of marked bytes in a text, one after the other. They are found for 64 bytes at a
/// time, without a branch for each: to take the words of a text character by character, a processor
/// has to guess the length of every one.
template <typename Marks>
class Delimiter_places {
 public:
  Delimiter_places(std::string_view text, Marks marks) : text_(text), marks_(marks) {}

  /// The next place; the size of the text if there is none.
  std::size_t Next() {
    while (left_ == 0) {
      if (behind_ >= text_.size()) return text_.size();
      Mark_block();
    }
    const auto place = static_cast<std::size_t>(std::countr_zero(left_));
    left_ &= left_ - 1;
    return behind_ - block_size + place;
  }

 private:
  static constexpr std::size_t block_size = 64;

  void Mark_block() {
    const char* const at = text_.data() + behind_;
    const std::size_t size = text_.size() - behind_;
    behind_ += block_size;
    if (size >= block_size) {
      left_ = Marks_of(at);
      return;
    }
    std::array<char, block_size> last;
    std::memcpy(last.data(), at, size);
    left_ = Marks_of(last.data()) & ((std::uint64_t{1} << size) - 1);
  }

  /// A bit for each byte of a block.
  std::uint64_t Marks_of(const char* block) const {
    std::uint64_t marks = 0;
#ifdef __SSE2__
    if constexpr (requires(__m128i sixteen) { marks_(sixteen); }) {
      for (unsigned part = 0; part < block_size; part += sizeof(__m128i)) {
        const auto sixteen = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + part));
        const auto bits = static_cast<std::uint32_t>(_mm_movemask_epi8(marks_(sixteen)));
        marks |= std::uint64_t{bits} << part;
      }
      return marks;
    }
#endif
    // Takes the lowest bits of eight bytes to the top, in the order in which they stand in memory.
    constexpr std::uint64_t gather =
        std::endian::native == std::endian::little ? 0x0102040810204080 : 0x8040201008040201;
    for (unsigned part = 0; part < block_size; part += 8) {
      std::uint64_t eight = 0;
      std::memcpy(&eight, block + part, sizeof eight);
      marks |= ((marks_(eight) >> 7U) * gather >> 56U) << part;
    }
    return marks;
  }

  std::string_view text_;
  Marks marks_;
  std::uint64_t left_ = 0;  ///< of the block in front of behind_
  std::size_t behind_ = 0;
};

using Blank_places = Delimiter_places<Up_to_blank>;

}  // namespace gns
