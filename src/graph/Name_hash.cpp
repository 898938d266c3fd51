#include "graph/Name_hash.h"

#include <unistd.h>

#include <chrono>
#include <cstddef>
#include <cstring>

namespace gns {

namespace {

__extension__ using Wide = unsigned __int128;

template <typename Word>
std::uint64_t Loaded(const char* from) {
  Word word = 0;
  std::memcpy(&word, from, sizeof word);
  return word;
}

/// A text of less than eight bytes as a number. The loads overlap.
std::uint64_t Short_text(std::string_view text) {
  const char* const first = text.data();
  const std::size_t size = text.size();
  constexpr std::size_t half = sizeof(std::uint32_t);
  if (size >= half)
    return Loaded<std::uint32_t>(first) << 32U | Loaded<std::uint32_t>(first + size - half);
  if (size == 0) return 0;
  return Loaded<std::uint8_t>(first) << 16U | Loaded<std::uint8_t>(first + size / 2) << 8U |
         Loaded<std::uint8_t>(first + size - 1);
}

/// Both halves of a product depend on all bits of a secret factor; of one half alone it could be
/// foreseen how a change of its upper bits is made up for by the next word.
std::uint64_t Folded_product(std::uint64_t a, std::uint64_t b) {
  const Wide product = Wide{a} * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

}  // namespace

Hash_key Hash_key::Drawn() {
  Hash_key key = {};
  // A clock is better than nothing where the system has no chance to give.
  if (::getentropy(&key, sizeof key) != 0)
    key.start = key.factor = static_cast<std::uint64_t>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count());
  key.factor |= 1U;
  return key;
}

Hash_key Hash_key::Of_process() {
  static const Hash_key key = Drawn();
  return key;
}

std::uint64_t Name_hash(std::string_view text, Hash_key key) {
  constexpr std::size_t step = sizeof(std::uint64_t);
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = key.start ^ text.size() * odd;
  if (text.size() < step) return Folded_product(hash ^ Short_text(text), key.factor);
  const char* const last = text.data() + text.size() - step;
  for (const char* at = text.data(); at < last; at += step)
    hash = Folded_product(hash ^ Loaded<std::uint64_t>(at), key.factor);
  return Folded_product(hash ^ Loaded<std::uint64_t>(last), key.factor);
}

}  // namespace gns
