#pragma once

#include <cmath>
#include <cstdint>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "bindings/c/vorlane_c.h"
#include "vorlane/vorlane.h"

/// What stands behind the opaque pointers; that of results is in Results_handle.h.

struct vorlane_control {
  vorlane::Control control;
};

struct vorlane_network {
  explicit vorlane_network(vorlane::Network of) : network(std::move(of)) {}

  const vorlane::Network network;
  mutable std::once_flag given_once;  ///< of what follows: the links as they were given
  mutable std::vector<std::uint32_t> given_from, given_to;
  mutable std::vector<double> given_weights;
};

namespace vorlane::c {

/// The control to work with: the caller's, or one that nobody else has.
inline Control Control_of(const vorlane_control* control) {
  return control ? control->control : Control();
}

inline std::optional<double> Given_number(double number) {
  return std::isnan(number) ? std::nullopt : std::optional(number);
}

inline vorlane_rows View_of(const Rows& rows) {
  return {rows.size(), rows.Starts().data(), rows.Values().data()};
}

/// The caller's rows, to be used while they last.
inline Rows Rows_of(const vorlane_rows& rows) {
  if (rows.size == 0) return {};
  return {{rows.starts, rows.size + 1}, {rows.values, rows.starts[rows.size]}, nullptr};
}

}  // namespace vorlane::c
