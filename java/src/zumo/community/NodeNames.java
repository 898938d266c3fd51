package zumo.community;

import java.util.Collections;
import java.util.HashMap;
import java.util.Map;
import java.util.Set;
import java.util.function.UnaryOperator;

/** Holds each node name once: yields, for any equal string, the one that came first. */
final class NodeNames implements UnaryOperator<String> {
  private final Map<String, String> names = new HashMap<>();

  @Override
  public String apply(String name) {
    String first = names.putIfAbsent(name, name);
    return first != null ? first : name;
  }

  Set<String> view() {
    return Collections.unmodifiableSet(names.keySet());
  }
}
