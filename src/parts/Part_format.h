#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace gns::parts {

/// How a part lies in a file or in a block of memory; docs/parts-format.md explains it.

static_assert(std::endian::native == std::endian::little && sizeof(std::size_t) == 8,
              "parts are numbers of little-endian machines of 64 bits, read where they lie");

/// What a part holds.
enum class Part_kind : std::uint32_t { graph = 1, cliques, all_cliques, done };

/// What tells a part from others.
struct Part_identity {
  Part_kind kind = Part_kind::graph;
  std::uint64_t fingerprint = 0;  ///< of the run: the checksum of its graph, which itself has 0
  std::uint64_t number = 0;       ///< from 1 on; 0 where there is one for all
};

/// In front of everything. The first three fields are the same in all versions of the format.
struct Part_head {
  std::array<char, 8> magic;
  std::uint64_t byte_order;
  std::uint32_t format;
  std::uint32_t kind;
  std::uint64_t fingerprint;
  std::uint64_t number;
  std::array<char, 24> program;  ///< its version, filled up with zeros
};
static_assert(sizeof(Part_head) == 64);

/// Where a section begins in the part, and how long it is.
struct Section_place {
  std::uint64_t start;
  std::uint64_t bytes;
};

/// Behind everything: the places of the sections stand in front of it.
struct Part_tail {
  std::uint64_t sections;
  std::uint64_t checksum;  ///< of all bytes in front of it
  std::array<char, 8> magic;
};

constexpr std::array<char, 8> head_magic = {'V', 'O', 'R', 'L', 'P', 'A', 'R', 'T'};
constexpr std::array<char, 8> tail_magic = {'P', 'A', 'R', 'T', '-', 'E', 'N', 'D'};
constexpr std::uint64_t byte_order_mark = 0x0102030405060708ULL;
constexpr std::uint32_t part_format = 2;
constexpr std::size_t section_alignment = 64;

template <typename Value>
std::span<const std::byte> Bytes_of(const Value& value) {
  return std::as_bytes(std::span(&value, 1));
}

}  // namespace gns::parts
