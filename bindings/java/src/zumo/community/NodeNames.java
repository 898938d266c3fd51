package zumo.community;

import java.util.Collections;
import java.util.HashMap;
import java.util.Map;
import java.util.Set;
import java.util.function.UnaryOperator;

/**
 * Holds each node name once: yields, for any equal string, the one that came first. Names can stand
 * on top of others: what those hold is shared, and nothing is added to them.
 */
final class NodeNames implements UnaryOperator<String> {
  private final Map<String, String> names = new HashMap<>();
  private final Map<String, String> below;

  NodeNames() {
    below = Map.of();
  }

  NodeNames(NodeNames below) {
    this.below = below.names;
  }

  @Override
  public String apply(String name) {
    String first = below.get(name);
    if (first == null) first = names.putIfAbsent(name, name);
    return first != null ? first : name;
  }

  Set<String> view() {
    return Collections.unmodifiableSet(names.keySet());
  }
}
