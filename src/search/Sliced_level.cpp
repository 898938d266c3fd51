#include "search/Sliced_level.h"

#include <algorithm>
#include <bit>

#include "search/Attempt.h"
#include "search/Walk_work.h"

namespace gns {

namespace {

std::uint64_t Count_shared(const Bit_word* a, const Bit_word* b, std::size_t words) {
  std::uint64_t count = 0;
  for (std::size_t w = 0; w < words; ++w)
    count += static_cast<std::uint64_t>(std::popcount(a[w] & b[w]));
  return count;
}

/// The work below a branch whose candidates are a row.
double Work_below(const Local_graph& local, const std::vector<Bit_word>& candidates) {
  const std::uint64_t count = Count_bits(candidates.data(), local.words);
  std::uint64_t ends = 0;
  if (count >= candidates_with_links)
    For_each_bit(candidates.data(), local.words, [&](std::size_t candidate) {
      ends += Count_shared(candidates.data(), local.Row(candidate), local.words);
    });
  return static_cast<double>(1 + Walk_work(count, ends / 2));
}

}  // namespace

Slice_bounds::Slice_bounds(const Walk_slice& slice)
    : begin(static_cast<double>(slice.index) / static_cast<double>(slice.count)),
      end(static_cast<double>(slice.index + 1) / static_cast<double>(slice.count)),
      width(1.0 / static_cast<double>(slice.count)) {}

Sliced_level::Sliced_level(const Local_graph& local, const Bit_word* candidates,
                           const Bit_word* branches, const Slice_bounds& bounds)
    : bounds_(bounds) {
  std::vector<Bit_word> left(candidates, candidates + local.words);
  std::vector<Bit_word> below(local.words);
  double work = 0.0;
  For_each_bit(branches, local.words, [&](std::size_t branch) {
    Attempt::Check_for_stop();
    Flip_bit(left.data(), branch);
    for (std::size_t w = 0; w < local.words; ++w) below[w] = left[w] & local.Row(branch)[w];
    branches_.push_back({branch, work += Work_below(local, below)});
  });
  for (Share& branch : branches_) branch.end /= work;
}

Sliced_level::Fate Sliced_level::Fate_of_branch() const {
  constexpr double too_small = 0.25;  // slices, to be cut
  if (Begin() >= bounds_.end) return Fate::behind;
  if (End() <= bounds_.begin) return Fate::other;
  if (Begin() >= bounds_.begin && End() <= bounds_.end) return Fate::whole;
  if (End() - Begin() > too_small * bounds_.width) return Fate::cut;
  return Has_uncut() ? Fate::whole : Fate::other;
}

Slice_bounds Sliced_level::Inside() const {
  const double size = End() - Begin();
  return {std::max(0.0, (bounds_.begin - Begin()) / size),
          std::min(1.0, (bounds_.end - Begin()) / size), bounds_.width / size};
}

}  // namespace gns
