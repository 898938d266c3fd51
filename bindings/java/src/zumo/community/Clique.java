package zumo.community;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/** A maximal clique, or what stands in for the cliques that a time limit has cut off. */
public final class Clique {
  private final boolean approximate;
  private final List<String> vertices;

  public Clique(boolean approximate) {
    this(approximate, new ArrayList<>());
  }

  Clique(boolean approximate, List<String> vertices) {
    this.approximate = approximate;
    this.vertices = vertices;
  }

  public void addVertex(String name) {
    vertices.add(name);
  }

  /**
   * Whether its nodes need not all be linked with each other. The clique at position 0 always
   * counts as exact, since only the sign of a position tells.
   */
  public boolean isApproximate() {
    return approximate;
  }

  /** The names of its nodes. */
  public List<String> getVertices() {
    return Collections.unmodifiableList(vertices);
  }

  /** Equal are cliques of one kind with the same nodes in the same order. */
  @Override
  public boolean equals(Object other) {
    return other instanceof Clique clique && approximate == clique.approximate
        && vertices.equals(clique.vertices);
  }

  @Override
  public int hashCode() {
    return vertices.hashCode();
  }

  @Override
  public String toString() {
    return (approximate ? "approximate clique " : "clique ") + vertices;
  }
}
