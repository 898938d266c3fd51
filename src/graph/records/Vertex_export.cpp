#include "graph/records/Vertex_export.h"

#include <vector>

#include "foundation/text/My_int2string.h"

namespace gns {

namespace {

/// "index 'name' :", the head of a record in both stream forms.
std::string Head(const Vtx& record) {
  return int2string(record.Index()) + " '" + record.Name() + "' :";
}

}  // namespace

namespace g_ver {

namespace {

void Write_inc_neighs(std::ostream& out, const Vtx& record) {
  out << "  inc_neighs. : \n";
  for (const Node_set& clique : record.Inc_neighs_c()) out << clique;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Node_set& set) {
  for (const Node_index n : set) out << int2string(n) << '\n';
  return out;
}

std::ostream& operator<<(std::ostream& out, const Vtx& record) {
  out << Head(record) << "\n neighs. :\n" << record.Neighs_c();
  Write_inc_neighs(out, record);
  return out;
}

std::ostream& operator<<(std::ostream& out, const Vtxd& record) {
  out << Head(record) << "\n oneighs. :\n" << record.Oneighs_c();
  out << " ineighs. : \n" << record.Ineighs_c();
  Write_inc_neighs(out, record);
  return out;
}

}  // namespace g_ver

namespace g_hor {

namespace {

void Write_inc_neighs(std::ostream& out, const Vtx& record) {
  out << "  inc_neighs. : ";
  const std::vector<Node_set> cliques = record.Inc_neighs_c();
  for (std::size_t i = 0; i < cliques.size(); ++i) {
    if (i + 1 < cliques.size()) {
      out << "  " << cliques[i] << " , ";
    } else {
      out << cliques[i];
    }
  }
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Node_set& set) {
  export_data(out, set, " ", "", "");
  return out;
}

std::ostream& operator<<(std::ostream& out, const Vtx& record) {
  out << '{' << Head(record) << " neighs. :" << record.Neighs_c();
  Write_inc_neighs(out, record);
  return out << '}';
}

std::ostream& operator<<(std::ostream& out, const Vtxd& record) {
  out << '{' << Head(record) << " oneighs. : " << record.Oneighs_c();
  out << "  ineighs. : " << record.Ineighs_c();
  Write_inc_neighs(out, record);
  return out << '}';
}

}  // namespace g_hor

namespace {

/// The three texts of the `export_data` forms.
struct Frame {
  const std::string& sep;
  const std::string& open;
  const std::string& close;
};

void Write_part(std::ostream& out, const std::string& head, const Node_set& set,
                const Frame& frame) {
  out << head;
  export_data(out, set, frame.sep, frame.open, frame.close);
  out << frame.sep;
}

void Write_inc_neighs(std::ostream& out, const Vtx& record, const Frame& frame) {
  out << " inc_neighs. :";
  bool first = true;
  for (const Node_set& clique : record.Inc_neighs_c()) {
    if (!first) out << frame.sep;
    first = false;
    export_data(out, clique, frame.sep, frame.open, frame.close);
  }
}

}  // namespace

void export_data(std::ostream& out, Node_index value, const std::string& /*sep*/,
                 const std::string& /*open*/, const std::string& /*close*/) {
  out << int2string(value);
}

void export_data(std::ostream& out, const Node_set& set, const std::string& sep,
                 const std::string& open, const std::string& close) {
  out << open;
  bool first = true;
  for (const Node_index n : set) {
    if (!first) out << sep;
    first = false;
    export_data(out, n, sep, open, close);
  }
  out << close;
}

void export_data(std::ostream& out, const Vtx& record, const std::string& sep,
                 const std::string& open, const std::string& close) {
  const Frame frame{sep, open, close};
  out << int2string(record.Index()) << " (" << record.Name() << ") :";
  Write_part(out, " neighs. :", record.Neighs_c(), frame);
  Write_inc_neighs(out, record, frame);
}

void export_data(std::ostream& out, const Vtxd& record, const std::string& sep,
                 const std::string& open, const std::string& close) {
  const Frame frame{sep, open, close};
  out << int2string(record.Index()) << " (" << record.Name() << ") : " << sep;
  Write_part(out, " oneighs. :", record.Oneighs_c(), frame);
  Write_part(out, " ineighs. :", record.Ineighs_c(), frame);
  Write_inc_neighs(out, record, frame);
}

}  // namespace gns
