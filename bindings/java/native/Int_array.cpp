#include "bindings/java/native/Int_array.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "bindings/java/native/Java_errors.h"

namespace gns {

namespace {

jintArray New_array(JNIEnv* env, std::size_t size) {
  if (size > std::numeric_limits<jsize>::max()) {
    JNU_ThrowByName(env, "java/lang/OutOfMemoryError", "more than an array of Java can hold");
    throw Java_error_pending();
  }
  return Needed(env->NewIntArray(static_cast<jsize>(size)));
}

}  // namespace

Int_array_writer::Int_array_writer(JNIEnv* env, std::size_t size)
    : env_(env), array_(env, New_array(env, size)) {
  piece_.reserve(std::min(size, piece_size));
}

void Int_array_writer::Put(std::span<const std::uint32_t> values) {
  Write_piece();
  const auto size = static_cast<jsize>(values.size());
  if (size == 0) return;
  env_->SetIntArrayRegion(array_.Get(), written_, size,
                          reinterpret_cast<const jint*>(values.data()));
  written_ += size;
}

Int_array Int_array_writer::Take() {
  Write_piece();
  return std::move(array_);
}

void Int_array_writer::Write_piece() {
  const auto size = static_cast<jsize>(piece_.size());
  if (size == 0) return;
  env_->SetIntArrayRegion(array_.Get(), written_, size, piece_.data());
  written_ += size;
  piece_.clear();
}

Int_array Int_array_of(JNIEnv* env, std::span<const std::uint32_t> values) {
  Int_array_writer writer(env, values.size());
  writer.Put(values);
  return writer.Take();
}

Int_array Pairs_of(JNIEnv* env, const std::map<std::uint32_t, std::uint32_t>& map) {
  Int_array_writer writer(env, 2 * map.size());
  for (const auto& [key, value] : map) {
    writer.Put(static_cast<jint>(key));
    writer.Put(static_cast<jint>(value));
  }
  return writer.Take();
}

Int_array Pairs_of(JNIEnv* env, std::span<const vorlane::Node_pair> pairs) {
  Int_array_writer writer(env, 2 * pairs.size());
  for (const auto& [first, second] : pairs) {
    writer.Put(static_cast<jint>(first));
    writer.Put(static_cast<jint>(second));
  }
  return writer.Take();
}

Int_array Overlaps_of(JNIEnv* env, std::span<const vorlane::Overlap> overlaps) {
  Int_array_writer writer(env, 3 * overlaps.size());
  for (const auto& [first, second, shared] : overlaps)
    for (const std::uint32_t value : {first, second, shared}) writer.Put(static_cast<jint>(value));
  return writer.Take();
}

Int_array Int_array_of(JNIEnv* env, std::span<const std::size_t> places, std::size_t times) {
  Int_array_writer writer(env, places.size());
  for (const std::size_t place : places) writer.Put(static_cast<jint>(times * place));
  return writer.Take();
}

}  // namespace gns
