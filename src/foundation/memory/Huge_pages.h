#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace gns {

/// Advises the system to back an array that isn't written yet by pages of two megabytes, where it
/// knows such: an array of many megabytes that is read here and there then costs fewer walks
/// through the page tables, and is given back faster. Small arrays are left as they are.
inline void Advise_huge_pages(void* data, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
  constexpr std::uintptr_t page = std::uintptr_t{1} << 21U;
  const auto address = reinterpret_cast<std::uintptr_t>(data);
  const std::uintptr_t first = (address + page - 1) / page * page;
  const std::uintptr_t end = (address + bytes) / page * page;
  // No effect on what is in the array: an error leaves it with small pages.
  if (first < end) {
    char* const from = static_cast<char*>(data) + (first - address);
    static_cast<void>(::madvise(from, end - first, MADV_HUGEPAGE));
  }
#endif
}

}  // namespace gns
