#include "report/Deflated.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

#include "control/Run_control.h"

#ifdef VORLANE_ZLIB
#include <zlib.h>
#endif

namespace vorlane::report {

#ifdef VORLANE_ZLIB

std::string Deflated(std::string_view bytes) {
  z_stream stream = {};
  if (deflateInit(&stream, Z_BEST_COMPRESSION) != Z_OK) throw std::bad_alloc();
  struct End {
    z_stream& stream;
    ~End() { deflateEnd(&stream); }
  } const end{stream};
  std::string packed;
  std::array<char, 1U << 16U> part;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
  int state = Z_OK;
  while (state != Z_STREAM_END) {
    external_control::Check_for_stop_signal();
    const std::string_view next = bytes.substr(0, part.size());
    bytes.remove_prefix(next.size());
    // zlib doesn't write to its input. NOLINTNEXTLINE(cppcoreguidelines-pro-type-*)
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(next.data()));
    stream.avail_in = static_cast<uInt>(next.size());
    do {
      // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
      stream.next_out = reinterpret_cast<Bytef*>(part.data());
      stream.avail_out = static_cast<uInt>(part.size());
      state = deflate(&stream, bytes.empty() ? Z_FINISH : Z_NO_FLUSH);
      packed.append(part.data(), part.size() - stream.avail_out);
    } while (stream.avail_out == 0);
  }
  return packed;
}

#else

namespace {

std::uint32_t Adler_sum(std::string_view bytes) {
  constexpr std::uint32_t modulus = 65521;
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char c : bytes) {
    low = (low + static_cast<std::uint8_t>(c)) % modulus;
    high = (high + low) % modulus;
  }
  return high << 16U | low;
}

}  // namespace

std::string Deflated(std::string_view bytes) {
  constexpr std::size_t longest = 0xffff;
  const std::uint32_t sum = Adler_sum(bytes);
  std::string stored = "\x78\x01";
  const auto put = [&](std::size_t number) { stored += static_cast<char>(number & 0xffU); };
  do {
    external_control::Check_for_stop_signal();
    const std::string_view block = bytes.substr(0, longest);
    bytes.remove_prefix(block.size());
    put(bytes.empty() ? 1 : 0);
    put(block.size());
    put(block.size() >> 8U);
    put(~block.size());
    put(~block.size() >> 8U);
    stored += block;
  } while (!bytes.empty());
  for (const unsigned shift : {24U, 16U, 8U, 0U}) put(sum >> shift);
  return stored;
}

#endif

std::string Base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t bits = 0;
    for (std::size_t j = 0; j < 3; ++j)
      bits = bits << 8U | (j < count ? static_cast<std::uint8_t>(bytes[i + j]) : 0U);
    for (std::size_t j = 0; j < 4; ++j)
      text += j <= count ? digits[bits >> (18U - 6U * j) & 63U] : '=';
  }
  return text;
}

}  // namespace vorlane::report
