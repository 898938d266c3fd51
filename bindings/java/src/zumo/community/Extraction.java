package zumo.community;

import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/** What was found at one k. */
final class Extraction {
  final List<Community> communities = new ArrayList<>();
  final IntTable<CommunityOverlap> communityGraph = CommunityOverlap.table();
  private final Map<String, IntTable<Frequency>> distributions = new HashMap<>();

  Extraction() {
    for (String name : OutParams.DISTRIBUTIONS) distributions.put(name, Frequency.table());
  }

  IntTable<Frequency> distribution(String name) {
    IntTable<Frequency> distribution = distributions.get(name);
    if (distribution == null) throw new IllegalArgumentException("no distribution \"" + name + '"');
    return distribution;
  }
}
