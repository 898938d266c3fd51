#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>

namespace gns {

/// An array of plain values that grows at its end. Growing and shrinking go through `realloc`,
/// which moves pages instead of copying a big block.
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
  ~Growing_array() { std::free(data_); }

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
    if (capacity_ - size_ < count) Reallocate(std::max(size_ + count, capacity_ + capacity_ / 2));
    return data_ + size_;
  }
  void Grew(std::size_t count) { size_ += count; }
  void Cut(std::size_t size) { size_ = size; }
  void Shrink_to_fit() { Reallocate(size_); }

  [[nodiscard]] const Value* data() const { return data_; }
  [[nodiscard]] std::size_t size() const { return size_; }

  void swap(Growing_array& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
  }

 private:
  void Reallocate(std::size_t capacity) {
    if (capacity == capacity_) return;
    void* const moved = capacity == 0 ? nullptr : std::realloc(data_, capacity * sizeof(Value));
    if (moved == nullptr && capacity > 0) throw std::bad_alloc();
    if (moved == nullptr) std::free(data_);
    data_ = static_cast<Value*>(moved);
    capacity_ = capacity;
  }

  Value* data_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace gns
