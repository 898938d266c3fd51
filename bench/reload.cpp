// Times the writing of a results directory and its reload: reload LINKS DIRECTORY.
//
// A child process finds the communities at every k in memory, and times the writers alone; then the
// directory is read back. Prints one line: seconds of writing, seconds of reading, MB of the
// directory's tables in memory, MB of peak memory while reading.
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <iostream>

#include "vorlane_operations.h"

namespace {

/// Adds up the time that calls take.
class Stopwatch {
 public:
  template <typename Call>
  void Time(Call call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    seconds_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }
  [[nodiscard]] double Seconds() const { return seconds_; }

 private:
  double seconds_ = 0.0;
};

double Write_results(const std::string& links_file, const std::string& out) {
  const std::string header = " of a benchmark\n";
  gns::Link_map links;
  gns::Index_links index_links;
  gns::Node_names names;
  gns::Vertex_map vertices;
  gns::Clique_vector cliques;
  gns::Overlap_matrix matrix;
  gns::Read_unw_links(links_file, links);
  Stopwatch watch;
  watch.Time([&] {
    gns::Kiir_params(out, header);
    gns::Kiir_graph(links, out, false, header, false);
  });
  gns::Convert_s_links(index_links, names, links, false);
  gns::Vtx_map_from_link_map(vertices, index_links);
  gns::Clique_find_ec(cliques, matrix, vertices);
  const auto count = static_cast<std::uint32_t>(cliques.size());
  watch.Time([&] { gns::Kiir_cliques_VL(out, cliques, names, count, "", header); });

  gns::Percolation percolation(cliques, count, false);
  for (std::uint32_t k = gns::Max_clique_size_in_cl_vec(cliques); k >= 3; --k) {
    const gns::Communities found = *percolation.At(k);
    gns::Com_graph graph;
    gns::Distribution size, degree, overlap, membership;
    gns::Prepare_community_graph(graph, found.coms);
    gns::Community_statistics(size, degree, overlap, membership, found.coms, graph,
                              vertices.size());
    watch.Time([&] {
      const std::uint32_t exact = found.exact_com_count;
      gns::Kiir_coms_VL(found.coms, out, k, names, exact, "", header);
      gns::Kiir_coms_cliques_VL(found.com_cliques, out, k, exact, count, "", header);
      gns::Kiir_com_links_VL(found.com_links, out, k, names, exact, "", header, index_links);
      gns::Kiir_com_graph_VL(graph, exact, out, k, "", header);
      gns::Kiir_stats_VL(membership, size, overlap, degree, out, k, "", "", header);
    });
  }
  return watch.Seconds();
}

/// The result of a call that a child process makes.
template <typename Call>
double In_child(Call call) {
  int ends[2];
  if (pipe(ends) != 0) throw gns::Xerror_msg("no pipe");
  double result = 0.0;
  if (fork() == 0) {
    result = call();
    _exit(write(ends[1], &result, sizeof result) == sizeof result ? 0 : 1);
  }
  close(ends[1]);
  const bool good = read(ends[0], &result, sizeof result) == sizeof result;
  close(ends[0]);
  wait(nullptr);
  if (!good) throw gns::Xerror_msg("the results could not be written");
  return result;
}

double Allocated_megabytes() {
  const auto use = mallinfo2();
  return static_cast<double>(use.uordblks + use.hblkhd) / 1e6;
}

double Peak_megabytes() {
  rusage use = {};
  getrusage(RUSAGE_SELF, &use);
  return static_cast<double>(use.ru_maxrss) * 1024 / 1e6;
}

void Measure(const std::string& links_file, const std::string& out) {
  const double writing = In_child([&] { return Write_results(links_file, out); });
  const double before = Allocated_megabytes();
  gns::Com_result_tables tables;
  std::string errors;
  Stopwatch reading;
  reading.Time([&] { gns::Load_coms(out, 0, tables, errors); });
  if (!errors.empty()) throw gns::Xerror_msg(errors);
  std::cout << writing << ' ' << reading.Seconds() << ' ' << Allocated_megabytes() - before << ' '
            << Peak_megabytes() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: " << argv[0] << " LINKS DIRECTORY\n";
    return 2;
  }
  try {
    Measure(argv[1], argv[2]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
