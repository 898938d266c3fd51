#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "results/Method.h"
#include "vorlane/results.h"

namespace vorlane {

struct Results::Body {
  Body() = default;
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  virtual ~Body() = default;

  [[nodiscard]] virtual const vorlane::Network& Network() const = 0;
  [[nodiscard]] virtual const vorlane::Cliques& Cliques() const = 0;
  /// These eight of one of the ks.
  [[nodiscard]] virtual const Level& At(std::uint32_t k) const = 0;
  [[nodiscard]] virtual vorlane::Statistics Statistics_at(std::uint32_t k) const = 0;
  [[nodiscard]] virtual Array<std::uint32_t> Sizes_at(std::uint32_t k) const = 0;
  [[nodiscard]] virtual Communities Communities_at(std::uint32_t k) const = 0;
  [[nodiscard]] virtual Rows Cliques_at(std::uint32_t k) const = 0;
  [[nodiscard]] virtual Rows K_cliques_at(std::uint32_t k) const = 0;
  [[nodiscard]] virtual Array<Overlap> Overlaps_at(std::uint32_t k) const = 0;
  /// Nothing if there is no such community.
  [[nodiscard]] virtual std::optional<std::vector<std::string>> Names_in(Place place) const = 0;
  [[nodiscard]] virtual std::optional<std::vector<Place>> Places_of(
      std::string_view name) const = 0;
  virtual void Write(const std::string& directory, const std::string& source,
                     const Control& control) const = 0;

  vorlane::Method method = Method::undirected;
  bool finished = true;
  std::vector<std::uint32_t> ks;  ///< descending
};

namespace face {

/// What stands in a directory.
Results Results_in(const std::string& directory);

inline gns::Method Method_of(Method method) {
  return gns::Method_of(method == Method::directed, method == Method::intensity);
}

inline Method Method_of(gns::Method method) {
  if (method == gns::Method::intensity) return Method::intensity;
  return method == gns::Method::directed ? Method::directed : Method::undirected;
}

inline Method Method_of(const Network& network, const Options& options) {
  if (options.intensity) return Method::intensity;
  return network.How_taken().directed ? Method::directed : Method::undirected;
}

}  // namespace face
}  // namespace vorlane
