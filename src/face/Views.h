#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Row_array.h"
#include "vorlane/rows.h"

namespace vorlane::face {

/// The rows as others see them; `owner` keeps them alive.
template <typename Value>
Rows_of<Value> View_of(const gns::Row_array<Value>& rows, std::shared_ptr<const void> owner) {
  if (rows.empty()) return {};
  return {rows.Starts(), rows.Values(), std::move(owner)};
}
inline Rows View_of(const gns::Adjacency& rows, std::shared_ptr<const void> owner) {
  return {rows.Starts(), rows.Members(), std::move(owner)};
}
template <typename Value>
Array<Value> View_of(std::span<const Value> values, std::shared_ptr<const void> owner) {
  return {values, std::move(owner)};
}
template <typename Value>
Array<Value> View_of(const std::vector<Value>& values, std::shared_ptr<const void> owner) {
  return {values, std::move(owner)};
}

/// The values in the hands of the view.
template <typename Value>
Array<Value> Held(std::vector<Value> values) {
  const auto owner = std::make_shared<const std::vector<Value>>(std::move(values));
  return View_of(*owner, owner);
}
template <typename Value>
Rows_of<Value> Held(gns::Row_array<Value> rows) {
  const auto owner = std::make_shared<const gns::Row_array<Value>>(std::move(rows));
  return View_of(*owner, owner);
}

}  // namespace vorlane::face
