#include "bindings/java/native/Name_strings.h"

#include <utility>

#include "bindings/java/native/Java_errors.h"

namespace gns {

Name_strings::Name_strings(JNIEnv* env, Make make)
    : env_(env),
      make_(std::move(make)),
      type_(env, Needed(env->FindClass("java/lang/String"))),
      strings_(New_array()) {}

Local_ref<jstring> Name_strings::Of(std::string_view name) {
  const std::uint32_t known = numbers_.size();
  const std::uint32_t number = numbers_.Of(name);
  if (number == known) return Add(number, name);
  return {env_, static_cast<jstring>(At(number).Release())};
}

Local_ref<jstring> Name_strings::Add(std::uint32_t number, std::string_view name) {
  if (number == capacity_) Grow();
  Local_ref<jstring> string(env_, Needed(make_(name)));
  env_->SetObjectArrayElement(strings_.Get(), static_cast<jsize>(number), string.Get());
  return string;
}

Local_ref<jobject> Name_strings::At(std::uint32_t number) const {
  return {env_, Needed(env_->GetObjectArrayElement(strings_.Get(), static_cast<jsize>(number)))};
}

Local_ref<jobjectArray> Name_strings::New_array() const {
  return {env_, Needed(env_->NewObjectArray(static_cast<jsize>(capacity_), type_.Get(), nullptr))};
}

void Name_strings::Grow() {
  const std::uint32_t used = std::exchange(capacity_, capacity_ * 2);
  Local_ref<jobjectArray> larger = New_array();
  for (std::uint32_t number = 0; number < used; ++number)
    env_->SetObjectArrayElement(larger.Get(), static_cast<jsize>(number), At(number).Get());
  strings_ = std::move(larger);
}

}  // namespace gns
