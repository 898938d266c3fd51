#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <new>

#include "Directory_contents.h"
#include "Sample_runs.h"
#include "engine/Load_coms.h"

namespace {

/// Allocations until one fails; negative: none does.
std::atomic<int> allocations_left = -1;

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  if (allocations_left >= 0 && allocations_left-- == 0) throw std::bad_alloc();
  if (void* const block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}
[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace gns {
namespace {

/// Whichever allocation fails, the first or a later one, that is told by the message.
TEST(Allocation, AFailureNeverThrows) {
  const Temp_dir temp;
  const std::string links = Sample_links("overlapping");
  const std::string whole = temp.Path("whole");
  const std::string out = temp.Path("out");
  bool needed = false;
  Run_summary summary;
  Run_parameters parameters = {links, whole};
  ASSERT_EQ(Find_coms(parameters, needed, summary), run_finished);
  const auto contents = Contents_of(whole);
  parameters.output_dir = out;
  Com_result_tables tables;
  std::string errors;
  const std::function<std::string()> calls[] = {
      [&] { return Find_coms(parameters, needed, summary, &tables); },
      [&] {
        return Find_coms(links, out, false, 0, false, 0, false, false, 0, false, 0, false, 0,
                         needed);
      },
      [&] { return Load_coms(whole, 0, tables, errors); }};
  for (const auto& call : calls) {
    std::string message;
    int failed = 0;
    for (; message != run_finished && failed < 100000; failed += 1 + failed / 20) {
      std::filesystem::remove_all(out);
      std::filesystem::remove_all(out + ".unfinished");
      tables = {};
      allocations_left = failed;
      EXPECT_NO_THROW(message = call()) << failed;
      if (allocations_left.exchange(-1) < 0) {
        // A sort goes on without the memory that it would have liked.
        if (message == run_finished && errors.empty()) {
          EXPECT_EQ(Contents_of(out), contents);
        }
        message.clear();
      }
      errors.clear();
    }
    EXPECT_GT(failed, 20);
  }
}

}  // namespace
}  // namespace gns
