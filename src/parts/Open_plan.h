#pragma once

#include <cstdint>
#include <string>

#include "files/Results_place.h"
#include "foundation/io/Mapped_file.h"
#include "parts/Clique_part.h"
#include "parts/Done_mark.h"
#include "parts/Graph_part.h"
#include "parts/Work_folder.h"

namespace gns::parts {

/// The plan of a run as a worker finds it in the folder of its parts.
class Open_plan {
 public:
  /// Throws Xbad_part if something of the plan is missing, damaged or changed. A directory
  /// `elsewhere` takes the place of that of the results, which then is not looked for.
  explicit Open_plan(const std::string& work, Part_check check = Part_check::all,
                     std::string elsewhere = "");

  [[nodiscard]] const Work_folder& Folder() const { return folder_; }
  [[nodiscard]] const Graph_part& Graph() const { return graph_; }
  [[nodiscard]] const Run_plan& Plan() const { return graph_.Plan(); }
  [[nodiscard]] const std::string& Output_dir() const {
    return elsewhere_.empty() ? Plan().parameters.output_dir : elsewhere_;
  }
  [[nodiscard]] Done_key Key(Step step, std::uint64_t part = 0) const {
    return {step, part, graph_.Fingerprint()};
  }
  /// What the cliques of a part are called.
  [[nodiscard]] Part_label Clique_label(std::uint64_t part) const {
    return folder_.Label(folder_.Cliques_of(part), Step::search, part);
  }
  /// For results that are written in a directory.
  [[nodiscard]] Results_place Place_in(const std::string& directory) const;

  /// Throws Xerror_msg if there is no such part; they count from 1.
  void Refuse_no_part(std::uint64_t part) const;
  /// Throws Xerror_msg if the results directory isn't marked as unfinished.
  void Refuse_finished() const;
  /// Throws Xbad_part if what a step tells is missing, or what it has written in the results
  /// directory.
  void Refuse_undone(Step step) const;

 private:
  Work_folder folder_;
  std::string elsewhere_;
  Mapped_file file_;
  Graph_part graph_;
};

/// The cliques of a part of an open plan.
class Open_clique_part {
 public:
  /// Throws Xbad_part if they are missing or wrong.
  Open_clique_part(const Open_plan& plan, std::uint64_t part, Part_check check = Part_check::all);

  [[nodiscard]] const Clique_vector& Cliques() const { return cliques_; }

 private:
  Mapped_file file_;
  Clique_vector cliques_;
};

/// The cliques of an open plan that have been gathered.
class Open_cliques {
 public:
  /// Throws Xbad_part if something that gathering has made is missing, damaged or changed.
  explicit Open_cliques(const Open_plan& plan, Part_check check = Part_check::all);

  [[nodiscard]] const All_cliques& All() const { return all_; }

 private:
  Mapped_file file_;
  All_cliques all_;
};

/// Throws Xbad_part unless the file holds this text.
void Refuse_changed(const Part_label& label, const std::string& text);

}  // namespace gns::parts
