#include <algorithm>
#include <cstring>
#include <string>

#include "bindings/c/src/Failures.h"
#include "bindings/c/src/Handles.h"

uint32_t vorlane_abi_version() { return VORLANE_ABI_VERSION; }
const char* vorlane_version() { return vorlane::Version(); }

vorlane_code vorlane_control_new(vorlane_control** control) {
  return vorlane::c::With_code([&] { *control = new vorlane_control; });
}

void vorlane_control_free(vorlane_control* control) { delete control; }
void vorlane_control_stop(vorlane_control* control) { control->control.Stop(); }
void vorlane_control_reset(vorlane_control* control) { control->control.Reset(); }

void vorlane_control_progress(const vorlane_control* control, vorlane_progress* progress) {
  const vorlane::Progress now = control->control.Now();
  *progress = {now.cliques_found, now.nodes_left, now.k_cliques_found, now.work_done,
               now.work_total};
}

size_t vorlane_control_report(const vorlane_control* control, char* text, size_t size) {
  size_t length = 0;
  vorlane::c::With_code([&] {
    const std::string report = control->control.Report();
    length = report.size();
    if (size == 0) return;
    const size_t shown = std::min(length, size - 1);
    std::memcpy(text, report.data(), shown);
    text[shown] = '\0';
  });
  return length;
}
