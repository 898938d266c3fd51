#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "graph/Named_graph.h"
#include "parts/Part_reader.h"
#include "parts/Part_writer.h"
#include "parts/Run_plan.h"

namespace gns::parts {

/// Writes the graph of a run with its plan, whole. Yields the fingerprint.
std::uint64_t Write_graph_part(const Byte_taker& take, const Run_plan& plan,
                               const Named_graph& graph);

/// What Write_graph_part() has written: the plan, and a graph that is read where it lies.
class Graph_part {
 public:
  /// `bytes` outlive the object; errors as of Part_reader.
  Graph_part(std::span<const std::byte> bytes, const Part_label& label,
             Part_check check = Part_check::all);

  [[nodiscard]] const Run_plan& Plan() const { return plan_; }
  [[nodiscard]] const Named_graph& Graph() const { return graph_; }
  /// All other parts of the run have it.
  [[nodiscard]] std::uint64_t Fingerprint() const { return reader_.Stored_checksum(); }
  [[nodiscard]] std::size_t Bytes() const { return bytes_; }

 private:
  void Read_plan();
  void Read_graph();
  [[nodiscard]] Adjacency Rows(std::size_t section) const;

  Part_reader reader_;
  std::size_t bytes_;
  Run_plan plan_;
  Named_graph graph_;
  std::uint64_t nodes_ = 0;
};

}  // namespace gns::parts
