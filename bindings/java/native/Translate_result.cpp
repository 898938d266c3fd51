#include "bindings/java/native/Translate_result.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <limits>
#include <string>
#include <utility>

#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Name_strings.h"
#include "bindings/java/native/Result_classes.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

/// More than the translation has alive at any time.
constexpr jint local_references = 32;

void Report(const std::string& text) { external_control::JAVA_CPP_TRANSLATE_STATE_REPORT = text; }

/// The row of a key; an empty one if there is none.
template <typename Table>
typename Table::mapped_type Row_of(const Table& table, std::int32_t key) {
  const auto entry = table.find(key);
  return entry != table.end() ? (*entry).second : typename Table::mapped_type();
}

/// The key and the row of the clique or community at a position. The key is the position or, of
/// what is approximate, minus that. If there is neither, prints a line.
template <typename Table>
typename Table::value_type Entry_at(const Table& table, std::size_t at, const char* if_missing) {
  const auto position = static_cast<std::int32_t>(at);
  for (const std::int32_t key : {position, -position})
    if (const auto entry = table.find(key); entry != table.end()) return *entry;
  std::cout << if_missing << std::endl;
  return {position, {}};
}

jint Position(std::int32_t key) {
  const auto bits = static_cast<std::uint32_t>(key);
  return static_cast<jint>(key < 0 ? 0U - bits : bits);
}

/// Takes the table of a k out of the tables; an empty one if there is none.
template <typename Table>
Table Take(By_k<Table>& tables, std::uint32_t k) {
  auto node = tables.extract(k);
  return node ? std::move(node.mapped()) : Table();
}

/// The k to go on with behind this one: the next, unless the tables have nothing for very long. A
/// run at an absurd k leaves such a gap, and nobody could read the reports of so many k.
std::uint64_t Next_k(const Com_result_tables& tables, std::uint32_t k) {
  constexpr std::uint64_t long_gap = 1000;
  const auto next_of = [k](const auto& by_k) {
    const auto entry = by_k.upper_bound(k);
    return entry != by_k.end() ? entry->first : std::numeric_limits<std::uint64_t>::max();
  };
  const std::uint64_t next =
      std::min({next_of(tables.communities), next_of(tables.com_graphs),
                next_of(tables.size_dist_exact), next_of(tables.degree_dist_exact),
                next_of(tables.overlap_dist_exact), next_of(tables.membership_dist_exact)});
  return next - k > long_gap ? next : k + std::uint64_t{1};
}

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
  if (!tables.communities.empty()) {
    const std::uint32_t largest_k = tables.communities.rbegin()->first;
    for (std::uint64_t k = 3; k <= largest_k; k = Next_k(tables, static_cast<std::uint32_t>(k)))
      Add_all_of_k(static_cast<std::uint32_t>(k), tables);
  }
  return out_params_.Release();
}

/// The network: only its names are decoded in the JVM's default character set, as paths are.
Local_ref<jobject> Translation::In_params_of(const Name_pairs& links) const {
  Local_ref<jobject> in_params = in_params_class_.New(in_params_class_.init);
  if (links.empty()) return in_params;
  Report(" Loading results: edges");
  const Byte_strings strings(env_);
  Name_strings names(env_, [&](std::string_view name) { return strings.C_to_String(name); });
  for (const auto& [first, second] : links)
    in_params_class_.Call(in_params, in_params_class_.add_edge, names.Of(first).Get(),
                          names.Of(second).Get());
  return in_params;
}

void Translation::Add_cliques(const Names_by_index& cliques) {
  if (!cliques.empty()) Report(" Loading results: cliques");
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
  Report(" Loading results: communities at k= " + k_text);
  Add_communities(k, Take(tables.communities, k), Take(tables.com_links, k),
                  Take(tables.com_cliques, k));
  Report(" Loading results: community graph at k=" + k_text);
  Add_community_graph(k, Take(tables.com_graphs, k));
  Report(" Loading results: distributions");
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
  Report(" Loading results");
  if (env->EnsureLocalCapacity(local_references) != JNI_OK) throw Java_error_pending();
  jobject result = Translation(env, directed).Of(std::move(tables));
  Report(" done.");
  return result;
}

}  // namespace gns
