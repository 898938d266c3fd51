#include "graph/records/Vtx.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "Thrown_message.h"
#include "graph/records/Vertex_export.h"
#include "graph/records/Vtxd.h"

namespace gns {
namespace {

/// Node 5 with neighbours 2, 3, 4 and two recorded cliques.
Vtx Sample() {
  Vtx record(5, {2, 3, 4}, "five");
  record.Add_inc_neigh(0, 3);
  record.Add_inc_neigh(0, 2);
  record.Add_inc_neigh(1, 3);
  return record;
}

/// Node 5 with a link to 2, one from 3, both with 4, and two recorded cliques.
Vtxd Directed_sample() {
  Vtxd record(5, {2, 4}, {3, 4}, "five");
  record.Add_inc_neigh(0, 2);
  record.Add_inc_neigh(0, 4);
  record.Add_inc_neigh(1, 4);
  return record;
}

const std::string directed_text =
    "5 (five) : , oneighs. :[2,4], ineighs. :[3,4], inc_neighs. :[2,4],[4]";

template <typename Record>
std::string Text(const Record& record) {
  std::ostringstream out;
  export_data(out, record, ",", "[", "]");
  return out.str();
}

/// Copies, among them one onto itself.
template <typename Record>
void Expect_copies(const Record& sample, Record assigned, const std::string& text) {
  EXPECT_EQ(Text(Record(sample)), text);
  assigned = sample;
  const Record& itself = assigned;
  assigned = itself;
  EXPECT_EQ(Text(assigned), text);
  EXPECT_EQ(assigned.Neighs(), (Node_set{2, 3, 4}));
}

TEST(VertexRecords, ConstructorsAndCopies) {
  EXPECT_EQ(Text(Vtx()), "0 (0) : neighs. :[], inc_neighs. :");
  EXPECT_EQ(Text(Vtx(7, {9, 8})), "7 (7) : neighs. :[8,9], inc_neighs. :");
  EXPECT_EQ(Text(Vtxd(7)), "7 (7) : , oneighs. :[], ineighs. :[], inc_neighs. :");
  Expect_copies(Sample(), Vtx(1, {6}, "old"),
                "5 (five) : neighs. :[2,3,4], inc_neighs. :[2,3],[3]");
  Expect_copies(Directed_sample(), Vtxd(1, {6}, {6}), directed_text);
  Vtx record = Sample();
  record.Set_defaults();
  EXPECT_EQ(Text(record), Text(Vtx()));
}

TEST(VertexRecords, AssignmentGoesByTheRecordsOwnType) {
  Vtxd record(1, {6}, {7});
  Vtx& base = record;
  base = Vtx(2, {3}, "two");
  EXPECT_EQ(Text(record), "2 (two) : , oneighs. :[3], ineighs. :[3], inc_neighs. :");
  EXPECT_EQ(record.Neighs(), (Node_set{3, 6, 7}));  // old neighbours stay
  EXPECT_TRUE(base < Vtx(3) && Vtx(1) < base && record < Vtxd(3) && !(base < record));
}

TEST(VertexRecords, CliqueSetsKeepTheirPlaces) {
  Vtx record = Sample();
  record.Add_inc_neigh(0, 2);  // a member already
  EXPECT_EQ(record.Inc_neighs(), (std::vector<Node_set>{{2, 3}, {3}}));
  record.Remove_neigh(3);
  record.Remove_inc_neigh(0, 2);
  record.Add_inc_neigh(2, 4);
  EXPECT_EQ(Text(record), "5 (five) : neighs. :[2,4], inc_neighs. :[],[],[4]");
}

TEST(VertexRecords, NeighbourLivesAsLongAsOneDirection) {
  Vtxd record = Directed_sample();
  record.Add_oneigh(3);
  record.Remove_ineigh(3);
  record.Remove_oneigh(4);
  record.Add_oneigh(8);
  record.Add_ineigh(9);
  EXPECT_EQ(Text(record),
            "5 (five) : , oneighs. :[2,3,8], ineighs. :[4,9], inc_neighs. :[2,4],[4]");
  EXPECT_EQ(record.Neighs(), (Node_set{2, 3, 4, 8, 9}));
  record.Remove_ineigh(4);
  record.Remove_oneigh(3);
  EXPECT_EQ(record.Inc_neighs(), (std::vector<Node_set>{{2, 4}, {4}}));
  EXPECT_EQ(record.Neighs(), (Node_set{2, 8, 9}));
  Vtxd whole = Directed_sample();
  whole.Remove_neigh(4);
  EXPECT_EQ(Text(whole), "5 (five) : , oneighs. :[2], ineighs. :[3], inc_neighs. :[2],[]");
}

TEST(VertexRecords, FailuresLeaveTheRecordAlone) {
  struct Case {
    std::string text;
    std::function<void(Vtxd&)> operation;
  };
  for (const Case& c : std::vector<Case>{
           {"Vtx::Add_neigh() : attempt to add already exisiting neigh. ",
            [](Vtxd& r) { r.Add_neigh(3); }},
           {"Vtx::Add_inc_neigh() : vec_ind too large", [](Vtxd& r) { r.Add_inc_neigh(3, 3); }},
           {"Vtx::Add_inc_neigh() : new ind. neigh. is not a neigh.",
            [](Vtxd& r) { r.Add_inc_neigh(2, 9); }},
           {"Vtx::Remove_neigh() : attempt to remove a non-existing neigh.",
            [](Vtxd&) { Vtx(1).Remove_neigh(2); }},
           {"Vtx::Remove_inc_neigh() : vec_ind too large",
            [](Vtxd& r) { r.Remove_inc_neigh(2, 2); }},
           {"Vtx::Remove_inc_neigh() : attempt to remove a non-existing inc. neigh.",
            [](Vtxd& r) { r.Remove_inc_neigh(1, 2); }},
           {"Vtxd::Add_oneigh() : attempt to add already exisiting neigh. ",
            [](Vtxd& r) { r.Add_oneigh(4); }},
           {"Vtxd::Add_ineigh() : attempt to add already exisiting neigh. ",
            [](Vtxd& r) { r.Add_ineigh(4); }},
           {"Vtxd::Remove_oneigh() : attempt to remove a non-existing oneigh.",
            [](Vtxd& r) { r.Remove_oneigh(3); }},
           {"Vtxd::Remove_ineigh() : attempt to remove a non-existing ineigh.",
            [](Vtxd& r) { r.Remove_ineigh(2); }},
           {"Vtxd::Remove_neigh() : attempt to remove a non-existing neigh.",
            [](Vtxd& r) { r.Remove_neigh(9); }}}) {
    Vtxd record = Directed_sample();
    EXPECT_EQ(Thrown_message([&] { c.operation(record); }), "ERROR: " + c.text);
    EXPECT_EQ(Text(record), directed_text) << c.text;
    EXPECT_EQ(record.Neighs(), (Node_set{2, 3, 4})) << c.text;
  }
}

TEST(VertexExport, StreamForms) {
  std::ostringstream vertical;
  std::ostringstream horizontal;
  vertical << std::hex;  // must not show
  {
    using g_ver::operator<<;
    vertical << Node_set{17, 3} << Sample() << Directed_sample();
  }
  {
    using g_hor::operator<<;
    horizontal << Node_set{17, 3} << Node_set() << Sample() << Vtx(1) << Directed_sample();
  }
  EXPECT_EQ(vertical.str(),
            "3\n17\n"
            "5 'five' :\n neighs. :\n2\n3\n4\n  inc_neighs. : \n2\n3\n3\n"
            "5 'five' :\n oneighs. :\n2\n4\n ineighs. : \n3\n4\n  inc_neighs. : \n2\n4\n4\n");
  EXPECT_EQ(horizontal.str(),
            "3 17"
            "{5 'five' : neighs. :2 3 4  inc_neighs. :   2 3 , 3}"
            "{1 '1' : neighs. :  inc_neighs. : }"
            "{5 'five' : oneighs. : 2 4  ineighs. : 3 4  inc_neighs. :   2 4 , 4}");
}

}  // namespace
}  // namespace gns
