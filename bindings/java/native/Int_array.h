#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "bindings/java/native/Local_ref.h"
#include "vorlane/rows.h"

namespace gns {

using Int_array = Local_ref<jintArray>;

/// Fills a new Java array of ints from front to back, in pieces of bounded size.
class Int_array_writer {
 public:
  /// Throws Java_error_pending, with an OutOfMemoryError pending, where the JVM has no memory for
  /// so many ints or no array can have them.
  Int_array_writer(JNIEnv* env, std::size_t size);

  void Put(jint value) {
    piece_.push_back(value);
    if (piece_.size() == piece_size) Write_piece();
  }
  /// Unsigned numbers arrive bit for bit.
  void Put(std::span<const std::uint32_t> values);

  /// The array; as many ints must have been put as it has places.
  Int_array Take();

 private:
  static constexpr std::size_t piece_size = 1U << 14U;

  void Write_piece();

  JNIEnv* env_;
  Int_array array_;
  jsize written_ = 0;
  std::vector<jint> piece_;
};

/// A Java array of these numbers.
Int_array Int_array_of(JNIEnv* env, std::span<const std::uint32_t> values);
/// The keys and the values of a map in turn.
Int_array Pairs_of(JNIEnv* env, const std::map<std::uint32_t, std::uint32_t>& map);
/// Pairs of nodes; overlaps in threes.
Int_array Pairs_of(JNIEnv* env, std::span<const vorlane::Node_pair> pairs);
Int_array Overlaps_of(JNIEnv* env, std::span<const vorlane::Overlap> overlaps);
/// Places, each a number of times.
Int_array Int_array_of(JNIEnv* env, std::span<const std::size_t> places, std::size_t times = 1);
/// For rows that start at these places and end with the last of them: where each row ends.
inline Int_array Ends_of(JNIEnv* env, std::span<const std::size_t> starts,
                         std::size_t numbers_each = 1) {
  return Int_array_of(env, starts.empty() ? starts : starts.subspan(1), numbers_each);
}

}  // namespace gns
