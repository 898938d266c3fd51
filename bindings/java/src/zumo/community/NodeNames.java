package zumo.community;

import java.util.Arrays;
import java.util.HashMap;
import java.util.Map;

/**
 * Numbers node names and holds each once. Names can stand on top of others: where those hold an
 * equal string, it is shared.
 */
final class NodeNames {
  private static final String[] EMPTY = {};

  private final NodeNames below;
  private String[] names = EMPTY;
  private int used;
  /** Made when a name is looked up for the first time. */
  private Map<String, Integer> numbers;

  NodeNames() {
    this(null);
  }

  NodeNames(NodeNames below) {
    this.below = below;
  }

  /** Takes all names at once, by number; the array is not copied. To be called on an empty one. */
  void set(String[] all) {
    names = all;
    used = all.length;
    for (int i = 0; i < used; ++i) names[i] = shared(names[i]);
  }

  /** The number of a name; a name not met before gets the next one. */
  int number(String name) {
    Integer known = numbers().putIfAbsent(name, used);
    if (known != null) return known;
    if (used == names.length) names = Arrays.copyOf(names, Math.max(16, used + used / 2));
    names[used] = shared(name);
    return used++;
  }

  String get(int number) {
    return names[number];
  }

  private String shared(String name) {
    Integer held = below != null ? below.numbers().get(name) : null;
    return held != null ? below.names[held] : name;
  }

  private Map<String, Integer> numbers() {
    if (numbers == null) {
      numbers = new HashMap<>();
      for (int i = 0; i < used; ++i) numbers.putIfAbsent(names[i], i);
    }
    return numbers;
  }
}
