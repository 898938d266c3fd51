#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "vorlane/version.h"

namespace vorlane {

/// How far a work has come, in figures.
struct Progress {
  std::uint64_t cliques_found = 0;
  std::uint64_t nodes_left = 0;       ///< of the search for cliques
  std::uint64_t k_cliques_found = 0;  ///< of the intensity method, at the k at hand
  std::uint64_t work_done = 0;        ///< of the stage at hand, in units of its own
  std::uint64_t work_total = 0;       ///< 0: the stage doesn't tell
};

/// Watches and stops a work from any thread while another thread does it: hand it to an Analysis or
/// to Network::Read(). A copy is the same control. One control serves one work at a time.
class VORLANE_API Control {
 public:
  Control();

  /// Ends the work within some hundredths of a second, by an Error of kind `stopped`. Returns at
  /// once; may be called from a signal handler. Stays in force until Reset().
  void Stop() noexcept;
  void Reset() noexcept;
  [[nodiscard]] bool Stop_asked() const noexcept;

  [[nodiscard]] Progress Now() const;
  /// What is going on, in words for people: several lines.
  [[nodiscard]] std::string Report() const;

  struct Body;  ///< for the library itself
  [[nodiscard]] Body& Inside() const { return *body_; }

 private:
  std::shared_ptr<Body> body_;
};

}  // namespace vorlane
