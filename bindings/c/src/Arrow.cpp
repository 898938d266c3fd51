#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <vector>

#include "bindings/c/src/Arrow_structs.h"
#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Results_handle.h"

namespace vorlane::c {

namespace {

/// A schema with all those below it in one block, which the topmost one owns. Consumers may move
/// children out of it, so each child holds the block as well.
struct Schema_block {
  ArrowSchema community, exact, members, item;
  std::array<ArrowSchema*, 3> columns = {&community, &exact, &members};
  std::array<ArrowSchema*, 1> items = {&item};
};

void Release(ArrowSchema* schema) {
  for (std::int64_t i = 0; i < schema->n_children; ++i)
    if (schema->children[i]->release) schema->children[i]->release(schema->children[i]);
  delete static_cast<std::shared_ptr<Schema_block>*>(schema->private_data);
  schema->release = nullptr;
}

ArrowSchema Schema(const char* format, const char* name,
                   const std::shared_ptr<Schema_block>& block) {
  return {format,  name,    nullptr,
          0,       0,       nullptr,
          nullptr, Release, new std::shared_ptr<Schema_block>(block)};
}

ArrowSchema Schema_of_level() {
  const auto block = std::make_shared<Schema_block>();
  block->community = Schema("I", "community", block);
  block->exact = Schema("b", "exact", block);
  block->members = Schema("+L", "members", block);
  block->item = Schema("I", "item", block);
  block->members.n_children = 1;
  block->members.children = block->items.data();
  ArrowSchema top = Schema("+s", "", block);
  top.n_children = static_cast<std::int64_t>(block->columns.size());
  top.children = block->columns.data();
  return top;
}

/// The same for arrays, with what the buffers are: the members in the hands of the level.
struct Array_block {
  Rows rows;
  std::vector<std::uint32_t> numbers;
  std::vector<std::uint8_t> exact_bits;
  ArrowArray community, exact, members, item;
  std::array<ArrowArray*, 3> columns = {&community, &exact, &members};
  std::array<ArrowArray*, 1> items = {&item};
  std::array<const void*, 1> of_struct = {nullptr};
  std::array<const void*, 2> of_community = {}, of_exact = {}, of_members = {}, of_item = {};
};

void Release(ArrowArray* array) {
  for (std::int64_t i = 0; i < array->n_children; ++i)
    if (array->children[i]->release) array->children[i]->release(array->children[i]);
  delete static_cast<std::shared_ptr<Array_block>*>(array->private_data);
  array->release = nullptr;
}

template <std::size_t count>
ArrowArray Array_of(std::size_t length, std::array<const void*, count>& buffers,
                    const std::shared_ptr<Array_block>& block) {
  return {static_cast<std::int64_t>(length),
          0,
          0,
          static_cast<std::int64_t>(count),
          0,
          buffers.data(),
          nullptr,
          nullptr,
          Release,
          new std::shared_ptr<Array_block>(block)};
}

ArrowArray Array_of_level(const Level& level) {
  constexpr std::size_t bits = 8;
  const auto block = std::make_shared<Array_block>();
  const std::size_t size = level.members.size();
  block->rows = level.members;
  block->numbers.resize(size);
  std::iota(block->numbers.begin(), block->numbers.end(), 0U);
  block->exact_bits.resize(size / bits + 1);
  for (std::size_t i = 0; i < level.exact_count; ++i)
    block->exact_bits[i / bits] |= static_cast<std::uint8_t>(1U << (i % bits));
  block->of_community = {nullptr, block->numbers.data()};
  block->of_exact = {nullptr, block->exact_bits.data()};
  block->of_members = {nullptr, block->rows.Starts().data()};
  block->of_item = {nullptr, block->rows.Values().data()};
  block->community = Array_of(size, block->of_community, block);
  block->exact = Array_of(size, block->of_exact, block);
  block->item = Array_of(block->rows.Values().size(), block->of_item, block);
  block->members = Array_of(size, block->of_members, block);
  block->members.n_children = 1;
  block->members.children = block->items.data();
  ArrowArray top = Array_of(size, block->of_struct, block);
  top.n_children = static_cast<std::int64_t>(block->columns.size());
  top.children = block->columns.data();
  return top;
}

/// A stream of one array.
struct Level_stream {
  Level level;  ///< with the members alone
  bool is_over = false;
};

Level_stream& Level_in(ArrowArrayStream* stream) {
  return *static_cast<Level_stream*>(stream->private_data);
}

/// What a stream's functions return: 0, or a number of the system.
template <typename Work>
int With_errno(Work work) noexcept {
  return With_code(work) == VORLANE_OK ? 0 : ENOMEM;
}

int Get_schema(ArrowArrayStream* /*stream*/, ArrowSchema* schema) {
  return With_errno([&] { *schema = Schema_of_level(); });
}

int Get_next(ArrowArrayStream* stream, ArrowArray* array) {
  return With_errno([&] {
    Level_stream& of = Level_in(stream);
    *array = of.is_over ? ArrowArray{} : Array_of_level(of.level);
    of.is_over = true;
  });
}

const char* Get_last_error(ArrowArrayStream* /*stream*/) { return vorlane_last_failure(nullptr); }

void Release(ArrowArrayStream* stream) {
  delete &Level_in(stream);
  stream->release = nullptr;
}

}  // namespace
}  // namespace vorlane::c

vorlane_code vorlane_results_arrow(const vorlane_results* results, uint32_t k,
                                   ArrowArrayStream* stream) {
  return vorlane::c::With_code([&] {
    const vorlane::Level& level = results->results.At(k);
    auto held = std::make_unique<vorlane::c::Level_stream>();
    held->level.members = level.members;
    held->level.exact_count = level.exact_count;
    *stream = {vorlane::c::Get_schema, vorlane::c::Get_next, vorlane::c::Get_last_error,
               vorlane::c::Release, held.release()};
  });
}
