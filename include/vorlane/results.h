#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vorlane/analysis.h"
#include "vorlane/network.h"
#include "vorlane/version.h"

namespace vorlane {

enum class Method { undirected, directed, intensity };

/// A community at a k.
struct Place {
  std::uint32_t k;
  std::size_t community;
  bool operator==(const Place&) const = default;
};

/// The communities at a k, as in a Level.
struct Communities {
  Rows members;
  std::size_t exact_count = 0;
};

/// All that was found in a network, whether it was found just now or stands in a directory. Never
/// changes, is cheap to copy and may be read from any thread.
class VORLANE_API Results {
 public:
  /// Opens a results directory, of the program or of a Results_writer. Each part is read when it is
  /// asked for. Throws an Error of kind `input` if it is no such directory, or if files are
  /// missing: its text names them all. What is damaged is told by the operation that reads it.
  static Results Open(const std::string& directory);

  [[nodiscard]] vorlane::Method Method() const;
  [[nodiscard]] const vorlane::Network& Network() const;
  /// False for the directory of a run that is going on, was stopped or failed: there may be levels
  /// that it hasn't come to.
  [[nodiscard]] bool Is_finished() const;
  /// The k of the levels, descending.
  [[nodiscard]] const std::vector<std::uint32_t>& Ks() const;

  /// Throws an Error of kind `input` as Open(); so do the others.
  [[nodiscard]] const vorlane::Cliques& Cliques() const;
  /// The level at k, one of Ks(); throws an Error of kind `parameters` for another k. With the
  /// links of the communities where they stand in a directory or were asked for.
  [[nodiscard]] const Level& At(std::uint32_t k) const;

  /// Parts of a level that can be had for less than all of it, and are not kept: its statistics,
  /// the number of nodes of each community, and what has these names in a Level.
  [[nodiscard]] Statistics Statistics_at(std::uint32_t k) const;
  [[nodiscard]] Array<std::uint32_t> Sizes_at(std::uint32_t k) const;
  [[nodiscard]] Communities Communities_at(std::uint32_t k) const;
  [[nodiscard]] Rows Cliques_at(std::uint32_t k) const;
  [[nodiscard]] Rows K_cliques_at(std::uint32_t k) const;
  [[nodiscard]] Array<Overlap> Overlaps_at(std::uint32_t k) const;
  /// The names of the nodes in a community; throws an Error of kind `parameters` if there is none
  /// of this number.
  [[nodiscard]] std::vector<std::string> Names_in(Place place) const;
  /// The communities that hold the node of this name, k descending; nothing if the network has no
  /// such node.
  [[nodiscard]] std::optional<std::vector<Place>> Places_of(std::string_view name) const;

  /// Writes what Find() has found, as a Results_writer does and with its errors; levels are found
  /// once more for it. Of a directory's results it throws an Error of kind `parameters`.
  void Write(const std::string& directory, const std::string& source,
             const Control& control = {}) const;

  struct Body;  ///< for the library itself
  explicit Results(std::shared_ptr<const Body> body);

 private:
  [[nodiscard]] const Body& Body_with(std::uint32_t k) const;

  std::shared_ptr<const Body> body_;
};

/// All at once: the cliques and all levels of a network, in memory. Throws as an Analysis.
VORLANE_API Results Find(const Network& network, const Options& options = {},
                         const Control& control = {});
/// The same without a search, from all cliques of the network that were found before; throws an
/// Error of kind `input` if they can't be such.
VORLANE_API Results Find(const Network& network, const Cliques& known, const Options& options = {},
                         const Control& control = {});
/// As the first one, written as it is found, as by a Results_writer.
VORLANE_API Results Find_and_write(const Network& network, const Options& options,
                                   const std::string& directory, const std::string& source,
                                   const Control& control = {});

/// Writes a results directory: the same files, byte by byte, as the program writes for the same
/// links and options. Needs levels with links (Options::links). Not for several threads.
///
/// The directory must be missing or empty, is made, and marked as unfinished until Finish(); one
/// that is never finished stays and tells so.
class VORLANE_API Results_writer {
 public:
  /// Writes the links. `source` stands in the first line of every file, as the place where they
  /// came from. Throws an Error of kind `output` if the directory can't be used, of kind
  /// `parameters` if a name of the network has a blank inside, which the files can't hold.
  Results_writer(const std::string& directory, const Network& network, const Options& options,
                 const std::string& source);
  ~Results_writer();
  Results_writer(Results_writer&&) noexcept;
  Results_writer& operator=(Results_writer&&) noexcept;

  void Write(const Cliques& cliques);
  void Write(const Level& level);
  /// Brings all to the disk and takes the mark away. Throws an Error of kind `output` that names
  /// every file that could not be written; then the mark stays.
  void Finish();

 private:
  struct Inside;
  std::unique_ptr<Inside> inside_;
};

}  // namespace vorlane
