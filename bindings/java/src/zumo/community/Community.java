package zumo.community;

import java.util.List;

/** A community at one k. */
public final class Community {
  private final boolean approximate;
  private NodeNames names = new NodeNames();
  private int k;
  private boolean directed;
  private final IntTable<String> vertices =
      new IntTable<>(1, (values, begin) -> names.get(values[begin]));
  private final IntTable<Edge> edges = new IntTable<>(2, (values, begin) ->
      new Edge(names.get(values[begin]), names.get(values[begin + 1]), directed));
  private final IntTable<Integer> cliquePositions = IntTable.ofInts();

  public Community(boolean approximate) {
    this.approximate = approximate;
  }

  /** For the parts of a community that come as ranges of arrays. */
  Community(boolean approximate, int k, boolean directed, NodeNames names) {
    this.approximate = approximate;
    this.k = k;
    this.directed = directed;
    this.names = names;
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
    if (!edges.isEmpty() && directed != edge.isDirected())
      throw new IllegalArgumentException("directed and undirected edges in one community");
    directed = edge.isDirected();
    edges.append(names.number(edge.getVertex1()));
    edges.append(names.number(edge.getVertex2()));
  }

  void addVertex(String name) {
    vertices.append(names.number(name));
  }

  void addClique(int position) {
    cliquePositions.append(position);
  }

  /** From now on holds names in common with others. */
  void share(NodeNames common) {
    if (names == common) return;
    NodeNames own = names;
    vertices.replaceInts(number -> common.number(own.get(number)));
    edges.replaceInts(number -> common.number(own.get(number)));
    names = common;
  }

  /** Nothing more is to come: gives up spare room. */
  void finish() {
    vertices.trimToSize();
    edges.trimToSize();
    cliquePositions.trimToSize();
  }

  IntTable<?> vertices() {
    return vertices;
  }

  IntTable<?> edges() {
    return edges;
  }

  IntTable<?> cliquePositions() {
    return cliquePositions;
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
    return vertices;
  }

  /** The links between its members. */
  public List<Edge> getEdges() {
    return edges;
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
