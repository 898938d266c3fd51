#include "vorlane/parts.h"

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"
#include "bindings/c/src/Options.h"

namespace vorlane::c {

namespace {

/// Does a step on a folder, and tells what it counts if that is asked for.
template <typename Step>
vorlane_code With_count(const char* work, std::uint64_t* count, Step step) {
  return With_code([&] {
    Check_given(work, "work");
    const std::uint64_t counted = step();
    if (count) *count = counted;
  });
}

}  // namespace
}  // namespace vorlane::c

using vorlane::c::Check_given;
using vorlane::c::Control_of;
using vorlane::c::Options_of;
using vorlane::c::With_code;
using vorlane::c::With_count;

vorlane_code vorlane_parts_plan(const char* input, const vorlane_link_options* how,
                                const vorlane_options* options, const char* out, const char* work,
                                uint64_t parts, vorlane_control* control) {
  return With_code([&] {
    Check_given(input, "input");
    Check_given(out, "out");
    Check_given(work, "work");
    vorlane::Plan_parts(input, Options_of(how), Options_of(options), out, work, parts,
                        Control_of(control));
  });
}

vorlane_code vorlane_parts_search(const char* work, uint64_t part, vorlane_control* control,
                                  uint64_t* cliques) {
  return With_count(work, cliques,
                    [&] { return vorlane::Search_part(work, part, Control_of(control)); });
}

vorlane_code vorlane_parts_gather(const char* work, vorlane_control* control, uint64_t* cliques) {
  return With_count(work, cliques,
                    [&] { return vorlane::Gather_parts(work, Control_of(control)); });
}

vorlane_code vorlane_parts_levels(const char* work, uint64_t part, vorlane_control* control,
                                  uint64_t* levels) {
  return With_count(work, levels,
                    [&] { return vorlane::Find_levels_of_part(work, part, Control_of(control)); });
}

vorlane_code vorlane_parts_finish(const char* work, vorlane_control* control) {
  return With_code([&] {
    Check_given(work, "work");
    vorlane::Finish_parts(work, Control_of(control));
  });
}
