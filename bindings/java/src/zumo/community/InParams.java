package zumo.community;

import java.util.ArrayList;
import java.util.List;
import java.util.Set;

/** The network: the links that the run took from its link file. */
public final class InParams {
  private final NodeNames names = new NodeNames();
  private final ArrayList<String> edgeEnds = new ArrayList<>();

  public void addEdge(String vertex1, String vertex2) {
    edgeEnds.add(names.apply(vertex1));
    edgeEnds.add(names.apply(vertex2));
  }

  /**
   * The links, in the order of the graph file. In an undirected run a pair of nodes can occur
   * twice, once in each order, as it can in the link file.
   *
   * @param directed which kind of edges to make of them: what the run was told
   */
  public List<Edge> getEdges(boolean directed) {
    return new EdgeList(edgeEnds, directed);
  }

  /** The names of all nodes, in no particular order. */
  public Set<String> getVertices() {
    return names.view();
  }

  /** Nothing more is to come: gives up spare room. Yields the names, for others to share. */
  NodeNames finish() {
    edgeEnds.trimToSize();
    return names;
  }
}
