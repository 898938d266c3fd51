#include <deque>

#include "control/Run_control.h"
#include "files/Results_writer.h"
#include "parts/Clique_part.h"
#include "parts/Missing_parts.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"
#include "parts/Plan_texts.h"

namespace gns::parts {

namespace {

/// The cliques of all parts, each looked at as a whole.
class Searched_parts {
 public:
  explicit Searched_parts(const Open_plan& plan) {
    Missing_parts missing(plan.Folder());
    for (std::uint64_t part = 1; part <= plan.Plan().Parts(); ++part)
      missing.Try(Step::search, part, [&] {
        parts_.emplace_back(plan, part);
        cliques_.push_back(&parts_.back().Cliques());
      });
    missing.Refuse();
  }

  [[nodiscard]] const std::vector<const Clique_vector*>& Cliques() const { return cliques_; }

 private:
  std::deque<Open_clique_part> parts_;
  std::vector<const Clique_vector*> cliques_;
};

std::vector<Results_file> Write_results(const Open_plan& plan, const Clique_vector& cliques) {
  external_control::Report_state("___________________________\n Writing cliques to disk...\n");
  Results_aside aside(plan.Output_dir());
  Results_writer(plan.Place_in(aside.Directory()))
      .Write_cliques(cliques, static_cast<std::uint32_t>(cliques.size()),
                     plan.Graph().Graph().names);
  return aside.Put_in_place();
}

void Write_cliques(const Open_plan& plan) {
  const Searched_parts parts(plan);
  File_aside file(plan.Folder().Cliques());
  Write_all_cliques([&](auto bytes) { file.Write(bytes); }, plan.Graph(), parts.Cliques());
  file.Finish();
}

/// Parts that no level is left for are done with at once: nobody has to be sent for that.
void Mark_parts_without_levels(const Open_plan& plan, const std::vector<Level_group>& groups) {
  for (std::uint64_t part = 1; part <= groups.size(); ++part) {
    if (!groups[part - 1].Is_empty()) continue;
    File_aside mark(plan.Folder().Done(Step::levels, part));
    Write_done_mark(mark, plan.Key(Step::levels, part), {});
  }
}

}  // namespace

std::uint64_t Gather(const std::string& work) {
  const Open_plan plan(work);
  try {
    return Open_cliques(plan).All().cliques.size();
  } catch (const Xbad_part&) {
    plan.Refuse_finished();  // they are not gathered yet, or were damaged
  }
  Delete_left_aside(plan.Folder().Path());
  File_aside mark(plan.Folder().Done(Step::gather));
  Write_cliques(plan);
  const Part_label label = plan.Folder().Label(plan.Folder().Cliques(), Step::gather);
  const Mapped_file file = Mapped_part(label);
  const All_cliques all = All_cliques_of(file.Bytes(), plan.Graph(), label, Part_check::ends);
  Write_text_aside(plan.Folder().Levels(), Levels_text(plan.Graph(), all));
  Mark_parts_without_levels(plan, all.groups);
  Write_done_mark(mark, plan.Key(Step::gather), {Write_results(plan, all.cliques), {}});
  return all.cliques.size();
}

}  // namespace gns::parts
