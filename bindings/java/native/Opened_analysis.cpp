#include "bindings/java/native/Opened_analysis.h"

#include <utility>

namespace gns {

namespace {

/// An empty network taken the same way shows what the options forbid.
void Refuse_bad_options(const vorlane::Link_options& how, const vorlane::Options& options) {
  vorlane::Analysis(vorlane::Network::Builder(how).Build(), options);
}

}  // namespace

Opened_analysis::Opened_analysis(std::string link_file, const vorlane::Link_options& how,
                                 const vorlane::Options& options)
    : link_file_(std::move(link_file)), how_(how), options_(options) {
  Refuse_bad_options(how_, options_);
}

Opened_analysis::Opened_analysis(vorlane::Network::Builder links, const vorlane::Link_options& how,
                                 const vorlane::Options& options)
    : links_(std::move(links)), how_(how), options_(options) {
  Refuse_bad_options(how_, options_);
}

const vorlane::Network& Opened_analysis::Network() {
  if (!network_) {
    network_ = links_ ? links_->Build() : vorlane::Network::Read(link_file_, how_, control_);
    links_.reset();
  }
  return *network_;
}

vorlane::Analysis& Opened_analysis::Analysis() {
  if (!analysis_) analysis_.emplace(Network(), options_, control_);
  return *analysis_;
}

}  // namespace gns
