#include <map>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands/Answers.h"
#include "foundation/text/Json_text.h"
#include "queries/Tree.h"
#include "vorlane/results.h"

namespace gns {

namespace {

using vorlane::queries::Tree_node;

/// The tree with what is shown of each community.
class Shown_tree {
 public:
  explicit Shown_tree(const vorlane::Results& results)
      : nodes_(vorlane::queries::Tree_of(results)), children_(nodes_.size()) {
    for (const std::uint32_t k : results.Ks()) sizes_[k] = results.Sizes_at(k);
    std::size_t level = 0;   // where the k at hand begins
    std::size_t before = 0;  // and the one in front of it
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      if (i > 0 && nodes_[i].place.k != nodes_[i - 1].place.k) before = std::exchange(level, i);
      if (nodes_[i].parent)
        children_[before + *nodes_[i].parent].push_back(i);
      else
        roots_.push_back(i);
    }
  }

  /// A line for each, indented by depth. Without recursion, since levels may be many.
  void Print(std::ostream& out) const {
    std::vector<std::pair<std::size_t, std::size_t>> to_show;  // node, depth
    const auto put_off = [&](const std::vector<std::size_t>& nodes, std::size_t depth) {
      const std::vector<std::size_t> last_first(nodes.rbegin(), nodes.rend());
      for (const std::size_t node : last_first) to_show.emplace_back(node, depth);
    };
    put_off(roots_, 0);
    while (!to_show.empty()) {
      const auto [node, depth] = to_show.back();
      to_show.pop_back();
      const auto& place = nodes_[node].place;
      out << std::string(2 * depth, ' ') << "k=" << place.k << " " << place.community << ": "
          << Size(node) << " nodes\n";
      put_off(children_[node], depth + 1);
    }
  }

  /// A flat list, parents first: each names its parent at the next lower k.
  [[nodiscard]] std::string In_json() const {
    Json_list list(Json_list::Kind::array);
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      const Tree_node& node = nodes_[i];
      list.Add(Json_list(Json_list::Kind::object)
                   .Add("k", std::to_string(node.place.k))
                   .Add("community", std::to_string(node.place.community))
                   .Add("nodes", std::to_string(Size(i)))
                   .Add("parent", node.parent ? std::to_string(*node.parent) : "null")
                   .Text());
    }
    return list.Text();
  }

 private:
  [[nodiscard]] std::uint32_t Size(std::size_t node) const {
    const auto& place = nodes_[node].place;
    return sizes_.at(place.k)[place.community];
  }

  std::vector<Tree_node> nodes_;
  std::vector<std::vector<std::size_t>> children_;
  std::vector<std::size_t> roots_;
  std::map<std::uint32_t, vorlane::Array<std::uint32_t>> sizes_;
};

}  // namespace

void Answer_tree(const Word_line& line, std::ostream& out) {
  const Shown_tree tree(vorlane::Results::Open(line.arguments.front()));
  if (line.Has("--json"))
    out << tree.In_json() << "\n";
  else
    tree.Print(out);
}

}  // namespace gns
