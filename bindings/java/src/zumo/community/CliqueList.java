package zumo.community;

import java.util.AbstractList;
import java.util.ArrayList;
import java.util.BitSet;
import java.util.Collections;
import java.util.List;
import java.util.Objects;
import java.util.RandomAccess;

/**
 * The nodes of all cliques, one clique behind the other. To others it is an unmodifiable list of
 * cliques that are made when asked for.
 */
final class CliqueList extends AbstractList<Clique> implements RandomAccess {
  private final ArrayList<String> vertices = new ArrayList<>();
  private final IntTable<Integer> ends = IntTable.ofInts();
  private final BitSet approximate = new BitSet();

  void append(Clique clique, NodeNames names) {
    approximate.set(size(), clique.isApproximate());
    for (String name : clique.getVertices()) vertices.add(names.apply(name));
    ends.append(vertices.size());
  }

  @Override
  public Clique get(int index) {
    Objects.checkIndex(index, size());
    List<String> own = vertices.subList(index == 0 ? 0 : ends.get(index - 1), ends.get(index));
    return new Clique(approximate.get(index), Collections.unmodifiableList(own));
  }

  @Override
  public int size() {
    return ends.size();
  }
}
