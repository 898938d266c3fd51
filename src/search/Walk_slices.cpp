#include "search/Walk_slices.h"

#include <bit>

namespace gns {

/// A branch belongs where the middle of its work lies: what is dearer than a slice spoils two of
/// them at most.
std::vector<std::uint64_t> Slices_of_branches(const Local_graph& local, const Bit_word* candidates,
                                              const Bit_word* branches, std::uint64_t slices) {
  std::vector<Bit_word> left(candidates, candidates + local.words);
  std::vector<std::uint64_t> found;  // first the middle of each
  std::uint64_t work = 0;
  For_each_bit(branches, local.words, [&](std::size_t branch) {
    Flip_bit(left.data(), branch);
    std::uint64_t count = 0;
    for (std::size_t w = 0; w < local.words; ++w)
      count += static_cast<std::uint64_t>(std::popcount(left[w] & local.Row(branch)[w]));
    const std::uint64_t of_branch = 1 + count * count;
    found.push_back(work + of_branch / 2);
    work += of_branch;
  });
  const std::uint64_t share = work / slices + 1;
  for (std::uint64_t& middle : found) middle /= share;
  return found;
}

}  // namespace gns
