#pragma once

#include "queries/Shared_nodes.h"

namespace vorlane::queries {

/// How alike two covers are, in two figures that are 1 for equal ones and about 0 for unrelated
/// ones. Both take the time of the nodes that communities of the one share with those of the other,
/// and little more.

/// The omega index (L. M. Collins, C. W. Dent, Multivariate Behavioral Research 23, 1988): the
/// share of the pairs of nodes that are together in equally many communities of both covers, less
/// what chance would yield. Below 0 for covers that are less alike than by chance. Nodes in no
/// community count; where most are, the index tells little of them. 1 if there are no two nodes.
double Omega_index(const Covers& covers);

/// Normalised mutual information of overlapping communities, by the larger entropy (A. F. McDaid,
/// D. Greene, N. Hurley, arXiv:1110.2515, 2011). 1 if neither cover tells nodes apart.
double Overlapping_nmi(const Covers& covers);

}  // namespace vorlane::queries
