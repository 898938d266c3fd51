#include "search/Whole_search.h"

#include <memory>

#include "control/Run_control.h"
#include "search/Queue_search.h"

namespace gns {

namespace {

/// Passes everything on, and tells the work that is done.
class Told_search : public Node_search {
 public:
  Told_search(Node_search& search, const Node_work& nodes) : search_(search), nodes_(nodes) {
    external_control::This_control().work_done.Begin(nodes.Of_range(0, nodes.Order().size()));
  }
  ~Told_search() override { external_control::This_control().work_done.Begin(0); }
  Told_search(const Told_search&) = delete;
  Told_search& operator=(const Told_search&) = delete;

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override {
    search_.Find(node, attempt, cliques);
  }
  void Finish(Node_index node) override {
    search_.Finish(node);
    external_control::This_control().work_done.Add(nodes_.Of(node));
  }

 private:
  Node_search& search_;
  const Node_work& nodes_;
};

}  // namespace

Left_map Search_all(const Search_maker& make, const Node_work& nodes, const Search_kind& kind,
                    const Time_limit* limit, Clique_vector& cliques,
                    Overlap_matrix& overlap_matrix) {
  overlap_matrix = Overlap_matrix(cliques);  // stays right as the cliques come, up to a stop
  if (limit == nullptr && external_control::This_control().workers > 1) {
    Search_on_workers(make, nodes, kind, cliques);
    return {};
  }
  const std::unique_ptr<Node_search> search = make();
  Told_search told(*search, nodes);
  return Spanned_by(Search_queue(told, nodes.Order(), kind, limit, cliques), nodes.Neighs());
}

}  // namespace gns
