#pragma once

#include <string>

namespace gns {

/// Where the results of a run go, and what all their files have in common.
struct Results_place {
  std::string directory;
  std::string flag;    ///< of the kind of run, see Flag_of(): part of names and titles
  std::string header;  ///< lines in front of each file's contents, see Generate_alap_szoveg()
};

}  // namespace gns
