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

template <typename Table>
void Look_at(std::ostream& out, const Table& table) {
  gns::Put(out, table);
}
template <typename Table>
void Look_at(std::ostream& out, const gns::By_k<Table>& tables) {
  for (const auto& [k, table] : tables) gns::Put(out, table);
}

/// Changes an archive in one place.
class Mutation {
 public:
  Mutation(Archive& archive, unsigned seed) : archive_(archive), random_(seed) {}

  void Apply() {
    if (archive_.entries.empty()) archive_.entries.push_back({'f', Usual_path(), "1 2 3\n"});
    constexpr std::size_t other_ways = 8;
    switch (Below(2 * other_ways)) {
      case 0:
        archive_.mode = static_cast<char>(Below(3));
        break;
      case 1:
        archive_.entries.erase(archive_.entries.begin() + Where());
        break;
      case 2:
        Any().path = Usual_path();
        break;
      case 3:
        Change_bytes(Any().path);
        break;
      case 4:
        Any().kind = "fdpl"[Below(4)];
        break;
      case 5:
        Any().contents = Any().contents;
        break;
      case 6:
        Double();
        break;
      case 7:
        Any().contents.resize(Below(Any().contents.size() + 1));
        break;
      default:
        Change_bytes(Any().contents);
    }
  }

 private:
  std::size_t Below(std::size_t end) { return random_() % end; }
  std::ptrdiff_t Where() { return static_cast<std::ptrdiff_t>(Below(archive_.entries.size())); }
  Archive::Entry& Any() { return archive_.entries[Below(archive_.entries.size())]; }

  std::string Usual_path() {
    constexpr std::array dirs = {"", "k=3/", "k=4/", "k=04/", "k=1E1/", "k=2.0/", "k=/", "k=-1/"};
    constexpr std::array leads = {"", "directed_", "intensity_"};
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
    return dirs[Below(dirs.size())] + (Below(8) == 0 ? "graph_of_" : std::string()) +
           leads[Below(leads.size())] + names[Below(names.size())];
  }

  void Double() {
    Archive::Entry copy = Any();
    copy.path = Usual_path();
    archive_.entries.insert(archive_.entries.begin() + Where(), copy);
  }

  static void Change_bytes(std::string& text) {
    const std::size_t size = text.size();
    constexpr std::size_t more = 16;
    text.resize(size + more);
    auto* const bytes = reinterpret_cast<std::uint8_t*>(text.data());
    text.resize(LLVMFuzzerMutate(bytes, size, text.size()));
  }

  Archive& archive_;
  std::minstd_rand random_;
};

std::size_t Put_into(std::uint8_t* data, std::size_t max_size, const Archive& archive) {
  const std::string bytes = Bytes_of(archive);
  const std::size_t size = std::min(bytes.size(), max_size);
  std::copy_n(bytes.begin(), size, data);
  return size;
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
  Mutation(archive, seed).Apply();
  return Put_into(data, max_size, archive);
}

/// The entries of both, in turn, as far as they come.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data, std::size_t size,
                                                 const std::uint8_t* other, std::size_t other_size,
                                                 std::uint8_t* out, std::size_t max_size,
                                                 unsigned seed) {
  std::minstd_rand random(seed);
  Archive mixed = Archive_at(data, size);
  for (const Archive::Entry& entry : Archive_at(other, other_size).entries)
    if (random() % 4 == 0)
      mixed.entries.insert(mixed.entries.begin() +
                               static_cast<std::ptrdiff_t>(random() % (mixed.entries.size() + 1)),
                           entry);
  return Put_into(out, max_size, mixed);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Stage stage;
  const Archive archive = Archive_at(data, size);
  stage.Set_up(archive);
  gns::Com_result_tables tables;
  std::string errors;
  const std::string message = gns::Load_coms(stage.Path(), archive.Load_mode(), tables, errors);
  stage.Clear();
  if (message != gns::run_finished && !message.starts_with("ERROR: ")) std::abort();
  std::ostringstream seen;
  std::apply([&](const auto&... table) { (Look_at(seen, table), ...); }, gns::All_tables(tables));
  return 0;
}
