#pragma once

/// Vorlane: overlapping communities in networks by clique percolation, in memory.
///
///     const vorlane::Results found = vorlane::Find(vorlane::Network::Read("links.txt"));
///     for (const auto community : found.At(4).members) ...
///
/// A Network is made once and never changes. An Analysis finds its cliques and, one k after the
/// other, its communities; Find() does all of that at once. What they yield are flat arrays that
/// live as long as somebody holds them. Nothing is read from or written to a file but by those that
/// are told one, and nothing is printed. Failures are of type Error. No operation starts a thread.
///
/// Link with vorlane::vorlane of find_package(vorlane), or by pkg-config.

#include "vorlane/analysis.h"
#include "vorlane/control.h"
#include "vorlane/error.h"
#include "vorlane/network.h"
#include "vorlane/parts.h"
#include "vorlane/report.h"
#include "vorlane/results.h"
#include "vorlane/rows.h"
#include "vorlane/version.h"
