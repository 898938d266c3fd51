#include "bindings/java/native/Kept_results.h"

#include <algorithm>
#include <set>
#include <utility>

#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/String_array.h"
#include "bindings/java/native/Translation_steps.h"
#include "files/Result_lines.h"

namespace gns {

namespace {

/// More than a part has alive at any time, what is kept of it included.
constexpr std::size_t references_of_part = 32;

constexpr std::size_t nodes_of_link = 2;

/// Some JVMs count what is alive already, others what is to come.
void Ensure_references(JNIEnv* env, std::size_t parts) {
  if (env->EnsureLocalCapacity(static_cast<jint>(references_of_part * parts)) != JNI_OK)
    throw Java_error_pending();
}

Row_arrays Rows_of(JNIEnv* env, const Row_array<std::uint32_t>& rows) {
  return {Ends_of(env, rows.Starts()), Int_array_of(env, rows.Values())};
}

/// For each k-clique of a community, all its pairs.
Row_arrays K_clique_links_of(JNIEnv* env, const Level& level) {
  const std::size_t k = level.k;
  const std::size_t nodes_of_k_clique = k * (k - 1);
  const Row_array<K_clique_index>& k_cliques = level.com_k_cliques;
  Int_array_writer ends(env, k_cliques.size());
  Int_array_writer nodes(env, nodes_of_k_clique * k_cliques.Values().size());
  const K_clique_com_links links = level.K_clique_links();
  for (std::size_t com = 0; com < k_cliques.size(); ++com) {
    ends.Put(static_cast<jint>(nodes_of_k_clique * k_cliques.Starts()[com + 1]));
    links.For_each(com, [&](const Index_pair& link) {
      nodes.Put(static_cast<jint>(link.first));
      nodes.Put(static_cast<jint>(link.second));
    });
  }
  return {ends.Take(), nodes.Take()};
}

/// The overlaps by the communities' signed positions, as the files are read back.
Com_graph In_order_of_signs(const Level& level) {
  Com_graph overlaps = level.com_graph;
  const std::uint32_t exact_count = level.communities->exact_com_count;
  std::ranges::sort(overlaps, {}, [exact_count](const Com_overlap& overlap) {
    return std::pair(Signed_index(overlap.first, exact_count),
                     Signed_index(overlap.second, exact_count));
  });
  return overlaps;
}

}  // namespace

template <typename Part>
void Kept_results::Keep(Part part) {
  if (error_) return;
  try {
    Ensure_references(env_, levels_.size() + 3);  // the network and the cliques are parts, too
    part();
  } catch (const Java_error_pending&) {
    error_.emplace(env_, env_->ExceptionOccurred());
    env_->ExceptionClear();
  }
}

/// Only the names of the network are decoded in the JVM's default character set, as paths are.
void Kept_results::Keep_links(const Link_map& links) {
  Keep([&] {
    const Byte_strings strings(env_);
    const Name_table& names = links.Names();
    Local_ref<jobjectArray> java_names = String_array(
        env_, names.size(), [&](std::uint32_t i) { return strings.C_to_String(names[i]); });
    network_.emplace(Network_arrays{std::move(java_names), Pairs_of(env_, links.Pairs())});
  });
}

/// There is no node 0, so its name is empty.
void Kept_results::Keep_cliques(const Clique_vector& cliques, std::uint32_t exact_count,
                                const Node_names& names) {
  Keep([&] {
    Modified_utf8 encoding;
    names_.emplace(String_array(env_, names.size() + 1, [&](Node_index node) {
      return Utf_to_String(env_, encoding, names[node]);
    }));
    cliques_.emplace(Clique_arrays{Behind(exact_count, cliques.size()), Rows_of(env_, cliques)});
  });
}

void Kept_results::Keep_level(const Level& level, const Index_links& links) {
  Keep([&] { levels_.push_back(Arrays_of(level, links)); });
}

Level_arrays Kept_results::Arrays_of(const Level& level, const Index_links& links) const {
  const Communities& found = *level.communities;
  const Level_statistics& statistics = level.statistics;
  const Distributions& exact = statistics.exact ? *statistics.exact : statistics.all;
  const auto pairs_of = [this](const Distribution& pairs) { return Pairs_of(env_, pairs); };
  return {level.k,
          Behind(found.exact_com_count, found.size()),
          Rows_of(env_, found.coms),
          Links_of(level, links),
          Rows_of(env_, found.com_cliques),
          Overlaps_of(env_, In_order_of_signs(level)),
          {pairs_of(exact.size), pairs_of(exact.degree), pairs_of(exact.overlap),
           pairs_of(exact.membership)}};
}

/// In the direction in which the files have them: that of the network. In approximate cliques there
/// are pairs that are no links; they count as links the other way round.
Row_arrays Kept_results::Links_of(const Level& level, const Index_links& links) const {
  if (level.k_cliques) return K_clique_links_of(env_, level);
  const Row_array<Index_pair>& found = level.communities->com_links;
  const bool all_exact = level.communities->exact_com_count == level.communities->size();
  if (all_exact && !directed_)
    return {Ends_of(env_, found.Starts(), nodes_of_link), Pairs_of(env_, found.Values())};
  Int_array_writer nodes(env_, nodes_of_link * found.Values().size());
  for (const auto& [first, second] : found.Values()) {
    const bool turned = !links.contains(first, second);
    nodes.Put(static_cast<jint>(turned ? second : first));
    nodes.Put(static_cast<jint>(turned ? first : second));
  }
  return {Ends_of(env_, found.Starts(), nodes_of_link), nodes.Take()};
}

/// The positions of what is approximate: behind the exact ones. Position 0 counts as exact, since
/// only the sign of a position tells.
Int_array Kept_results::Behind(std::size_t exact_count, std::size_t count) const {
  const std::size_t first = std::max<std::size_t>(exact_count, 1);
  Int_array_writer positions(env_, count > first ? count - first : 0);
  for (std::size_t at = first; at < count; ++at) positions.Put(static_cast<jint>(at));
  return positions.Take();
}

jobject Kept_results::Translate() {
  Report_translation(" Loading results");
  if (error_) {
    if (*error_) env_->Throw(error_->Get());
    throw Java_error_pending();
  }
  Ensure_references(env_, levels_.size() + 3);
  Result_arrays results(env_, directed_);
  results.Add(*std::exchange(network_, std::nullopt));
  results.Add(*std::exchange(cliques_, std::nullopt));
  std::set<std::uint32_t> ks;
  for (const Level_arrays& level : levels_) ks.insert(level.k);
  results.Add_levels(ks, ks.empty() ? 0 : *ks.rbegin(), [&](std::uint32_t k) {
    const auto level = std::ranges::find(levels_, k, &Level_arrays::k);
    return level != levels_.end() ? &*level : nullptr;
  });
  jobject result = results.Finish(*names_);
  Report_translation(" done.");
  return result;
}

}  // namespace gns
