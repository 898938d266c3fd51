// Makes inputs to begin with: seeds EXAMPLES DOCUMENT OUT. Runs the engine on the example networks
// in all kinds of run and puts what it leaves into OUT/links, OUT/records and OUT/results, and some
// command lines into OUT/switches. The files that the document on inputs shows go to a folder for
// each format.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>

#include "Archive.h"
#include "vorlane_operations.h"

namespace {

namespace fs = std::filesystem;

std::string Contents_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const fs::path& directory, const std::string& name, const std::string& bytes) {
  fs::create_directories(directory);
  std::ofstream(directory / name, std::ios::binary) << bytes;
}

/// The reader of a result file, as the first bytes that the fuzzer of records takes.
std::string Head_of_record(const std::string& path) {
  constexpr std::pair<const char*, char> readers[] = {{"graph_of_", 1}, {"distribution", 2},
                                                      {"_links", 3},    {"communities_cliques", 6},
                                                      {"graph", 0},     {"", 4}};
  const auto* reader = std::begin(readers);
  while (path.find(reader->first) == std::string::npos) ++reader;
  return std::string(1, reader->second) + "\n:  ";
}

/// One archive for each k with its directory, and one without.
void Make_seeds(const fs::path& results, char mode, const fs::path& out) {
  const std::string name = results.filename().string();
  for (unsigned k = 0; k < 100; ++k) {
    const std::string dir_of_k = "k=" + std::to_string(k);
    if (k != 0 && !fs::exists(results / dir_of_k)) continue;
    Archive archive = {mode, {}};
    for (const fs::path& path : fs::recursive_directory_iterator(results)) {
      if (!fs::is_regular_file(path)) continue;
      if (path.parent_path() != results && path.parent_path().filename() != dir_of_k) continue;
      archive.entries.push_back({'f', fs::relative(path, results).string(), Contents_of(path)});
      Write(out / "records", name + dir_of_k + path.filename().string(),
            Head_of_record(path.filename().string()) + archive.entries.back().contents);
    }
    Write(out / "results", name + dir_of_k, Bytes_of(archive));
  }
}

/// Each file that the document shows, in all ways in which it can be read.
void Make_format_seeds(const fs::path& document, const fs::path& out) {
  std::ifstream lines(document);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("```")) continue;
    const std::string format = line.substr(3, line.find(' ') - 3);
    const std::string name = line.substr(line.find(' ') + 1);
    std::string contents;
    while (std::getline(lines, line) && line != "```") contents += line + "\n";
    for (char way = 0; way < 16; ++way)
      Write(out / format, name + std::to_string(way), way + contents);
  }
  for (char way = 0; way < 64; ++way)
    Write(out / "packed", std::to_string(way), way + std::string("Ada Bruno\nBruno Clara\n"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: " << argv[0] << " EXAMPLES DOCUMENT OUT\n";
    return 2;
  }
  const fs::path out = argv[3];
  Make_format_seeds(argv[2], out);
  Write(out / "switches", "plain",
        "-i\nlinks.txt\n-o\nout\n-w\n1\n-W\n2.5\n-d\n3\n-t\n0.1\n-k\n4\n");
  Write(out / "switches", "kinds", "-i\na\nb\n-I\n6\n-k\n4.5\n-D\n-U\n-h\n-w\n-1\n");
  const std::pair<char, gns::Run_parameters> kinds_of_run[] = {
      {0, {}},
      {0, {.use_lower_threshold = true, .lower_threshold = 4}},
      {0, {.use_time_limit = true, .time_limit = 1e-6}},
      {0, {.use_single_k = true, .single_k = 50}},
      {1, {.directed = true}},
      {2, {.use_intensity = true, .intensity_threshold = 6}}};
  for (const fs::path& links : fs::directory_iterator(argv[1])) {
    if (links.extension() != ".txt" || links.filename() == "CMakeLists.txt") continue;
    for (char reader = 0; reader < 8; ++reader)
      Write(out / "links", links.stem().string() + std::to_string(reader),
            reader + Contents_of(links));
    int kind = 0;
    for (auto [load_mode, parameters] : kinds_of_run) {
      const fs::path results = out / (links.stem().string() + std::to_string(kind++));
      parameters.input_file = links.string();
      parameters.output_dir = results.string();
      bool approximation_needed = false;
      gns::Run_summary summary;
      gns::Find_coms(parameters, approximation_needed, summary);
      Make_seeds(results, load_mode, out);
      fs::remove_all(results);
    }
  }
  return 0;
}
