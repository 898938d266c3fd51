#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "foundation/io/Mapped_file.h"
#include "parts/Part_reader.h"

namespace gns::parts {

/// The steps of a run in parts, in their order.
enum class Step { plan, search, gather, levels, finish };

/// The folder in which the parts of a run meet: what stands in it, and the commands that make it.
class Work_folder {
 public:
  explicit Work_folder(std::string path) : path_(std::move(path)) {}

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// The path of something inside.
  [[nodiscard]] std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  [[nodiscard]] std::string Graph() const { return *this / "graph.bin"; }
  [[nodiscard]] std::string Plan() const { return *this / "plan.tsv"; }
  [[nodiscard]] std::string Run() const { return *this / "run.json"; }
  [[nodiscard]] std::string Cliques_of(std::uint64_t part) const {
    return *this / ("cliques." + std::to_string(part) + ".bin");
  }
  [[nodiscard]] std::string Cliques() const { return *this / "cliques.bin"; }
  [[nodiscard]] std::string Levels() const { return *this / "levels.tsv"; }
  /// What tells that a step, or a part of it, is done with the results directory.
  [[nodiscard]] std::string Done(Step step, std::uint64_t part = 0) const;

  /// "vorlane parts search --work WORK --part 3"
  [[nodiscard]] std::string Command(Step step, std::uint64_t part = 0) const;
  /// What is called `path` in messages, with the command that makes it as the cure.
  [[nodiscard]] Part_label Label(const std::string& path, Step step, std::uint64_t part = 0) const;

 private:
  std::string path_;
};

/// "search" and so on.
std::string Name_of(Step step);

/// A file of the folder, mapped. Throws Xbad_part if it is missing.
Mapped_file Mapped_part(const Part_label& label);

}  // namespace gns::parts
