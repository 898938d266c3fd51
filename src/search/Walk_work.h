#pragma once

#include <cstdint>

namespace gns {

/// Below so many candidates Walk_work() doesn't look at the links.
constexpr std::uint64_t candidates_with_links = 12;

/// An estimate of the work of a walk with so many candidates and links among them, where a link
/// that is looked at once counts 1. The same on all machines.
///
/// A walk has about as many steps as it finds maximal cliques. So many does a random graph of this
/// size have, or where that is more than links, which are a better guess for the clustered
/// neighbourhoods of real networks, the geometric mean of both.
std::uint64_t Walk_work(std::uint64_t candidates, std::uint64_t links);

}  // namespace gns
