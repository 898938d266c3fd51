#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The names of everything in a results directory; the one place that forms them.
///
/// OUT/input_params.txt, OUT/[directed_]graph, OUT/[directed_]cliques, and for each k OUT/k=K with
/// k-cliques, [FLAG_]communities, [FLAG_]communities_cliques, [FLAG_]communities_links,
/// graph_of_[FLAG_]communities and [FLAG_]<kind>_distribution[STAT_FLAG], where FLAG is "directed",
/// "intensity" or empty.
namespace gns::results_names {

std::string Params(const std::string& output_dir);
std::string Graph(const std::string& output_dir, bool directed);
std::string Cliques(const std::string& output_dir, const std::string& com_flag);
std::string Dir_of_k(const std::string& output_dir, std::uint32_t k);
/// The k that the name of a directory tells, if it is one of these.
std::optional<std::uint32_t> K_of_dir(std::string_view name);
std::string K_cliques(const std::string& dir_of_k);
/// A file of communities in the directory of a k; `base_name` without the flag.
std::string In_dir_of_k(const std::string& dir_of_k, const std::string& com_flag,
                        const std::string& base_name);
std::string Graph_of_communities(const std::string& dir_of_k, const std::string& com_flag);

/// `com_flag` as far as it marks graph and clique files, where "intensity" doesn't count.
std::string Clique_flag(const std::string& com_flag);
/// `flag` followed by `separator`, or nothing if it is empty.
std::string Lead(const std::string& flag, char separator);

}  // namespace gns::results_names
