#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <span>
#include <type_traits>
#include <utility>

#include "foundation/memory/Huge_pages.h"

namespace gns {

/// An array of plain values that grows at its end. Growing and shrinking go through `realloc`,
/// which moves pages instead of copying a big block.
///
/// It can also look at values that somebody else holds, of a file that is mapped for example. They
/// are read as its own would be; before it grows, they are copied.
template <typename Value>
requires std::is_trivially_copyable_v<Value>
class Growing_array {
 public:
  Growing_array() = default;
  Growing_array(const Growing_array& other) { append(other.data_, other.size_); }
  Growing_array(Growing_array&& other) noexcept { swap(other); }
  Growing_array& operator=(Growing_array other) noexcept {
    swap(other);
    return *this;
  }
  ~Growing_array() {
    if (Owns()) std::free(data_);
  }

  /// One that looks at values of others, which outlive it and all that it is moved to.
  static Growing_array Looking_at(std::span<const Value> values) {
    Growing_array array;
    array.data_ = const_cast<Value*>(values.data());  // never written through
    array.size_ = values.size();
    return array;
  }

  void push_back(Value value) {
    *Room_for(1) = value;
    ++size_;
  }
  void append(const Value* values, std::size_t count) {
    std::copy_n(values, count, Room_for(count));
    size_ += count;
  }

  /// Where up to `count` values may be written behind the last one; they count from Grew() on.
  Value* Room_for(std::size_t count) {
    if (capacity_ < size_ + count) Reallocate(std::max(size_ + count, capacity_ + capacity_ / 2));
    return data_ + size_;
  }
  void Grew(std::size_t count) { size_ += count; }
  /// Makes room for so many values in all. What is left unused is never touched, up to a page.
  void Reserve(std::size_t count) {
    if (capacity_ >= count) return;
    Reallocate(count);
    Advise_huge_pages(data_ + size_, (count - size_) * sizeof(Value));
  }
  void Cut(std::size_t size) { size_ = size; }
  void Shrink_to_fit() { Reallocate(size_); }

  [[nodiscard]] Value* data() { return data_; }
  [[nodiscard]] const Value* data() const { return data_; }
  [[nodiscard]] const Value& operator[](std::size_t place) const { return data_[place]; }
  [[nodiscard]] std::span<Value> Values() { return {data_, size_}; }
  [[nodiscard]] std::span<const Value> Values() const { return {data_, size_}; }
  [[nodiscard]] std::size_t size() const { return size_; }

  void swap(Growing_array& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
  }

 private:
  [[nodiscard]] bool Owns() const { return capacity_ > 0; }

  void Reallocate(std::size_t capacity) {
    if (capacity == capacity_) return;
    void* const own = Owns() ? data_ : nullptr;
    void* const moved = capacity == 0 ? nullptr : std::realloc(own, capacity * sizeof(Value));
    if (moved == nullptr && capacity > 0) throw std::bad_alloc();
    if (moved == nullptr) std::free(own);
    auto* const values = static_cast<Value*>(moved);
    if (own == nullptr && capacity > 0) std::copy_n(data_, size_, values);
    data_ = values;
    capacity_ = capacity;
  }

  Value* data_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;  ///< 0: there are no values, or others hold them
};

}  // namespace gns
