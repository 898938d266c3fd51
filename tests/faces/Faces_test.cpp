#include <gtest/gtest.h>

#include <tuple>

#include "Directory_contents.h"
#include "Temp_dir.h"
#include "vorlane_cli.h"
#include "vorlane_operations.h"

namespace gns {
namespace {

// Operations in their plain forms, with loose arguments, as a program calls them that has the two
// libraries and their two headers.

const std::string header = " from here\n";

/// Four nodes that are all linked; the links among the first three weigh four times as much.
const Index_links four_nodes({{1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}}, {4, 4, 1, 4, 1, 1},
                             4);

template <typename Value>
Row_array<Value> One_row(std::initializer_list<Value> values) {
  Row_array<Value> rows;
  for (const Value& value : values) rows.Append(value);
  rows.Close_row();
  return rows;
}

Node_names Names() {
  Name_table table;
  for (const char* name : {"a", "b", "c", "d"}) table.Add(name);
  return {table, {0, 1, 2, 3}};
}

TEST(Faces, OfTexts) {
  my_string_chopper_class::Set_delims({';'});
  std::string text = ";a;;12;b;c;";
  std::string word;
  std::int32_t number = 0;
  text >> word >> number;
  EXPECT_EQ(std::make_tuple(word, number, text), std::make_tuple("a", 12, "b;c;"));
  EXPECT_THROW(text >> number, Xerror_msg);
  EXPECT_EQ(text, "b;c;");
  Name_list names;
  EXPECT_EQ(text >> names, "");
  EXPECT_EQ(names, (Name_list{"b", "c"}));
  text = "3;4";
  Index_list indices;
  text >> indices;
  EXPECT_EQ(indices.size(), 2U);
  my_string_chopper_class::Set_delims({});

  EXPECT_EQ(trim("  a b\t", Character_set{' ', '\t'}), "a b");
  EXPECT_EQ(trim(" \t ", {' ', '\t'}), "");

  external_control::CURRENT_STATE_REPORT = "busy";
  const std::string report = external_control::CURRENT_STATE_REPORT;
  EXPECT_EQ(report, "busy");
  EXPECT_TRUE(external_control::ERROR_MESSAGE == "");
}

TEST(Faces, OfSearches) {
  Vertex_map vtx_map;
  Dir_vertex_map dir_vtx_map;
  Vtx_map_from_link_map(vtx_map, four_nodes);
  Dir_vtx_map_from_link_map(dir_vtx_map, four_nodes);
  for (const bool directed : {false, true}) {
    Clique_vector cliques;
    Overlap_matrix overlap_matrix;
    Left_map left_map;
    if (directed)
      Clique_find_dir_time_ec(cliques, overlap_matrix, dir_vtx_map, left_map, 100.0);
    else
      Clique_find_part_time_ec(cliques, overlap_matrix, vtx_map, left_map, 100.0);
    EXPECT_EQ(cliques.size(), 1U);
    EXPECT_EQ(cliques[0].size(), 4U);
    EXPECT_EQ(overlap_matrix.size(), 1U);
    EXPECT_TRUE(left_map.empty());
  }
}

TEST(Faces, OfTheIntensityMethod) {
  Sub_links sub_links;
  double min_log_w = 1;
  Get_sub_links_and_min_link_w(Node_set{1, 2, 4}, four_nodes, sub_links, min_log_w);
  EXPECT_EQ(min_log_w, 0.0);
  EXPECT_EQ(sub_links.size(), 3U);
  EXPECT_TRUE(Coms_from_k_cls_sub::Check_intersection(Node_set{1, 2}, four_nodes, 3.9));
  EXPECT_FALSE(Coms_from_k_cls_sub::Check_intersection(Node_set{1, 4}, four_nodes, 1.0));

  const Clique_vector cliques = One_row<Node_index>({1, 2, 3, 4});
  K_cliques k_cliques(3);
  Generate_k_cls_from_cls_ec(cliques, four_nodes, k_cliques, 3, 2.0);
  ASSERT_EQ(k_cliques.size(), 1U);
  EXPECT_EQ(k_cliques[0][2], 3U);
  Generate_k_cls_from_cls_ec(cliques, four_nodes, k_cliques, 3, 0.5);
  ASSERT_EQ(k_cliques.size(), 4U);
  EXPECT_EQ(k_cliques[1][2], 4U);
  Generate_k_cls_from_cls_ec(cliques, four_nodes, k_cliques, 3, 2.0);
  EXPECT_EQ(k_cliques.size(), 4U);

  Row_array<Node_index> coms;
  Row_array<Index_pair> com_links;
  Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_links, 3, four_nodes, 0.5);
  ASSERT_EQ(coms.size(), 1U);
  EXPECT_EQ(coms[0].size(), 4U);
  ASSERT_EQ(com_links.size(), 1U);
  EXPECT_EQ(com_links[0].size(), 12U);  // three for each k-clique
}

TEST(Faces, OfWritersThatFillTables) {
  const Temp_dir temp;
  const std::string out = temp.Path("out");
  const Row_array<Node_index> coms = One_row<Node_index>({1, 2, 3, 4});
  const Node_names names = Names();
  Link_map_builder links(false);
  links.Add("a", "b");
  K_cliques k_cliques(3);
  Generate_k_cls_from_cls_ec(coms, four_nodes, k_cliques, 3, 2.0);
  const Distribution dist = {{4, 1}};
  Com_result_tables t;
  Kiir_graph_ret(links.Build(), out, false, header, false, t.graph_links);
  Kiir_cliques_VL_ret(out, coms, names, 1, "", header, t.cliques);
  Kiir_k_cliques_VL_ret(out, k_cliques, 3, names, header, t.k_cliques);
  Kiir_coms_VL_ret(coms, out, 3, names, 1, "", header, t.communities);
  Kiir_coms_cliques_VL_ret(One_row<Clique_index>({0}), out, 3, 1, 1, "", header, t.com_cliques);
  Kiir_com_links_VL_ret(One_row<Index_pair>({{1, 2}}), out, 3, names, 1, "", header, t.com_links,
                        four_nodes);
  Kiir_com_graph_VL_ret({{0, 1, 2}}, 2, out, 3, "", header, t.com_graphs);
  Kiir_stats_VL_ret({{0, 1}}, dist, {}, {}, out, 3, "", "", header, t.membership_dist_exact,
                    t.size_dist_exact, t.overlap_dist_exact, t.degree_dist_exact);
  EXPECT_EQ(t.graph_links, (Name_pairs{{"a", "b"}}));
  EXPECT_EQ(t.cliques, (Names_by_index{{0, {"a", "b", "c", "d"}}}));
  EXPECT_EQ(t.k_cliques.at(3), (Names_by_index{{0, {"a", "b", "c"}}}));
  EXPECT_EQ(t.communities.at(3), t.cliques);
  EXPECT_EQ(t.com_cliques.at(3), (Indices_by_index{{0, {0}}}));
  EXPECT_EQ(t.com_links.at(3), (Links_by_index{{0, {{"a", "b"}}}}));
  EXPECT_EQ(t.com_graphs.at(3), (Overlap_table{{{0, 1}, 2}}));
  EXPECT_EQ(t.membership_dist_exact.at(3), (Distribution{{0, 1}}));
  EXPECT_EQ(t.size_dist_exact.at(3), dist);

  Com_result_tables read;
  std::string errors;
  std::apply([&](auto&... table) { Read_coms(out, "", table..., errors); }, All_tables(read));
  EXPECT_EQ(errors, "");
  read.k_cliques = t.k_cliques;  // of an intensity run only
  EXPECT_TRUE(read == t);
}

TEST(Faces, OfTheExtraction) {
  const Temp_dir temp;
  const Clique_vector cliques = One_row<Node_index>({1, 2, 3, 4});
  Com_result_tables t;
  const auto extract = [&](Name_pairs&, Names_by_index&, auto&... of_k) {
    Extract_coms_ec_ret(3, cliques, Overlap_matrix(cliques), 1, "", header, temp.Path("out"),
                        Names(), 4, false, 0.0, four_nodes, of_k..., 4);
  };
  std::apply(extract, All_tables(t));
  EXPECT_EQ(t.communities.at(3), (Names_by_index{{0, {"a", "b", "c", "d"}}}));
  EXPECT_EQ(t.membership_dist_exact.at(3), (Distribution{{0, 0}, {1, 4}}));
  EXPECT_EQ(Contents_of(temp.Path("out")).size(), 8U);
}

TEST(Faces, OfTheCommandLine) {
  const Temp_dir temp;
  const std::string path = temp.Write("links", "a b 1\nb c 9\n");
  const char* const argv[] = {"prog", "-i", path.c_str(), "-w", "1", "-k", "4"};
  std::string output_dir;
  Link_map links;
  double time_limit = 0;
  double intensity_threshold = 0;
  bool use_time_limit = false;
  bool directed = false;
  bool use_intensity = false;
  bool use_single_k = false;
  unsigned single_k = 0;
  bool weighted = false;
  std::string com_flag;
  std::string run_header;
  Process_input(7, argv, output_dir, links, time_limit, use_time_limit, directed, use_intensity,
                intensity_threshold, use_single_k, single_k, weighted, com_flag, run_header);
  EXPECT_EQ(links.size(), 1U);
  EXPECT_EQ(single_k, 4U);
  EXPECT_EQ(output_dir, path + "_files_1.000000_w");

  const Switch_map params(Switches(7, argv).Params());
  EXPECT_TRUE(Check_keys(params));
  std::string errors;
  bool error = false;
  Get_param(single_k, "-w", params, errors, error);
  EXPECT_EQ(single_k, 1U);
  EXPECT_FALSE(error);
  testing::internal::CaptureStdout();
  Print_usage("prog", "wrong");
  EXPECT_NE(testing::internal::GetCapturedStdout().find("\nwrong\n Usage : prog "),
            std::string::npos);
}

}  // namespace
}  // namespace gns
