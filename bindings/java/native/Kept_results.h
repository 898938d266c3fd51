#pragma once

#include <jni.h>

#include <optional>
#include <vector>

#include "bindings/java/native/Result_arrays.h"
#include "engine/Run_keeper.h"

namespace gns {

/// Keeps what a run finds in arrays of the JVM, and makes a zumo/community/OutParams of them when
/// the run is over. The process holds nothing twice.
///
/// A Java error does not end the run: nothing more is kept then, and Translate() makes the error
/// pending again.
class Kept_results : public Run_keeper {
 public:
  /// `directed` is what the links of communities are told.
  Kept_results(JNIEnv* env, bool directed) : env_(env), directed_(directed) {}

  void Keep_links(const Link_map& links) override;
  void Keep_cliques(const Clique_vector& cliques, std::uint32_t exact_count,
                    const Node_names& names) override;
  void Keep_level(const Level& level, const Index_links& links) override;

  /// A new local reference to the result. Reports; throws Java_error_pending.
  jobject Translate();

 private:
  template <typename Part>
  void Keep(Part part);
  Level_arrays Arrays_of(const Level& level, const Index_links& links) const;
  Row_arrays Links_of(const Level& level, const Index_links& links) const;
  Int_array Behind(std::size_t exact_count, std::size_t count) const;

  JNIEnv* env_;
  bool directed_;
  std::optional<Network_arrays> network_;
  std::optional<Clique_arrays> cliques_;
  std::optional<Local_ref<jobjectArray>> names_;
  std::vector<Level_arrays> levels_;  ///< k descending
  std::optional<Local_ref<jthrowable>> error_;
};

}  // namespace gns
