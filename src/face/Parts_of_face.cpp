#include <algorithm>

#include "engine/Run_wishes.h"
#include "face/Control_body.h"
#include "face/Errors_of_face.h"
#include "face/Input_of_face.h"
#include "formats/Network_file.h"
#include "parts/Parts.h"
#include "vorlane/parts.h"

namespace vorlane {

namespace {

gns::Run_parameters Parameters_of(const std::string& input, const Link_options& how,
                                  const Options& options, const std::string& out) {
  gns::Run_parameters p;
  p.input_file = input;
  p.output_dir = out;
  p.use_lower_threshold = how.min_weight.has_value();
  p.lower_threshold = how.min_weight.value_or(0);
  p.use_upper_threshold = how.max_weight.has_value();
  p.upper_threshold = how.max_weight.value_or(0);
  p.directed = how.directed;
  p.use_intensity = options.intensity.has_value();
  p.intensity_threshold = options.intensity.value_or(0);
  p.use_time_limit = options.time_limit.has_value();
  p.time_limit = options.time_limit.value_or(0);
  p.use_single_k = options.k.has_value();
  p.single_k = options.k.value_or(0);
  return p;
}

/// Does a step by a control.
template <typename Work>
auto Step(const Control& control, Work work) {
  external_control::Run_control& run = control.Inside().run;
  const external_control::Control_in_use in_use(run);
  run.workers = 1;  // it may have been that of an analysis with more
  return face::With_errors(Error_kind::other, work);
}

Part_state State_of(gns::parts::Part_state state) {
  if (state == gns::parts::Part_state::done) return Part_state::done;
  return state == gns::parts::Part_state::running ? Part_state::running : Part_state::missing;
}

std::vector<Part_state> States_of(const std::vector<gns::parts::Part_state>& states) {
  std::vector<Part_state> found(states.size());
  std::ranges::transform(states, found.begin(), State_of);
  return found;
}

}  // namespace

void Plan_parts(const std::string& input, const Link_options& how, const Options& options,
                const std::string& out, const std::string& work, std::uint64_t parts,
                const Control& control) {
  const gns::Run_parameters parameters = Parameters_of(input, how, options, out);
  face::With_errors(Error_kind::parameters,
                    [&] { gns::parts::Refuse_bad_plan(parameters, parts); });
  gns::Input_wishes input_wishes = face::Wishes_of(how);
  input_wishes.for_files = true;
  gns::Run_wishes wishes;
  wishes.links_source = [&](const gns::Link_rule& rule, gns::Link_map& links,
                            gns::Link_file_check& check) {
    gns::Read_network_file(input, input_wishes, rule, links, check);
  };
  Step(control, [&] { gns::parts::Plan(parameters, wishes, work, parts); });
}

std::uint64_t Search_part(const std::string& work, std::uint64_t part, const Control& control,
                          const std::string& elsewhere) {
  return Step(control, [&] { return gns::parts::Search(work, part, elsewhere); });
}

std::uint64_t Gather_parts(const std::string& work, const Control& control) {
  return Step(control, [&] { return gns::parts::Gather(work); });
}

std::uint64_t Find_levels_of_part(const std::string& work, std::uint64_t part,
                                  const Control& control, const std::string& elsewhere) {
  return Step(control, [&] { return gns::parts::Find_levels(work, part, elsewhere); });
}

std::string Finish_parts(const std::string& work, const Control& control) {
  return Step(control, [&] { return gns::parts::Finish(work).parameters.output_dir; });
}

Parts_status Status_of_parts(const std::string& work) {
  const gns::parts::Status status =
      face::With_errors(Error_kind::other, [&] { return gns::parts::Status_of(work); });
  return {status.output_dir, States_of(status.search), State_of(status.gather),
          States_of(status.levels), status.finished};
}

}  // namespace vorlane
