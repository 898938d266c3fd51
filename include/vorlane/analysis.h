#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include "vorlane/control.h"
#include "vorlane/error.h"
#include "vorlane/network.h"
#include "vorlane/rows.h"
#include "vorlane/version.h"

namespace vorlane {

/// What is asked of an analysis.
struct Options {
  /// The intensity method (I. Farkas, D. Ábel, G. Palla, T. Vicsek, New Journal of Physics 9,
  /// 2007): only k-cliques whose link weights have a geometric mean above this number count. Needs
  /// an undirected network with weights. Its cost grows with the number of k-cliques, which is huge
  /// for middle k in large cliques.
  std::optional<double> intensity;
  /// Seconds of processor time that the search may spend on a node. What it leaves is covered by
  /// approximate cliques. Not with `intensity`. Repeated runs may differ.
  std::optional<double> time_limit;
  /// One k only, 3 or more. In an undirected network, without time limit and `intensity`, cliques
  /// of fewer nodes are then not even looked for.
  std::optional<std::uint32_t> k;
  /// Levels come with the links of their communities.
  bool links = false;
  /// Cores to work with; 0: those at hand, as the machine, the job of a scheduler or the control
  /// group says. The results don't depend on it. Each core more takes about 12 bytes for each node
  /// of each clique; fewer work where a limit (RLIMIT_DATA) leaves too little for that.
  unsigned workers = 1;
};

/// All maximal cliques of 3 nodes or more, or of those that are looked for (Options::k).
struct Cliques {
  Rows members;                 ///< by clique: its nodes, ascending
  std::size_t exact_count = 0;  ///< those behind are approximate: perhaps not maximal
};

/// Value -> how often it occurs.
using Distribution = std::map<std::uint32_t, std::uint32_t>;

/// The four distributions of a set of communities.
struct Distributions {
  Distribution membership;  ///< communities of a node -> nodes; 0 is always there
  Distribution size;        ///< nodes of a community -> communities
  Distribution overlap;     ///< nodes that two communities share -> pairs of communities
  Distribution degree;      ///< communities that one overlaps with -> communities
};

struct Statistics {
  Distributions all;
  /// Where some communities are approximate: of the exact ones and of these by themselves.
  std::optional<Distributions> exact;
  std::optional<Distributions> approximate;
};

/// What there is at one k. Communities are numbered from 0 in all its parts.
struct Level {
  std::uint32_t k = 0;
  Rows members;                 ///< by community: its nodes, ascending
  std::size_t exact_count = 0;  ///< communities behind hold an approximate clique
  Rows cliques;                 ///< by community: its cliques; no rows with the intensity method
  Rows k_cliques;               ///< with the intensity method: by k-clique, its k nodes
  Rows_of<Node_pair> links;     ///< by community, smaller node first; no rows unless asked for
  Array<Overlap> overlaps;      ///< ascending by first, then second
  Statistics statistics;
};

/// Finds the k-clique communities of a network by clique percolation (G. Palla, I. Derényi,
/// I. Farkas, T. Vicsek, Nature 435, 2005): cliques that share k - 1 nodes or more are adjacent,
/// and a community is a connected group of cliques of k nodes or more. A node may be in several.
///
/// The cliques are enumerated in degree order on rows of bits (D. Eppstein, M. Löffler, D. Strash,
/// ISAAC 2010); worst case 3^(d/3) for a node with d later neighbours, seconds on networks of
/// millions of links. Results are exact and the same on every machine, unless a time limit cuts in.
/// Memory is about 20 to 40 bytes for each node of each clique; networks with dense cores (votes,
/// proteins, friends) have millions of cliques, those of co-authors few.
///
/// Does its work in the thread that calls, and by Options::workers in others, which end with the
/// call. Not for several threads at a time, but any number of analyses may go on in as many
/// threads, of one network too. One that has thrown is over.
class VORLANE_API Analysis {
 public:
  /// Throws an Error of kind `parameters` if the options don't go together or with the network.
  explicit Analysis(Network network, const Options& options = {}, Control control = {});
  ~Analysis();
  Analysis(Analysis&&) noexcept;
  Analysis& operator=(Analysis&&) noexcept;

  /// The cliques; the first call searches.
  const Cliques& Find_cliques();
  /// The next level: k goes down from the size of the largest clique to 3, or is the one that was
  /// asked for. Nothing behind the last. What it holds outlives the analysis. With several workers,
  /// a call finds as many levels as there are of these, and keeps those that come next.
  std::optional<Level> Next();

  struct Inside;  ///< for the library itself

 private:
  std::unique_ptr<Inside> inside_;
};

}  // namespace vorlane
