#include "bindings/java/native/Table_arrays.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Name_strings.h"
#include "bindings/java/native/Result_arrays.h"
#include "bindings/java/native/Translation_steps.h"

namespace gns {

namespace {

constexpr std::size_t numbers_of_overlap = 3;

class Table_arrays {
 public:
  explicit Table_arrays(JNIEnv* env) : env_(env) {}

  [[nodiscard]] Network_arrays Network(const Name_pairs& links) const;
  Clique_arrays Cliques(const Names_by_index& cliques);
  Level_arrays Level(std::uint32_t k, Com_result_tables& tables);
  [[nodiscard]] Local_ref<jobjectArray> Names() const { return names_.All(); }

 private:
  /// The keys of the cliques or communities by position.
  template <typename Table>
  static std::vector<std::int32_t> Keys(const Table& table, const char* if_missing);
  [[nodiscard]] Int_array Approximate(const std::vector<std::int32_t>& keys) const;
  /// The rows of these keys: `length` tells how many numbers a row has, `put` puts them.
  template <typename Table, typename Put>
  Row_arrays Rows(const std::vector<std::int32_t>& keys, const Table& table,
                  std::size_t numbers_each, Put put) const;
  Row_arrays Nodes(const std::vector<std::int32_t>& keys, const Names_by_index& table);

  JNIEnv* env_;
  Modified_utf8 encoding_;
  Name_strings names_{
      env_, [this](std::string_view name) { return Utf_to_String(env_, encoding_, name); }};
};

/// The network: only its names are decoded in the JVM's default character set, as paths are.
Network_arrays Table_arrays::Network(const Name_pairs& links) const {
  const Byte_strings strings(env_);
  Name_strings names(env_, [&](std::string_view name) { return strings.C_to_String(name); });
  Int_array_writer ends(env_, 2 * links.size());
  for (const auto& [first, second] : links) {
    ends.Put(static_cast<jint>(names.Number_of(first)));
    ends.Put(static_cast<jint>(names.Number_of(second)));
  }
  return {names.All(), ends.Take()};
}

template <typename Table>
std::vector<std::int32_t> Table_arrays::Keys(const Table& table, const char* if_missing) {
  std::vector<std::int32_t> keys;
  keys.reserve(table.size());
  for (std::size_t i = 0; i < table.size(); ++i)
    keys.push_back(Entry_at(table, i, if_missing).first);
  return keys;
}

Int_array Table_arrays::Approximate(const std::vector<std::int32_t>& keys) const {
  const auto is_approximate = [](std::int32_t key) { return key < 0; };
  Int_array_writer positions(env_,
                             static_cast<std::size_t>(std::ranges::count_if(keys, is_approximate)));
  for (std::size_t i = 0; i < keys.size(); ++i)
    if (is_approximate(keys[i])) positions.Put(static_cast<jint>(i));
  return positions.Take();
}

template <typename Table, typename Put>
Row_arrays Table_arrays::Rows(const std::vector<std::int32_t>& keys, const Table& table,
                              std::size_t numbers_each, Put put) const {
  if (table.empty()) return {Int_array_writer(env_, 0).Take(), Int_array_writer(env_, 0).Take()};
  Int_array_writer ends(env_, keys.size());
  std::size_t count = 0;
  for (const std::int32_t key : keys) {
    count += numbers_each * Row_of(table, key).size();
    ends.Put(static_cast<jint>(count));
  }
  Int_array_writer values(env_, count);
  for (const std::int32_t key : keys)
    for (const auto& value : Row_of(table, key)) put(values, value);
  return {ends.Take(), values.Take()};
}

Row_arrays Table_arrays::Nodes(const std::vector<std::int32_t>& keys, const Names_by_index& table) {
  return Rows(keys, table, 1, [this](Int_array_writer& nodes, std::string_view name) {
    nodes.Put(static_cast<jint>(names_.Number_of(name)));
  });
}

Clique_arrays Table_arrays::Cliques(const Names_by_index& cliques) {
  const std::vector<std::int32_t> keys = Keys(cliques, "can't happen! (1)");
  return {Approximate(keys), Nodes(keys, cliques)};
}

Level_arrays Table_arrays::Level(std::uint32_t k, Com_result_tables& tables) {
  const Names_by_index communities = Take(tables.communities, k);
  const std::vector<std::int32_t> keys = Keys(communities, "can't happen! (2)");
  Row_arrays nodes = Nodes(keys, communities);
  Row_arrays links = Rows(keys, Take(tables.com_links, k), 2, [this](auto& ends, const auto& pair) {
    ends.Put(static_cast<jint>(names_.Number_of(pair.first)));
    ends.Put(static_cast<jint>(names_.Number_of(pair.second)));
  });
  Row_arrays cliques =
      Rows(keys, Take(tables.com_cliques, k), 1,
           [](Int_array_writer& positions, std::int32_t key) { positions.Put(Position(key)); });
  const Overlap_table com_graph = Take(tables.com_graphs, k);
  Int_array_writer overlaps(env_, numbers_of_overlap * com_graph.size());
  for (const auto& [pair, shared_nodes] : com_graph) {
    overlaps.Put(Position(pair.first));
    overlaps.Put(Position(pair.second));
    overlaps.Put(static_cast<jint>(shared_nodes));
  }
  return {k,
          Approximate(keys),
          std::move(nodes),
          std::move(links),
          std::move(cliques),
          overlaps.Take(),
          {Pairs_of(env_, Take(tables.size_dist_exact, k)),
           Pairs_of(env_, Take(tables.degree_dist_exact, k)),
           Pairs_of(env_, Take(tables.overlap_dist_exact, k)),
           Pairs_of(env_, Take(tables.membership_dist_exact, k))}};
}

}  // namespace

jobject Translate_in_arrays(JNIEnv* env, bool directed, Com_result_tables tables) {
  tables.k_cliques.clear();  // not for Java, and large
  Result_arrays results(env, directed);
  Table_arrays arrays(env);
  results.Add(arrays.Network(std::exchange(tables.graph_links, {})));
  results.Add(arrays.Cliques(std::exchange(tables.cliques, {})));
  std::optional<Level_arrays> level;
  results.Add_levels(Ks_of(tables), Last_k_of(tables), [&](std::uint32_t k) {
    level.emplace(arrays.Level(k, tables));
    return &*level;
  });
  return results.Finish(arrays.Names());
}

}  // namespace gns
