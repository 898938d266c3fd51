#pragma once

#include "graph/Row_index.h"

namespace gns {

/// For each node its neighbours.
using Adjacency = Row_index;

}  // namespace gns
