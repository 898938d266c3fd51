package zumo.community;

import java.util.AbstractList;
import java.util.List;
import java.util.RandomAccess;

/** Names, taken in pairs, as an unmodifiable list of edges that are made when asked for. */
final class EdgeList extends AbstractList<Edge> implements RandomAccess {
  private final List<String> ends;
  private final boolean directed;

  EdgeList(List<String> ends, boolean directed) {
    this.ends = ends;
    this.directed = directed;
  }

  @Override
  public Edge get(int index) {
    return new Edge(ends.get(2 * index), ends.get(2 * index + 1), directed);
  }

  @Override
  public int size() {
    return ends.size() / 2;
  }
}
