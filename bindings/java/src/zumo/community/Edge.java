package zumo.community;

/** A link between two nodes; a directed one goes from the first to the second. */
public final class Edge {
  private final String vertex1;
  private final String vertex2;
  private final boolean directed;

  public Edge(String vertex1, String vertex2, boolean directed) {
    this.vertex1 = vertex1;
    this.vertex2 = vertex2;
    this.directed = directed;
  }

  /** Makes edges of pairs of numbers of names. */
  static IntTable.RowView<Edge> view(NodeNames names, boolean directed) {
    return (values, begin) ->
        new Edge(names.get(values[begin]), names.get(values[begin + 1]), directed);
  }

  public String getVertex1() {
    return vertex1;
  }

  public String getVertex2() {
    return vertex2;
  }

  public boolean isDirected() {
    return directed;
  }

  /** Equal are edges of one kind between the same nodes; undirected ones in either order. */
  @Override
  public boolean equals(Object other) {
    if (!(other instanceof Edge edge) || directed != edge.directed) return false;
    return joins(edge.vertex1, edge.vertex2) || (!directed && joins(edge.vertex2, edge.vertex1));
  }

  private boolean joins(String first, String second) {
    return vertex1.equals(first) && vertex2.equals(second);
  }

  @Override
  public int hashCode() {
    int hash1 = vertex1.hashCode();
    int hash2 = vertex2.hashCode();
    return 31 * (hash1 + hash2) + hash1 * hash2;
  }

  @Override
  public String toString() {
    return vertex1 + (directed ? " -> " : " - ") + vertex2;
  }
}
