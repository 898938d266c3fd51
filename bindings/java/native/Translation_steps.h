#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "results/Com_result_tables.h"

namespace gns {

/// What all translations of results to Java objects have in common: their reports, how they read
/// tables, and the k that they go through.

/// Sets JAVA_CPP_TRANSLATE_STATE_REPORT.
void Report_translation(const std::string& text);

/// The row of a key; an empty one if there is none.
template <typename Table>
typename Table::mapped_type Row_of(const Table& table, std::int32_t key) {
  const auto entry = table.find(key);
  return entry != table.end() ? (*entry).second : typename Table::mapped_type();
}

/// Prints a line on standard output.
void Print_line(const char* line);

/// The key and the row of the clique or community at a position. The key is the position or, of
/// what is approximate, minus that. If there is neither, prints a line.
template <typename Table>
typename Table::value_type Entry_at(const Table& table, std::size_t at, const char* if_missing) {
  const auto position = static_cast<std::int32_t>(at);
  for (const std::int32_t key : {position, -position})
    if (const auto entry = table.find(key); entry != table.end()) return *entry;
  Print_line(if_missing);
  return {position, {}};
}

/// The position that a key stands for.
inline std::int32_t Position(std::int32_t key) {
  const auto bits = static_cast<std::uint32_t>(key);
  return static_cast<std::int32_t>(key < 0 ? 0U - bits : bits);
}

/// Takes the table of a k out of the tables; an empty one if there is none.
template <typename Table>
Table Take(By_k<Table>& tables, std::uint32_t k) {
  auto node = tables.extract(k);
  return node ? std::move(node.mapped()) : Table();
}

/// The largest k with communities; 0 if there is none.
std::uint32_t Last_k_of(const Com_result_tables& tables);
/// Each k for which the tables have something that Java gets.
std::set<std::uint32_t> Ks_of(const Com_result_tables& tables);

/// Calls use(k) for each k from 3 to the last, also where there is nothing; but it leaves out what
/// lies between two of `ks` very far apart. A run at an absurd k has such a gap, and nobody could
/// read the reports of so many k.
void For_each_k(const std::set<std::uint32_t>& ks, std::uint32_t last,
                const std::function<void(std::uint32_t)>& use);

}  // namespace gns
