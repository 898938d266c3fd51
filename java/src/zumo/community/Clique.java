package zumo.community;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/** A maximal clique, or what stands in for the cliques that a time limit has cut off. */
public final class Clique {
  private final boolean approximate;
  private final ArrayList<String> vertices = new ArrayList<>();

  public Clique(boolean approximate) {
    this.approximate = approximate;
  }

  public void addVertex(String name) {
    vertices.add(name);
  }

  /** Whether its nodes need not all be linked with each other. */
  public boolean isApproximate() {
    return approximate;
  }

  /** The names of its nodes. */
  public List<String> getVertices() {
    return Collections.unmodifiableList(vertices);
  }

  /** Nothing more is to come: gives up spare room and names that others hold too. */
  void finish(NodeNames names) {
    vertices.replaceAll(names);
    vertices.trimToSize();
  }

  @Override
  public String toString() {
    return (approximate ? "approximate clique " : "clique ") + vertices;
  }
}
