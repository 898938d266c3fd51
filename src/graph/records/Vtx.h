#pragma once

#include <string>
#include <vector>

#include "graph/Node_set.h"

namespace gns {

/// The record of a node: its neighbours and the cliques found so far that hold it.
///
/// Every operation that is told to fail throws `Xerror_msg` and leaves the record unchanged.
class Vtx {
 public:
  Vtx() = default;
  explicit Vtx(Node_index index);
  Vtx(Node_index index, const Node_set& neighs);
  Vtx(Node_index index, const Node_set& neighs, const std::string& name);
  Vtx(const Vtx& other);
  Vtx(Vtx&& other) noexcept = default;
  virtual ~Vtx();

  [[nodiscard]] virtual Node_index Index() const;
  [[nodiscard]] virtual Node_set Neighs() const;
  [[nodiscard]] virtual const Node_set& Neighs_c() const;
  /// One set per recorded clique that holds this node, in the order of recording: the other
  /// members of that clique. Sets are never removed, even when emptied.
  [[nodiscard]] virtual std::vector<Node_set> Inc_neighs() const;
  [[nodiscard]] virtual std::vector<Node_set> Inc_neighs_c() const;
  /// The decimal text of the index, unless another was given.
  [[nodiscard]] virtual std::string Name() const;

  virtual void Set_index(const Node_index& index);
  virtual void Set_neighs(const Node_set& neighs);
  virtual void Set_inc_neighs(const std::vector<Node_set>& inc_neighs);
  virtual void Set_name(const std::string& name);

  /// Fails if `n` is a neighbour already.
  virtual void Add_neigh(Node_index n);
  /// Adds `n` to set number `vec_ind`, a new one if that is the number of sets. Fails if it is
  /// greater, or if `n` is no neighbour.
  virtual void Add_inc_neigh(unsigned vec_ind, Node_index n);
  /// Removes `n` from the neighbours and from every set. Fails if it is no neighbour.
  virtual void Remove_neigh(Node_index n);
  /// Removes `n` from set number `vec_ind`. Fails if there is no such set or no such member.
  virtual void Remove_inc_neigh(unsigned vec_ind, Node_index n);

  /// Records are ordered by index.
  virtual bool operator<(const Vtx& other) const;
  virtual Vtx& operator=(const Vtx& other);
  virtual void Set_defaults();
  virtual void Copy(const Vtx& other);

 protected:
  /// Takes `n` out of the neighbours and of every set, where it stands.
  void Erase_neigh(Node_index n);

  Node_index index_ = 0;
  Node_set neighs_;
  std::vector<Node_set> inc_neighs_;
  std::string name_ = "0";
};

}  // namespace gns
