#pragma once

#include <cstdint>

#include "foundation/Processor_level.h"

namespace gns {

/// Has the kernels use a level of the processor, by turns, as long as the object lives.
class Processor_level_turn {
 public:
  explicit Processor_level_turn(std::uint32_t turn) {
    Set_processor_level(static_cast<Processor_level>(turn % 3));
  }
  Processor_level_turn(const Processor_level_turn&) = delete;
  Processor_level_turn& operator=(const Processor_level_turn&) = delete;
  ~Processor_level_turn() { Set_processor_level(Best_processor_level()); }
};

}  // namespace gns
