package zumo.community;

import java.util.AbstractList;
import java.util.BitSet;
import java.util.Objects;
import java.util.RandomAccess;

/**
 * The nodes of all cliques, one clique behind the other. To others it is an unmodifiable list of
 * cliques that are made when asked for.
 */
final class CliqueList extends AbstractList<Clique> implements RandomAccess {
  private NodeNames names;
  private final IntTable<Integer> nodes = IntTable.ofInts();
  private final IntTable<Integer> ends = IntTable.ofInts();
  private final BitSet approximate = new BitSet();

  CliqueList(NodeNames names) {
    this.names = names;
  }

  /** From now on holds names in common with others. */
  void share(NodeNames common) {
    NodeNames own = names;
    nodes.replaceInts(number -> common.number(own.get(number)));
    names = common;
  }

  void append(Clique clique) {
    approximate.set(size(), clique.isApproximate());
    for (String name : clique.getVertices()) nodes.append(names.number(name));
    ends.append(nodes.ints());
  }

  /** Takes all cliques at once; `approximatePositions` ascend. */
  void set(int[] approximatePositions, int[] allEnds, int[] allNodes) {
    for (int position : approximatePositions) approximate.set(position);
    ends.share(allEnds);
    nodes.share(allNodes);
  }

  @Override
  public Clique get(int index) {
    Objects.checkIndex(index, size());
    int begin = index == 0 ? 0 : ends.value(index - 1);
    return new Clique(approximate.get(index), nodes.part(
        1, (values, at) -> names.get(values[at]), begin, ends.value(index)));
  }

  @Override
  public int size() {
    return ends.size();
  }
}
