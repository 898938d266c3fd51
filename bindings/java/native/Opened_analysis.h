#pragma once

#include <optional>
#include <string>

#include "vorlane/analysis.h"
#include "vorlane/control.h"
#include "vorlane/network.h"

namespace gns {

/// An analysis whose links are taken when something is asked for. Everything throws a
/// vorlane::Error.
class Opened_analysis {
 public:
  /// Of a link file. Refuses options that don't go together.
  Opened_analysis(std::string link_file, const vorlane::Link_options& how,
                  const vorlane::Options& options);
  /// Of links that are collected already.
  Opened_analysis(vorlane::Network::Builder links, const vorlane::Link_options& how,
                  const vorlane::Options& options);

  const vorlane::Network& Network();
  vorlane::Analysis& Analysis();
  /// May be used by any thread, whatever else goes on.
  vorlane::Control& Control() { return control_; }

 private:
  std::string link_file_;
  std::optional<vorlane::Network::Builder> links_;
  vorlane::Link_options how_;
  vorlane::Options options_;
  vorlane::Control control_;
  std::optional<vorlane::Network> network_;
  std::optional<vorlane::Analysis> analysis_;
};

}  // namespace gns
