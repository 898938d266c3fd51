#include "graph/records/Vtx.h"

#include "foundation/Errors.h"
#include "foundation/text/My_int2string.h"

namespace gns {

Vtx::Vtx(Node_index index) : index_(index), name_(int2string(index)) {}

Vtx::Vtx(Node_index index, const Node_set& neighs) : Vtx(index) { neighs_ = neighs; }

Vtx::Vtx(Node_index index, const Node_set& neighs, const std::string& name)
    : index_(index), neighs_(neighs), name_(name) {}

Vtx::Vtx(const Vtx& other) { Vtx::Copy(other); }

Vtx::~Vtx() = default;

Node_index Vtx::Index() const { return index_; }
Node_set Vtx::Neighs() const { return neighs_; }
const Node_set& Vtx::Neighs_c() const { return neighs_; }
std::vector<Node_set> Vtx::Inc_neighs() const { return inc_neighs_; }
std::vector<Node_set> Vtx::Inc_neighs_c() const { return inc_neighs_; }
std::string Vtx::Name() const { return name_; }

void Vtx::Set_index(const Node_index& index) { index_ = index; }
void Vtx::Set_neighs(const Node_set& neighs) { neighs_ = neighs; }
void Vtx::Set_inc_neighs(const std::vector<Node_set>& inc_neighs) { inc_neighs_ = inc_neighs; }
void Vtx::Set_name(const std::string& name) { name_ = name; }

void Vtx::Add_neigh(Node_index n) {
  if (!neighs_.insert(n)) {
    throw Xerror_msg("ERROR: Vtx::Add_neigh() : attempt to add already exisiting neigh. ");
  }
}

void Vtx::Add_inc_neigh(unsigned vec_ind, Node_index n) {
  if (vec_ind > inc_neighs_.size()) {
    throw Xerror_msg("ERROR: Vtx::Add_inc_neigh() : vec_ind too large");
  }
  if (!neighs_.contains(n)) {
    throw Xerror_msg("ERROR: Vtx::Add_inc_neigh() : new ind. neigh. is not a neigh.");
  }
  if (vec_ind == inc_neighs_.size()) inc_neighs_.emplace_back();
  inc_neighs_[vec_ind].insert(n);
}

void Vtx::Remove_neigh(Node_index n) {
  if (!neighs_.contains(n)) {
    throw Xerror_msg("ERROR: Vtx::Remove_neigh() : attempt to remove a non-existing neigh.");
  }
  Erase_neigh(n);
}

void Vtx::Remove_inc_neigh(unsigned vec_ind, Node_index n) {
  if (vec_ind >= inc_neighs_.size()) {
    throw Xerror_msg("ERROR: Vtx::Remove_inc_neigh() : vec_ind too large");
  }
  if (!inc_neighs_[vec_ind].erase(n)) {
    throw Xerror_msg(
        "ERROR: Vtx::Remove_inc_neigh() : attempt to remove a non-existing inc. neigh.");
  }
}

bool Vtx::operator<(const Vtx& other) const { return Index() < other.Index(); }

Vtx& Vtx::operator=(const Vtx& other) {
  if (this != &other) Copy(other);
  return *this;
}

void Vtx::Set_defaults() {
  index_ = 0;
  neighs_.clear();
  inc_neighs_.clear();
  name_ = int2string(index_);
}

void Vtx::Copy(const Vtx& other) {
  Set_defaults();
  Set_index(other.Index());
  Set_neighs(other.Neighs_c());
  Set_inc_neighs(other.Inc_neighs_c());
  Set_name(other.Name());
}

void Vtx::Erase_neigh(Node_index n) {
  neighs_.erase(n);
  for (Node_set& clique : inc_neighs_) clique.erase(n);
}

}  // namespace gns
