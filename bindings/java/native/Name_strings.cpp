#include "bindings/java/native/Name_strings.h"

#include <utility>

#include "bindings/java/native/Java_errors.h"

namespace gns {

Name_strings::Name_strings(JNIEnv* env, Make make)
    : env_(env),
      make_(std::move(make)),
      type_(env, Needed(env->FindClass("java/lang/String"))),
      strings_(New_array(capacity_)) {}

Local_ref<jstring> Name_strings::Of(std::string_view name) {
  const std::uint32_t number = numbers_.Of(name);
  if (number == used_) return Add(number, name);
  return {env_, static_cast<jstring>(At(number).Release())};
}

std::uint32_t Name_strings::Number_of(std::string_view name) {
  const std::uint32_t number = numbers_.Of(name);
  if (number == used_) Add(number, name);
  return number;
}

Local_ref<jstring> Name_strings::Add(std::uint32_t number, std::string_view name) {
  if (number == capacity_) strings_ = Copied(capacity_ *= 2);
  Local_ref<jstring> string(env_, Needed(make_(name)));
  env_->SetObjectArrayElement(strings_.Get(), static_cast<jsize>(number), string.Get());
  ++used_;
  return string;
}

Local_ref<jobject> Name_strings::At(std::uint32_t number) const {
  return {env_, Needed(env_->GetObjectArrayElement(strings_.Get(), static_cast<jsize>(number)))};
}

Local_ref<jobjectArray> Name_strings::New_array(std::uint32_t capacity) const {
  return {env_, Needed(env_->NewObjectArray(static_cast<jsize>(capacity), type_.Get(), nullptr))};
}

Local_ref<jobjectArray> Name_strings::Copied(std::uint32_t capacity) const {
  Local_ref<jobjectArray> copy = New_array(capacity);
  for (std::uint32_t number = 0; number < used_; ++number)
    env_->SetObjectArrayElement(copy.Get(), static_cast<jsize>(number), At(number).Get());
  return copy;
}

}  // namespace gns
