#include "bindings/java/native/Result_arrays.h"

#include <string>

#include "bindings/java/native/Translation_steps.h"

namespace gns {

namespace {

/// True if a look-up has yielded something; takes the error back if nothing is there. Any other
/// error stays pending and is thrown.
template <typename Found>
bool Is_found(JNIEnv* env, Found found) {
  if (found != nullptr) return true;
  const Local_ref<jthrowable> error(env, env->ExceptionOccurred());
  env->ExceptionClear();
  const Local_ref<jclass> missing(env, Needed(env->FindClass("java/lang/LinkageError")));
  if (error && env->IsInstanceOf(error.Get(), missing.Get()) != JNI_FALSE) return false;
  if (error) env->Throw(error.Get());
  throw Java_error_pending();
}

}  // namespace

bool Result_arrays::Are_known(JNIEnv* env) {
  const Local_ref<jclass> arrays(env, env->FindClass("zumo/community/ResultArrays"));
  if (!Is_found(env, arrays.Get())) return false;
  const Local_ref<jclass> results(env, env->FindClass("zumo/community/OutParams"));
  return Is_found(env, results.Get()) &&
         Is_found(env, env->GetMethodID(results.Get(), "names", "()Lzumo/community/NodeNames;"));
}

Result_arrays::Result_arrays(JNIEnv* env, bool directed) : env_(env), directed_(directed) {}

void Result_arrays::Add(const Network_arrays& network) {
  if (env_->GetArrayLength(network.link_ends.Get()) > 0)
    Report_translation(" Loading results: edges");
  class_.Call(object_, network_, network.names.Get(), network.link_ends.Get());
}

void Result_arrays::Add(const Clique_arrays& cliques) {
  if (env_->GetArrayLength(cliques.nodes.ends.Get()) > 0)
    Report_translation(" Loading results: cliques");
  class_.Call(object_, cliques_, cliques.approximate.Get(), cliques.nodes.ends.Get(),
              cliques.nodes.values.Get());
}

void Result_arrays::Add_levels(const std::set<std::uint32_t>& ks, std::uint32_t last,
                               const std::function<const Level_arrays*(std::uint32_t)>& level_at) {
  For_each_k(ks, last, [&](std::uint32_t k) {
    const std::string k_text = std::to_string(k);
    Report_translation(" Loading results: communities at k= " + k_text);
    const Level_arrays* const level = level_at(k);
    if (level != nullptr) Add_communities(*level);
    Report_translation(" Loading results: community graph at k=" + k_text);
    if (level != nullptr)
      class_.Call(object_, community_graph_, static_cast<jint>(k), level->overlaps.Get());
    Report_translation(" Loading results: distributions");
    if (level != nullptr) Add_distributions(*level);
  });
}

void Result_arrays::Add_communities(const Level_arrays& level) {
  class_.Call(object_, communities_, static_cast<jint>(level.k), directed_, level.approximate.Get(),
              level.nodes.ends.Get(), level.nodes.values.Get(), level.links.ends.Get(),
              level.links.values.Get(), level.cliques.ends.Get(), level.cliques.values.Get());
}

void Result_arrays::Add_distributions(const Level_arrays& level) {
  for (std::size_t i = 0; i < distribution_names.size(); ++i) {
    const Local_ref<jstring> name(env_, Needed(env_->NewStringUTF(distribution_names[i])));
    class_.Call(object_, distribution_, static_cast<jint>(level.k), name.Get(),
                level.distributions[i].Get());
  }
}

jobject Result_arrays::Finish(const Local_ref<jobjectArray>& names) {
  class_.Call(object_, names_, names.Get());
  return Needed(env_->CallObjectMethod(object_.Get(), results_));
}

}  // namespace gns
