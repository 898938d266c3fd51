#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vorlane/control.h"
#include "vorlane/error.h"
#include "vorlane/rows.h"
#include "vorlane/version.h"

namespace vorlane {

/// What links are taken, and how.
struct Link_options {
  bool directed = false;
  /// Links have weights; those of a link that comes again add up. Needed by the intensity method.
  /// Set by either threshold.
  bool weighted = false;
  std::optional<double> min_weight;  ///< a link at or below it is left out, each by itself
  std::optional<double> max_weight;  ///< a link at or above it is left out, each by itself
  /// Of files: "links", "csv", "tsv", "graphml", "pajek", "mtx" or "metis"; empty: by the
  /// ending.
  std::string format;
  /// Of csv and tsv: columns of the names and perhaps the weight, by name or number; empty: known
  /// ones.
  std::vector<std::string> columns;
  /// Of runs in parts, whose results files can't hold white space in names, nor a `#` in front of
  /// one: a character that takes its place, in UTF-8; empty: such a name is refused.
  std::string blanks;
};

/// Nodes and links between them. Never changes, is cheap to copy, and may be used by any number of
/// analyses in any threads at a time.
///
/// The nodes are those with links to others. They are numbered as the links meet them in the order
/// of their names, byte by byte, first name before second: the same links in any order are the same
/// network. It costs some 20 bytes a link, 28 if directed, 16 more with weights, and the names.
class VORLANE_API Network {
 public:
  class Builder;

  /// One without nodes.
  Network();

  /// From a text file with a link in each line: two names and, if wanted, a weight, with blanks
  /// between them; what follows, and lines that begin with '#', are skipped. Also from csv, tsv,
  /// GraphML, Pajek, MatrixMarket and METIS files, told by their endings, and from any of them
  /// packed by gzip or zstd; "-" is standard input. Throws an Error of kind `input` that tells the
  /// line and column of what can't be read.
  static Network Read(const std::string& path, const Link_options& options = {},
                      const Control& control = {});

  [[nodiscard]] Node size() const;
  [[nodiscard]] std::size_t Link_count() const;
  [[nodiscard]] const Link_options& How_taken() const;
  /// What in the file can't have been meant as it stands, with the line and the cure; a sentence
  /// each.
  [[nodiscard]] const std::vector<std::string>& Warnings() const;

  /// The name of a node, in UTF-8 if the input was; empty for 0 and beyond size(). Of a network
  /// from numbers without names, the number in decimals. Valid as long as a copy of the network.
  [[nodiscard]] std::string_view Name(Node node) const;
  /// The node of this name, if there is one. Logarithmic; the first call sorts.
  [[nodiscard]] std::optional<Node> Find(std::string_view name) const;
  /// Of a network from numbers: by node, the number that was given; size() + 1 places, the first of
  /// them 0. Empty for other networks.
  [[nodiscard]] Array<Node> Given_numbers() const;

  /// Row v: the second nodes of the links that begin at v, ascending; size() + 1 rows, the first of
  /// them empty. In an undirected network each link stands at its smaller node.
  [[nodiscard]] Rows Links() const;
  /// The weights of the links, in the order of Links().Values(); empty without weights.
  [[nodiscard]] Array<double> Weights() const;

  struct Body;  ///< for the library itself
  explicit Network(std::shared_ptr<const Body> body);
  [[nodiscard]] const std::shared_ptr<const Body>& Inside() const { return body_; }

 private:
  std::shared_ptr<const Body> body_;
};

/// Takes links in any order. A link of a node to itself is dropped. Not for several threads.
class VORLANE_API Network::Builder {
 public:
  /// For links between names.
  explicit Builder(const Link_options& options = {});
  /// For links between numbers from 1 to `count`.
  Builder(Node count, const Link_options& options);
  /// For links between numbers from 1 to names.size(), where i has the name `names[i - 1]`, of any
  /// bytes. Nodes of one name stay apart, but can't be written to a directory.
  Builder(std::span<const std::string_view> names, const Link_options& options);
  ~Builder();
  Builder(Builder&&) noexcept;
  Builder& operator=(Builder&&) noexcept;

  /// Adds a link between names, of any bytes. Throws an Error of kind `input` for a weight that is
  /// not a number, of kind `parameters` if this builder is for numbers or has no weights.
  void Add(std::string_view from, std::string_view to);
  void Add(std::string_view from, std::string_view to, double weight);

  /// Adds links between numbers, `from[i]` to `to[i]`; `weights` is as long, or empty if there are
  /// none. Throws an Error of kind `input` for a number that is 0 or above the count, for arrays of
  /// different lengths and for a weight that is not a number, with its place; then none of the
  /// links was added.
  void Add(std::span<const Node> from, std::span<const Node> to,
           std::span<const double> weights = {});

  /// The network of all links added. The builder is empty then.
  Network Build();

 private:
  struct Inside;
  std::unique_ptr<Inside> inside_;
};

}  // namespace vorlane
