#include "engine/Extract_coms.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "Directory_contents.h"
#include "Temp_dir.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {
namespace {

/// Cliques 3 and 4 are approximate; node 10 of the graph is in no clique.
class Extracted : public ::testing::Test {
 protected:
  Extracted() {
    const std::vector<std::vector<Node_index>> sets = {
        {1, 2, 3}, {2, 3, 4}, {4, 5, 6}, {5, 6, 7}, {1, 8, 9}};
    for (const std::vector<Node_index>& set : sets) cliques_.push_back(set);
  }

  std::map<std::string, std::string> Files_at(std::uint32_t k) {
    const std::string header = " from here\n";
    const Node_names no_names;
    const Index_links no_links({}, {}, 10);
    const std::string out = temp_.Path(std::to_string(k));
    const Overlap_matrix overlap_matrix(cliques_);
    Extract_coms_ec(k, cliques_, overlap_matrix, 3, flag_, header, out + "/plain", no_names, 10,
                    false, 0, no_links, 3);
    Extract_coms_ec_ret(k, cliques_, overlap_matrix, 3, flag_, header, out, no_names, 10, false, 0,
                        no_links, tables_, 3);
    EXPECT_EQ(Contents_of(out + "/plain/k=" + std::to_string(k)),
              Contents_of(out + "/k=" + std::to_string(k)));
    return Contents_of(out + "/k=" + std::to_string(k));
  }

  Temp_dir temp_;
  Clique_vector cliques_;
  std::string flag_;
  Com_result_tables tables_;
};

TEST_F(Extracted, ThreeSetsOfDistributionsWhereCommunitiesAreApproximate) {
  const auto files = Files_at(3);
  EXPECT_EQ(files.size(), 16U);
  EXPECT_TRUE(files.at("communities_cliques").ends_with("\n\n0: 0 1 \n-1: 2 -3 \n-2: -4 \n"));
  EXPECT_TRUE(files.at("membership_distribution_exact").ends_with("\n\n0 6\n1 4\n\n"));
  EXPECT_TRUE(files.at("size_distribution_appr").ends_with("\n\n3 1\n4 1\n\n"));
  EXPECT_EQ(tables_.com_graphs.at(3), (Overlap_table{{{0, -1}, 1}, {{0, -2}, 1}}));
  EXPECT_EQ(Files_at(4).size(), 8U);
}

TEST_F(Extracted, AStopDuringPercolationWritesNothingOfThatK) {
  Stop_process();
  EXPECT_THROW(Files_at(3), std::logic_error);
  EXPECT_TRUE(Contents_of(temp_.Path()).empty());
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
  Reset_stop_process();
}

}  // namespace
}  // namespace gns
