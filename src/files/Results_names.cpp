#include "files/Results_names.h"

#include "foundation/text/My_convert_from_string.h"

namespace gns::results_names {

std::string Lead(const std::string& flag, char separator) {
  return flag.empty() ? std::string() : flag + separator;
}

std::string Clique_flag(const std::string& com_flag) {
  return com_flag == "intensity" ? std::string() : com_flag;
}

std::string Params(const std::string& output_dir) { return output_dir + "/input_params.txt"; }

std::string Graph(const std::string& output_dir, bool directed) {
  return output_dir + "/" + Lead(directed ? "directed" : "", '_') + "graph";
}

std::string Cliques(const std::string& output_dir, const std::string& com_flag) {
  return output_dir + "/" + Lead(Clique_flag(com_flag), '_') + "cliques";
}

std::string Dir_of_k(const std::string& output_dir, std::uint32_t k) {
  return output_dir + "/k=" + std::to_string(k);
}

std::optional<std::uint32_t> K_of_dir(std::string_view name) {
  constexpr std::string_view start = "k=";
  if (name.size() <= start.size() || !name.starts_with(start)) return std::nullopt;
  std::uint32_t k = 0;
  bool suspicious = false;
  if (!Convert_from_string(name.substr(start.size()), k, suspicious) || suspicious)
    return std::nullopt;
  return k;
}

std::string K_cliques(const std::string& dir_of_k) { return dir_of_k + "/k-cliques"; }

std::string In_dir_of_k(const std::string& dir_of_k, const std::string& com_flag,
                        const std::string& base_name) {
  return dir_of_k + "/" + Lead(com_flag, '_') + base_name;
}

std::string Graph_of_communities(const std::string& dir_of_k, const std::string& com_flag) {
  return dir_of_k + "/graph_of_" + Lead(com_flag, '_') + "communities";
}

}  // namespace gns::results_names
