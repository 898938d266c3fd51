#pragma once

#include <string>

#include "foundation/io/Descriptor.h"

namespace gns {

/// What tells that a results directory isn't whole, and keeps a second run out of it: a file
/// `.unfinished` inside. It is made in front of everything else that a run writes, and removed as
/// the last act of a run that finished. A run that is stopped, fails or dies leaves it, and it
/// moves with the directory.
///
/// An object of this class is the claim of one run on its directory, from construction on. Not for
/// several threads.
class Unfinished_mark {
 public:
  /// Makes the directory, with its missing parents, and the mark. Throws Xerror_msg, and leaves
  /// what is there alone, if the directory holds anything, the mark of another run included, or if
  /// it can't be made or marked.
  explicit Unfinished_mark(const std::string& output_dir);

  /// The claim that another process has made and left, on results that several make together.
  /// Throws Xerror_msg if the mark isn't there.
  static Unfinished_mark Taken_up(const std::string& output_dir);

  /// Throws Xerror_msg if the mark no longer stands where it was made, because somebody moved or
  /// deleted the directory. What a writer has made in its place by then is marked as well.
  void Check() const;

  /// Takes the mark away, which ends the claim: brings all that was written to the disk first, so
  /// that after a power failure too nothing looks whole that isn't. A variable of the environment,
  /// VORLANE_NO_SYNC, leaves that out. Throws as Check(). If the disk reports a failure, or the
  /// mark can't be removed, notes a file fault; then the mark stays.
  void Remove();

 private:
  Unfinished_mark(const std::string& output_dir, int directory, int mark);

  std::string output_dir_;
  Descriptor directory_;
  Descriptor
      mark_;  ///< open as long as the mark stands, so that its identity can't pass to another
};

/// The path of the mark of a results directory.
std::string Unfinished_mark_of(const std::string& output_dir);

/// True if the mark stands in the directory: its run is going on, or was stopped, or failed. Where
/// the system fails to tell, nobody knows that the results are whole, and it counts as standing.
bool Is_marked_unfinished(const std::string& output_dir);

}  // namespace gns
