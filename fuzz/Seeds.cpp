// Makes inputs to begin with: seeds EXAMPLES OUT. Runs the engine on the example networks in all
// kinds of run and puts what it leaves into OUT/links, OUT/records and OUT/results.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "Archive.h"
#include "vorlane.h"

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& directory, const std::string& name, const std::string& bytes) {
  fs::create_directories(directory);
  std::ofstream(directory / name, std::ios::binary) << bytes;
}

/// The reader of a result file, as the first bytes that the fuzzer of records takes.
std::string Head_of_record(const std::string& path) {
  const auto has = [&](const char* part) { return path.find(part) != std::string::npos; };
  char reader = 4;
  if (has("graph_of_"))
    reader = 1;
  else if (has("distribution"))
    reader = 2;
  else if (has("_links"))
    reader = 3;
  else if (has("communities_cliques"))
    reader = 6;
  else if (has("graph"))
    reader = 0;
  return std::string(1, reader) + "\n:  ";
}

struct Kind_of_run {
  std::string name;
  char load_mode;
  gns::Run_parameters parameters;
};

std::vector<Kind_of_run> Kinds_of_run() {
  gns::Run_parameters thresholds, directed, limited, intensity, single_k;
  thresholds.use_lower_threshold = true;
  thresholds.lower_threshold = 4;
  directed.directed = true;
  limited.use_time_limit = true;
  limited.time_limit = 1e-6;
  intensity.use_intensity = true;
  intensity.intensity_threshold = 6;
  single_k.use_single_k = true;
  single_k.single_k = 50;
  return {{"plain", 0, {}},        {"thresholds", 0, thresholds}, {"directed", 1, directed},
          {"limited", 0, limited}, {"intensity", 2, intensity},   {"single_k", 0, single_k}};
}

void Make_seeds(const fs::path& links, const Kind_of_run& kind, const fs::path& out) {
  const std::string name = links.stem().string() + "_" + kind.name;
  gns::Run_parameters parameters = kind.parameters;
  parameters.input_file = links.string();
  parameters.output_dir = (out / name).string();
  bool approximation_needed = false;
  gns::Run_summary summary;
  gns::Find_coms(parameters, approximation_needed, summary);
  std::vector<unsigned> sizes = {0};
  for (const auto& found : summary.extractions) sizes.push_back(found.k);
  for (const unsigned k : sizes) {
    const Archive archive = Archive_of_dir(parameters.output_dir, kind.load_mode, k);
    const std::string at_k = name + "_" + std::to_string(k);
    Write(out / "results", at_k, Bytes_of(archive));
    for (const Archive::Entry& entry : archive.entries)
      Write(out / "records", at_k + "_" + fs::path(entry.path).filename().string(),
            Head_of_record(entry.path) + entry.contents);
  }
  fs::remove_all(parameters.output_dir);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: " << argv[0] << " EXAMPLES OUT\n";
    return 2;
  }
  const fs::path out = argv[2];
  for (const auto& entry : fs::directory_iterator(argv[1])) {
    if (entry.path().extension() != ".txt") continue;
    if (entry.path().filename() == "CMakeLists.txt") continue;
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string text = {std::istreambuf_iterator<char>(file), {}};
    for (char reader = 0; reader < 8; ++reader)
      Write(out / "links", entry.path().stem().string() + std::to_string(reader), reader + text);
    for (const Kind_of_run& kind : Kinds_of_run()) Make_seeds(entry.path(), kind, out);
  }
  return 0;
}
