#pragma once

#include <string>

#include "graph/records/Vtx.h"

namespace gns {

/// The record of a node of a directed graph: also tells where its links come from and go to.
///
/// Filled through `Add_oneigh` and `Add_ineigh`, `Neighs` is the union of `Oneighs` and `Ineighs`.
/// Operations that `Vtx` has and that aren't overridden here touch neither of the two.
class Vtxd : public Vtx {
 public:
  Vtxd() = default;
  explicit Vtxd(Node_index index);
  Vtxd(Node_index index, const Node_set& oneighs, const Node_set& ineighs);
  Vtxd(Node_index index, const Node_set& oneighs, const Node_set& ineighs, const std::string& name);
  Vtxd(const Vtxd& other);
  Vtxd(Vtxd&& other) noexcept = default;
  explicit Vtxd(const Vtx& other);
  ~Vtxd() override;

  void Remove_neigh(Node_index n) override;
  bool operator<(const Vtx& other) const override;
  Vtxd& operator=(const Vtx& other) override;
  /// Clears `Oneighs` and `Ineighs` and leaves the rest alone.
  void Set_defaults() override;
  /// Every link of the undirected record becomes one in both directions. Neighbours that this
  /// record had before stay in `Neighs`.
  void Copy(const Vtx& other) override;

  /// Nodes to which this node has a link.
  [[nodiscard]] virtual Node_set Oneighs() const;
  [[nodiscard]] virtual const Node_set& Oneighs_c() const;
  /// Nodes that have a link to this node.
  [[nodiscard]] virtual Node_set Ineighs() const;
  [[nodiscard]] virtual const Node_set& Ineighs_c() const;

  /// These two replace their own set, but only add to `Neighs`.
  virtual void Set_oneighs(const Node_set& oneighs);
  virtual void Set_ineighs(const Node_set& ineighs);

  /// Fail if the link is there already; a link in the other direction is no failure.
  virtual void Add_oneigh(Node_index n);
  virtual void Add_ineigh(Node_index n);

  /// Fail if there is no such link. `n` stays a neighbour through a link in the other direction.
  /// The sets of cliques aren't touched.
  virtual void Remove_oneigh(Node_index n);
  virtual void Remove_ineigh(Node_index n);

  virtual bool operator<(const Vtxd& other) const;
  virtual Vtxd& operator=(const Vtxd& other);
  virtual void Copy(const Vtxd& other);

 private:
  Node_set ineighs_;
  Node_set oneighs_;
};

}  // namespace gns
