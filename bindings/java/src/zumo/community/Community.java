package zumo.community;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/** A community at one k. */
public final class Community {
  private final boolean approximate;
  private final ArrayList<String> vertices = new ArrayList<>();
  private final ArrayList<String> edgeEnds = new ArrayList<>();
  private final IntTable<Integer> cliquePositions = IntTable.ofInts();
  private int k;
  private boolean directed;
  private NodeNames names = new NodeNames();

  public Community(boolean approximate) {
    this.approximate = approximate;
  }

  /** Sets k, which is not the number of members. */
  public void setSize(int k) {
    this.k = k;
  }

  /**
   * Adds a link between two members.
   *
   * @throws IllegalArgumentException if earlier ones are directed and this one isn't, or vice versa
   */
  public void addEdge(Edge edge) {
    if (!edgeEnds.isEmpty() && directed != edge.isDirected())
      throw new IllegalArgumentException("directed and undirected edges in one community");
    directed = edge.isDirected();
    edgeEnds.add(names.apply(edge.getVertex1()));
    edgeEnds.add(names.apply(edge.getVertex2()));
  }

  void addVertex(String name) {
    vertices.add(names.apply(name));
  }

  void addClique(int position) {
    cliquePositions.append(position);
  }

  /** From now on holds names in common with others. */
  void share(NodeNames common) {
    if (names == common) return;
    names = common;
    vertices.replaceAll(common);
    edgeEnds.replaceAll(common);
  }

  /** Nothing more is to come: gives up spare room. */
  void finish() {
    vertices.trimToSize();
    edgeEnds.trimToSize();
    cliquePositions.trimToSize();
  }

  /** The k of the clique percolation that found it. */
  public int getK() {
    return k;
  }

  /**
   * Whether an approximate clique is in it. The community at position 0 always counts as exact,
   * since only the sign of a position tells.
   */
  public boolean isApproximate() {
    return approximate;
  }

  /** The names of its members. */
  public List<String> getVertices() {
    return Collections.unmodifiableList(vertices);
  }

  /** The links between its members. */
  public List<Edge> getEdges() {
    return new EdgeList(edgeEnds, directed);
  }

  /** Its cliques, as positions for {@link OutParams#getClique}; none in an intensity run. */
  public List<Integer> getCliquePositions() {
    return cliquePositions;
  }

  @Override
  public String toString() {
    return (approximate ? "approximate community at k=" : "community at k=") + k + " " + vertices;
  }
}
