#include "vorlane/control.h"

#include "face/Control_body.h"

namespace vorlane {

Control::Control() : body_(std::make_shared<Body>()) {}

void Control::Stop() noexcept {
  body_->run.stop_at_once = true;
  body_->run.stop = true;
}

void Control::Reset() noexcept {
  body_->run.stop_at_once = false;
  body_->run.stop = false;
}

bool Control::Stop_asked() const noexcept { return body_->run.stop; }

Progress Control::Now() const {
  const external_control::Progress& figures = body_->run.progress;
  const auto work = body_->run.work_done.Now();
  return {figures.cliques_found, figures.nodes_left, figures.k_cliques_found, work.done,
          work.total};
}

std::string Control::Report() const { return body_->run.state_report.Text(); }

}  // namespace vorlane
