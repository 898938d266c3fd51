// Whole results directories, told as archives: every one must load without a crash, and what is in
// the tables then must be there to be read.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>

#include "Archive.h"
#include "Table_words.h"
#include "engine/Load_coms.h"
#include "engine/Run_message.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace {

constexpr unsigned load_modes = 3;

template <typename Table>
void Look_at(std::ostream& out, const Table& table) {
  gns::Put(out, table);
}
template <typename Table>
void Look_at(std::ostream& out, const gns::By_k<Table>& tables) {
  for (const auto& [k, table] : tables) gns::Put(out, table);
}

std::string Usual_path(std::minstd_rand& random) {
  constexpr std::array dirs = {"", "k=3/", "k=4/", "k=04/", "k=1E1/", "k=2.0/", "k=/", "k=-1/"};
  constexpr std::array leads = {
      "", "", "", "directed_", "intensity_", "graph_of_", "graph_of_directed_"};
  constexpr std::array names = {"graph",
                                "cliques",
                                "communities",
                                "communities_links",
                                "k-cliques",
                                "communities_cliques",
                                "",
                                "size_distribution",
                                "size_distribution_exact",
                                "degree_distribution_appr",
                                "overlap_distribution_merged",
                                "membership_distribution"};
  const auto any_of = [&](const auto& texts) { return texts[random() % texts.size()]; };
  return std::string(any_of(dirs)) + any_of(leads) + any_of(names);
}

void Change_bytes(std::string& text) {
  const std::size_t size = text.size();
  constexpr std::size_t more = 16;
  text.resize(size + more);
  auto* const bytes = reinterpret_cast<std::uint8_t*>(text.data());
  text.resize(LLVMFuzzerMutate(bytes, size, text.size()));
}

/// Changes an archive in one place: mostly the contents of a file.
void Change(Archive& archive, std::minstd_rand& random) {
  if (archive.entries.empty()) archive.entries.push_back({'f', Usual_path(random), "1 2 3\n"});
  const auto entry =
      archive.entries.begin() + static_cast<std::ptrdiff_t>(random() % archive.entries.size());
  constexpr unsigned ways = 12;
  switch (random() % ways) {
    case 0:
      archive.mode = static_cast<char>(random() % load_modes);
      break;
    case 1:
      archive.entries.erase(entry);
      break;
    case 2:
      entry->path = Usual_path(random);
      break;
    case 3:
      Change_bytes(entry->path);
      break;
    case 4:
      entry->kind = "fdpl"[random() % 4];
      break;
    case 5:
      archive.entries.insert(entry, {entry->kind, Usual_path(random), entry->contents});
      break;
    default:
      Change_bytes(entry->contents);
  }
}

Archive Archive_at(const std::uint8_t* data, std::size_t size) {
  return Archive_of({reinterpret_cast<const char*>(data), size});
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  std::cout.rdbuf(nullptr);  // warnings
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned seed) {
  Archive archive = Archive_at(data, size);
  std::minstd_rand random(seed);
  Change(archive, random);
  const std::string bytes = Bytes_of(archive);
  std::copy_n(bytes.begin(), std::min(bytes.size(), max_size), data);
  return std::min(bytes.size(), max_size);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Stage stage;
  const Archive archive = Archive_at(data, size);
  stage.Set_up(archive);
  gns::Com_result_tables tables;
  std::string errors;
  const unsigned mode = static_cast<unsigned char>(archive.mode) % load_modes;
  const std::string message = gns::Load_coms(stage.Path(), mode, tables, errors);
  if (message != gns::run_finished && !message.starts_with("ERROR: ")) std::abort();
  std::ostringstream seen;
  std::apply([&](const auto&... table) { (Look_at(seen, table), ...); }, gns::All_tables(tables));
  return 0;
}
