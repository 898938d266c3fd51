package zumo.community;

import java.util.Collections;
import java.util.HashSet;
import java.util.List;
import java.util.Set;

/** The network: the links that the run took from its link file. */
public final class InParams {
  private final NodeNames names = new NodeNames();
  private final IntTable<Integer> edgeEnds = IntTable.ofInts();
  /** Made when asked for. */
  private Set<String> vertices;

  public void addEdge(String vertex1, String vertex2) {
    edgeEnds.append(names.number(vertex1));
    edgeEnds.append(names.number(vertex2));
    vertices = null;
  }

  /** Takes all links at once, two numbers of names each. */
  void setEdges(String[] allNames, int[] ends) {
    names.set(allNames);
    edgeEnds.share(ends);
  }

  /**
   * The links, in the order of the graph file. In an undirected run a pair of nodes can occur
   * twice, once in each order, as it can in the link file.
   *
   * @param directed which kind of edges to make of them: what the run was told
   */
  public List<Edge> getEdges(boolean directed) {
    return edgeEnds.part(2, Edge.view(names, directed), 0, edgeEnds.ints());
  }

  /** The names of all nodes, in no particular order. */
  public Set<String> getVertices() {
    if (vertices == null) {
      Set<String> found = new HashSet<>();
      for (int i = 0; i < edgeEnds.ints(); ++i) found.add(names.get(edgeEnds.value(i)));
      vertices = Collections.unmodifiableSet(found);
    }
    return vertices;
  }

  /** Nothing more is to come: gives up spare room. Yields the names, for others to share. */
  NodeNames finish() {
    edgeEnds.trimToSize();
    return names;
  }
}
