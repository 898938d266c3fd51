#include "files/Statistics_files.h"

#include "files/Results_names.h"
#include "files/Results_writer.h"
#include "foundation/io/Text_writer.h"

namespace gns {

namespace {

void Store(By_k<Distribution_table>* tables, std::uint32_t k, const Distribution& distribution) {
  if (tables != nullptr) (*tables)[k] = distribution;
}

}  // namespace

void Level_writer::Write_statistics(const Level_statistics& statistics) const {
  const Table_pointers& t = results_.Tables();
  const Statistics_tables exact = {t.membership_dist_exact, t.size_dist_exact, t.overlap_dist_exact,
                                   t.degree_dist_exact};
  if (!statistics.exact) {
    Write_distributions(statistics.all, "", exact);
    return;
  }
  Write_distributions(
      statistics.all, "_merged",
      {t.membership_dist_merged, t.size_dist_merged, t.overlap_dist_merged, t.degree_dist_merged});
  Write_distributions(*statistics.exact, "_exact", exact);
  Write_distributions(
      *statistics.approximate, "_appr",
      {t.membership_dist_appr, t.size_dist_appr, t.overlap_dist_appr, t.degree_dist_appr});
}

void Level_writer::Write_distributions(const Distributions& distributions,
                                       const std::string& stat_flag,
                                       const Statistics_tables& tables) const {
  const auto& [membership, size, overlap, degree] = distributions;
  Store(tables.membership, k_, membership);
  Store(tables.size, k_, size);
  Store(tables.overlap, k_, overlap);
  Store(tables.degree, k_, degree);

  const Results_place& place = results_.Place();
  const std::string rest_of_title = stat_flag + results_names::Lead(place.flag, ' ') +
                                    " communities at k=" + std::to_string(k_) + "\n#" +
                                    place.header;
  const auto write = [&](const std::string& kind, const Distribution& dist,
                         const std::string& title) {
    Kiir_VL_dist(Path(kind + "_distribution" + stat_flag), dist, title + rest_of_title);
  };
  write("membership", membership, "# The node membership distr. in the ");
  write("size", size, "# The size distr. of the ");
  write("overlap", overlap, "# The overlap size distr. of the ");
  write("degree", degree, "# The com. degree distr. of the ");
}

void Kiir_stats_VL_ret(const Distribution& membership_dist, const Distribution& size_dist,
                       const Distribution& overlap_dist, const Distribution& degree_dist,
                       const std::string& output_dir, std::uint32_t k, const std::string& com_flag,
                       const std::string& stat_flag, const std::string& run_header,
                       const Statistics_tables& tables) {
  const Results_writer results({output_dir, com_flag, run_header});
  Level_writer(results, k)
      .Write_distributions({membership_dist, size_dist, overlap_dist, degree_dist}, stat_flag,
                           tables);
}

void Kiir_VL_dist(const std::string& file_name, const Distribution& dist,
                  const std::string& title) {
  Text_writer file(file_name);
  file << title << '\n';
  for (const auto& [value, count] : dist) file << value << ' ' << count << '\n';
  file << '\n';
}

}  // namespace gns
