#include "graph/records/Vtxd.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "foundation/Errors.h"

namespace gns {

namespace {

void Add_all(Node_set& to, const Node_set& from) {
  std::vector<Node_index> members;
  members.reserve(to.size() + from.size());
  std::ranges::set_union(to, from, std::back_inserter(members));
  to = Node_set::From_sorted(members);
}

}  // namespace

Vtxd::Vtxd(Node_index index) : Vtx(index) {}

Vtxd::Vtxd(Node_index index, const Node_set& oneighs, const Node_set& ineighs) : Vtx(index) {
  Vtxd::Set_oneighs(oneighs);
  Vtxd::Set_ineighs(ineighs);
}

Vtxd::Vtxd(Node_index index, const Node_set& oneighs, const Node_set& ineighs,
           const std::string& name)
    : Vtxd(index, oneighs, ineighs) {
  name_ = name;
}

// NOLINTNEXTLINE(bugprone-copy-constructor-init,readability-redundant-member-init): Copy does it
Vtxd::Vtxd(const Vtxd& other) : Vtx() { Vtxd::Copy(other); }

Vtxd::Vtxd(const Vtx& other) { Vtxd::Copy(other); }

Vtxd::~Vtxd() = default;

void Vtxd::Remove_neigh(Node_index n) {
  if (!neighs_.contains(n)) {
    throw Xerror_msg("ERROR: Vtxd::Remove_neigh() : attempt to remove a non-existing neigh.");
  }
  ineighs_.erase(n);
  oneighs_.erase(n);
  Erase_neigh(n);
}

bool Vtxd::operator<(const Vtx& other) const { return Index() < other.Index(); }

Vtxd& Vtxd::operator=(const Vtx& other) {
  if (this != &other) Copy(other);
  return *this;
}

void Vtxd::Set_defaults() {
  ineighs_.clear();
  oneighs_.clear();
}

void Vtxd::Copy(const Vtx& other) {
  Set_defaults();
  Set_index(other.Index());
  Set_oneighs(other.Neighs_c());
  Set_ineighs(other.Neighs_c());
  Set_inc_neighs(other.Inc_neighs_c());
  Set_name(other.Name());
}

Node_set Vtxd::Oneighs() const { return oneighs_; }
const Node_set& Vtxd::Oneighs_c() const { return oneighs_; }
Node_set Vtxd::Ineighs() const { return ineighs_; }
const Node_set& Vtxd::Ineighs_c() const { return ineighs_; }

void Vtxd::Set_oneighs(const Node_set& oneighs) {
  oneighs_ = oneighs;
  Add_all(neighs_, oneighs_);
}

void Vtxd::Set_ineighs(const Node_set& ineighs) {
  ineighs_ = ineighs;
  Add_all(neighs_, ineighs_);
}

void Vtxd::Add_oneigh(Node_index n) {
  if (!oneighs_.insert(n)) {
    throw Xerror_msg("ERROR: Vtxd::Add_oneigh() : attempt to add already exisiting neigh. ");
  }
  neighs_.insert(n);
}

void Vtxd::Add_ineigh(Node_index n) {
  if (!ineighs_.insert(n)) {
    throw Xerror_msg("ERROR: Vtxd::Add_ineigh() : attempt to add already exisiting neigh. ");
  }
  neighs_.insert(n);
}

void Vtxd::Remove_oneigh(Node_index n) {
  if (!oneighs_.erase(n)) {
    throw Xerror_msg("ERROR: Vtxd::Remove_oneigh() : attempt to remove a non-existing oneigh.");
  }
  if (!ineighs_.contains(n)) neighs_.erase(n);
}

void Vtxd::Remove_ineigh(Node_index n) {
  if (!ineighs_.erase(n)) {
    throw Xerror_msg("ERROR: Vtxd::Remove_ineigh() : attempt to remove a non-existing ineigh.");
  }
  if (!oneighs_.contains(n)) neighs_.erase(n);
}

bool Vtxd::operator<(const Vtxd& other) const { return Index() < other.Index(); }

Vtxd& Vtxd::operator=(const Vtxd& other) {
  if (this != &other) Copy(other);
  return *this;
}

void Vtxd::Copy(const Vtxd& other) {
  Set_defaults();
  Set_index(other.Index());
  Vtx::Set_neighs(other.Neighs_c());
  Set_oneighs(other.Oneighs_c());
  Set_ineighs(other.Ineighs_c());
  Vtx::Set_inc_neighs(other.Inc_neighs_c());
  Set_name(other.Name());
}

}  // namespace gns
