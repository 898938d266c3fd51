#include "parts/Open_plan.h"

#include <algorithm>
#include <utility>

#include "files/Unfinished_mark.h"
#include "foundation/Errors.h"
#include "parts/Plan_texts.h"
#include "results/Method.h"

namespace gns::parts {

Open_plan::Open_plan(const std::string& work, Part_check check, std::string elsewhere)
    : folder_(work),
      elsewhere_(std::move(elsewhere)),
      file_(Mapped_part(folder_.Label(folder_.Graph(), Step::plan))),
      graph_(file_.Bytes(), folder_.Label(folder_.Graph(), Step::plan), check) {
  Refuse_changed(folder_.Label(folder_.Plan(), Step::plan), Plan_text(graph_));
  Refuse_changed(folder_.Label(folder_.Run(), Step::plan), Run_text(graph_));
  Refuse_undone(Step::plan);
}

Results_place Open_plan::Place_in(const std::string& directory) const {
  const Run_parameters& p = Plan().parameters;
  return {directory, Flag_of(Method_of(p.directed, p.use_intensity)), Plan().header};
}

void Open_plan::Refuse_no_part(std::uint64_t part) const {
  if (part == 0 || part > Plan().Parts())
    throw Xerror_msg("ERROR: there is no part " + std::to_string(part) + ": the plan in '" +
                     folder_.Path() + "' has parts 1 to " + std::to_string(Plan().Parts()) + ".\n");
}

void Open_plan::Refuse_undone(Step step) const {
  if (elsewhere_.empty()) Read_done_mark(folder_, Key(step), Output_dir());
}

void Open_plan::Refuse_finished() const {
  if (elsewhere_.empty() && !Is_marked_unfinished(Output_dir()))
    throw Xerror_msg("ERROR: the results in '" + Output_dir() +
                     "' are finished, or another run's: no part of '" + folder_.Path() +
                     "' goes there any more.\n");
}

Open_clique_part::Open_clique_part(const Open_plan& plan, std::uint64_t part, Part_check check)
    : file_(Mapped_part(plan.Clique_label(part))),
      cliques_(Cliques_of_part(file_.Bytes(),
                               {Part_kind::cliques, plan.Graph().Fingerprint(), part},
                               plan.Clique_label(part), check)) {}

Open_cliques::Open_cliques(const Open_plan& plan, Part_check check)
    : file_(Mapped_part(plan.Folder().Label(plan.Folder().Cliques(), Step::gather))),
      all_(All_cliques_of(file_.Bytes(), plan.Graph(),
                          plan.Folder().Label(plan.Folder().Cliques(), Step::gather), check)) {
  Refuse_changed(plan.Folder().Label(plan.Folder().Levels(), Step::gather),
                 Levels_text(plan.Graph(), all_));
  plan.Refuse_undone(Step::gather);
}

void Refuse_changed(const Part_label& label, const std::string& text) {
  const Mapped_file file = Mapped_part(label);
  if (!std::ranges::equal(file.Bytes(), std::as_bytes(std::span(text))))
    throw Xbad_part(label.name, "was changed since it was made, or belongs to another run",
                    label.cure);
}

}  // namespace gns::parts
