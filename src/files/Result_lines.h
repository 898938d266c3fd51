#pragma once

#include <cstdint>
#include <utility>

#include "control/Run_control.h"
#include "foundation/io/Text_writer.h"
#include "graph/Node_names.h"
#include "graph/Node_set.h"
#include "results/Com_result_tables.h"

namespace gns {

/// An index as the files show it: with a minus sign if it is at or behind `exact_count`.
inline void Write_index(Text_writer& file, std::uint32_t index, std::uint32_t exact_count) {
  if (index >= exact_count) file << '-';
  file << index;
}

/// The same index as the tables hold it.
inline std::int32_t Signed_index(std::uint32_t index, std::uint32_t exact_count) {
  const auto position = static_cast<std::int32_t>(index);
  return index < exact_count ? position : -position;
}

/// Opens the row of an index in a table; null if there is no table.
template <typename Values>
Values* Open_row(Table_by_index<Values>* table, std::uint32_t index, std::uint32_t exact_count) {
  return table == nullptr ? nullptr : &table->Add(Signed_index(index, exact_count));
}

/// "INDEX: NAME NAME ... NAME " with the names in the order of the nodes. Polls as a long stage
/// does. The names go into the table too, if there is one.
inline void Write_members(Text_writer& file, std::uint32_t index, std::uint32_t exact_count,
                          Node_span members, const Node_names& node_names, Names_by_index* table) {
  external_control::Check_inside_long_stage();
  Write_index(file, index, exact_count);
  file << ": ";
  Name_list* const names = Open_row(table, index, exact_count);
  for (const Node_index node : members) {
    file << node_names[node] << ' ';
    if (names != nullptr) names->push_back(node_names[node]);
  }
  file << '\n';
}

/// What a writer collects for the tables at its k, if there are tables: the entry of the k is
/// replaced when the file is complete.
template <typename Table>
class Entry_of_k {
 public:
  Entry_of_k(By_k<Table>* tables, std::uint32_t k) : tables_(tables), k_(k) {}

  /// What is collected; null if there are no tables.
  Table* Get() { return tables_ == nullptr ? nullptr : &entry_; }

  void Complete() {
    if (tables_ == nullptr) return;
    if constexpr (requires { entry_.Finish(); }) entry_.Finish();
    (*tables_)[k_] = std::move(entry_);
  }

 private:
  By_k<Table>* tables_;
  std::uint32_t k_;
  Table entry_;
};

}  // namespace gns
