#pragma once

#include <cstdint>
#include <string>

namespace gns {

/// The kind of a run. A time limit and approximate cliques may come with the first two.
enum class Method : std::uint8_t { undirected, directed, intensity };

inline Method Method_of(bool directed, bool use_intensity) {
  if (use_intensity) return Method::intensity;
  return directed ? Method::directed : Method::undirected;
}

/// What marks its files and titles: "directed", "intensity" or nothing.
inline std::string Flag_of(Method method) {
  if (method == Method::undirected) return {};
  return method == Method::directed ? "directed" : "intensity";
}

}  // namespace gns
