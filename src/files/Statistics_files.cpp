#include "files/Statistics_files.h"

#include "files/Results_names.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Dir_prepare.h"

namespace gns {

namespace {

void Store(By_k<Distribution_table>* tables, std::uint32_t k, const Distribution& dist) {
  if (tables != nullptr) (*tables)[k] = dist;
}

}  // namespace

void Kiir_stats_VL_ret(const Distribution& membership_dist, const Distribution& size_dist,
                       const Distribution& overlap_dist, const Distribution& degree_dist,
                       const std::string& output_dir, std::uint32_t k, const std::string& com_flag,
                       const std::string& stat_flag, const std::string& run_header,
                       const Statistics_tables& tables) {
  Store(tables.membership, k, membership_dist);
  Store(tables.size, k, size_dist);
  Store(tables.overlap, k, overlap_dist);
  Store(tables.degree, k, degree_dist);

  const std::string dir_of_k = results_names::Dir_of_k(output_dir, k);
  Dir_prepare(dir_of_k, "keep");
  const std::string rest_of_title = stat_flag + results_names::Lead(com_flag, ' ') +
                                    " communities at k=" + std::to_string(k) + "\n#" + run_header;
  const auto write = [&](const std::string& kind, const Distribution& dist,
                         const std::string& title) {
    Kiir_VL_dist(results_names::In_dir_of_k(dir_of_k, com_flag, kind + "_distribution" + stat_flag),
                 dist, title + rest_of_title);
  };
  write("membership", membership_dist, "# The node membership distr. in the ");
  write("size", size_dist, "# The size distr. of the ");
  write("overlap", overlap_dist, "# The overlap size distr. of the ");
  write("degree", degree_dist, "# The com. degree distr. of the ");
}

void Kiir_VL_dist(const std::string& file_name, const Distribution& dist,
                  const std::string& title) {
  Text_writer file(file_name);
  file << title << '\n';
  for (const auto& [value, count] : dist) file << value << ' ' << count << '\n';
  file << '\n';
}

}  // namespace gns
