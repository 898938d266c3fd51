#include "bindings/java/native/Translation_steps.h"

#include <iostream>
#include <limits>

#include "control/Clique_find_ext_cont.h"

namespace gns {

void Report_translation(const std::string& text) {
  external_control::JAVA_CPP_TRANSLATE_STATE_REPORT = text;
}

void Print_line(const char* line) { std::cout << line << std::endl; }

std::uint32_t Last_k_of(const Com_result_tables& tables) {
  return tables.communities.empty() ? 0 : tables.communities.rbegin()->first;
}

std::set<std::uint32_t> Ks_of(const Com_result_tables& tables) {
  std::set<std::uint32_t> ks;
  const auto take = [&ks](const auto& by_k) {
    for (const auto& [k, table] : by_k) ks.insert(k);
  };
  take(tables.communities);
  take(tables.com_graphs);
  take(tables.size_dist_exact);
  take(tables.degree_dist_exact);
  take(tables.overlap_dist_exact);
  take(tables.membership_dist_exact);
  return ks;
}

void For_each_k(const std::set<std::uint32_t>& ks, std::uint32_t last,
                const std::function<void(std::uint32_t)>& use) {
  constexpr std::uint64_t first_k = 3;
  constexpr std::uint64_t long_gap = 1000;
  for (std::uint64_t k = first_k; k <= last;) {
    use(static_cast<std::uint32_t>(k));
    const auto found = ks.upper_bound(static_cast<std::uint32_t>(k));
    const std::uint64_t next =
        found != ks.end() ? *found : std::numeric_limits<std::uint64_t>::max();
    k = next - k > long_gap ? next : k + 1;
  }
}

}  // namespace gns
