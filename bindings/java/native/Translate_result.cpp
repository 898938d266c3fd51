#include "bindings/java/native/Translate_result.h"

#include <cstdint>
#include <string>
#include <utility>

#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Name_strings.h"
#include "bindings/java/native/Result_arrays.h"
#include "bindings/java/native/Result_classes.h"
#include "bindings/java/native/Table_arrays.h"
#include "bindings/java/native/Translation_steps.h"

namespace gns {

namespace {

/// More than the translation has alive at any time.
constexpr jint local_references = 32;

class Translation {
 public:
  Translation(JNIEnv* env, bool directed) : env_(env), directed_(directed) {}

  jobject Of(Com_result_tables tables);

 private:
  Local_ref<jobject> In_params_of(const Name_pairs& links) const;
  void Add_cliques(const Names_by_index& cliques);
  void Add_all_of_k(std::uint32_t k, Com_result_tables& tables);
  void Add_communities(std::uint32_t k, const Names_by_index& communities,
                       const Links_by_index& com_links, const Indices_by_index& com_cliques);
  void Add_community_links(const Local_ref<jobject>& community, Links_by_index::mapped_type links);
  void Add_community_graph(std::uint32_t k, const Overlap_table& com_graph) const;
  void Add_distribution(std::uint32_t k, const char* name, const Distribution_table& table) const;

  JNIEnv* env_;
  jboolean directed_;
  Out_params_class out_params_class_{env_};
  In_params_class in_params_class_{env_};
  Clique_class clique_class_{env_};
  Community_class community_class_{env_};
  Edge_class edge_class_{env_};
  Local_ref<jobject> out_params_ = out_params_class_.New(out_params_class_.init);
  Modified_utf8 encoding_;
  Name_strings names_{
      env_, [this](std::string_view name) { return Utf_to_String(env_, encoding_, name); }};
};

jobject Translation::Of(Com_result_tables tables) {
  tables.k_cliques.clear();  // not for Java, and large
  const Local_ref<jobject> in_params = In_params_of(std::exchange(tables.graph_links, {}));
  out_params_class_.Call(out_params_, out_params_class_.set_in_params, in_params.Get());
  Add_cliques(std::exchange(tables.cliques, {}));
  For_each_k(Ks_of(tables), Last_k_of(tables), [&](std::uint32_t k) { Add_all_of_k(k, tables); });
  return out_params_.Release();
}

/// The network: only its names are decoded in the JVM's default character set, as paths are.
Local_ref<jobject> Translation::In_params_of(const Name_pairs& links) const {
  Local_ref<jobject> in_params = in_params_class_.New(in_params_class_.init);
  if (links.empty()) return in_params;
  Report_translation(" Loading results: edges");
  const Byte_strings strings(env_);
  Name_strings names(env_, [&](std::string_view name) { return strings.C_to_String(name); });
  for (const auto& [first, second] : links)
    in_params_class_.Call(in_params, in_params_class_.add_edge, names.Of(first).Get(),
                          names.Of(second).Get());
  return in_params;
}

void Translation::Add_cliques(const Names_by_index& cliques) {
  if (!cliques.empty()) Report_translation(" Loading results: cliques");
  for (std::size_t i = 0; i < cliques.size(); ++i) {
    const auto [key, names] = Entry_at(cliques, i, "can't happen! (1)");
    const jboolean approximate = key < 0;
    const Local_ref<jobject> clique = clique_class_.New(clique_class_.init, approximate);
    for (const std::string_view name : names)
      clique_class_.Call(clique, clique_class_.add_vertex, names_.Of(name).Get());
    out_params_class_.Call(out_params_, out_params_class_.add_clique, clique.Get(), jint{key});
  }
}

void Translation::Add_all_of_k(std::uint32_t k, Com_result_tables& tables) {
  const std::string k_text = std::to_string(k);
  Report_translation(" Loading results: communities at k= " + k_text);
  Add_communities(k, Take(tables.communities, k), Take(tables.com_links, k),
                  Take(tables.com_cliques, k));
  Report_translation(" Loading results: community graph at k=" + k_text);
  Add_community_graph(k, Take(tables.com_graphs, k));
  Report_translation(" Loading results: distributions");
  Add_distribution(k, "sizeDist", Take(tables.size_dist_exact, k));
  Add_distribution(k, "degreeDist", Take(tables.degree_dist_exact, k));
  Add_distribution(k, "overlapDist", Take(tables.overlap_dist_exact, k));
  Add_distribution(k, "membershipDist", Take(tables.membership_dist_exact, k));
}

void Translation::Add_communities(std::uint32_t k, const Names_by_index& communities,
                                  const Links_by_index& com_links,
                                  const Indices_by_index& com_cliques) {
  for (std::size_t i = 0; i < communities.size(); ++i) {
    const auto [key, names] = Entry_at(communities, i, "can't happen! (2)");
    const jboolean approximate = key < 0;
    const Local_ref<jobject> community = community_class_.New(community_class_.init, approximate);
    community_class_.Call(community, community_class_.set_size, static_cast<jint>(k));
    for (const std::string_view name : names)
      out_params_class_.Call(out_params_, out_params_class_.add_vertex_to_community,
                             community.Get(), names_.Of(name).Get());
    Add_community_links(community, Row_of(com_links, key));
    for (const std::int32_t clique : Row_of(com_cliques, key))
      out_params_class_.Call(out_params_, out_params_class_.add_clique_to_community,
                             community.Get(), Position(clique));
    out_params_class_.Call(out_params_, out_params_class_.add_community, community.Get());
  }
}

void Translation::Add_community_links(const Local_ref<jobject>& community,
                                      Links_by_index::mapped_type links) {
  for (const auto& [first, second] : links) {
    const Local_ref<jobject> edge = edge_class_.New(edge_class_.init, names_.Of(first).Get(),
                                                    names_.Of(second).Get(), directed_);
    community_class_.Call(community, community_class_.add_edge, edge.Get());
  }
}

void Translation::Add_community_graph(std::uint32_t k, const Overlap_table& com_graph) const {
  for (const auto& [pair, shared_nodes] : com_graph)
    out_params_class_.Call(out_params_, out_params_class_.add_community_graf_edge,
                           static_cast<jint>(k), Position(pair.first), Position(pair.second),
                           static_cast<jint>(shared_nodes));
}

void Translation::Add_distribution(std::uint32_t k, const char* name,
                                   const Distribution_table& table) const {
  for (const auto& [value, count] : table) {
    const Local_ref<jstring> java_name(env_, Needed(env_->NewStringUTF(name)));
    out_params_class_.Call(out_params_, out_params_class_.add_distribution, static_cast<jint>(k),
                           static_cast<jint>(value), static_cast<jint>(count), java_name.Get());
  }
}

}  // namespace

jobject translateResultToJava(JNIEnv* env, bool directed, Com_result_tables tables) {
  Report_translation(" Loading results");
  if (env->EnsureLocalCapacity(local_references) != JNI_OK) throw Java_error_pending();
  jobject result = Result_arrays::Are_known(env)
                       ? Translate_in_arrays(env, directed, std::move(tables))
                       : Translation(env, directed).Of(std::move(tables));
  Report_translation(" done.");
  return result;
}

}  // namespace gns
