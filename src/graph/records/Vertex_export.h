#pragma once

#include <ostream>
#include <string>

#include "graph/Node_set.h"
#include "graph/records/Vtx.h"
#include "graph/records/Vtxd.h"

namespace gns {

/// Writing node sets and vertex records for diagnosis. Numbers are plain decimal whatever the
/// flags of the stream, and sets ascend.

/// Vertical forms: every member on a line of its own.
namespace g_ver {
std::ostream& operator<<(std::ostream& out, const Node_set& set);
std::ostream& operator<<(std::ostream& out, const Vtx& record);
std::ostream& operator<<(std::ostream& out, const Vtxd& record);
}  // namespace g_ver

/// Horizontal forms: members separated by one blank, a record on one line without its end.
namespace g_hor {
std::ostream& operator<<(std::ostream& out, const Node_set& set);
std::ostream& operator<<(std::ostream& out, const Vtx& record);
std::ostream& operator<<(std::ostream& out, const Vtxd& record);
}  // namespace g_hor

/// Sets as `open`, the members with `sep` between them, `close`; the parts of a record are
/// separated by `sep` too. A single value is written bare.
void export_data(std::ostream& out, Node_index value, const std::string& sep,
                 const std::string& open, const std::string& close);
void export_data(std::ostream& out, const Node_set& set, const std::string& sep,
                 const std::string& open, const std::string& close);
void export_data(std::ostream& out, const Vtx& record, const std::string& sep,
                 const std::string& open, const std::string& close);
void export_data(std::ostream& out, const Vtxd& record, const std::string& sep,
                 const std::string& open, const std::string& close);

}  // namespace gns
