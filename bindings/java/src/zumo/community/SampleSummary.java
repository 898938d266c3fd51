package zumo.community;

import java.util.Collection;
import java.util.HashSet;
import java.util.List;

/** What was found, as a short table. */
final class SampleSummary {
  private static final String ROW = "  %6s  %11s  %8s%n";

  private SampleSummary() {}

  static String of(OutParams results) {
    List<Clique> cliques = results.getCliques();
    long approximate = cliques.stream().filter(Clique::isApproximate).count();
    InParams network = results.getInParams();
    StringBuilder table = new StringBuilder(String.format("%n  nodes %d, links %d, cliques %d%s%n",
        network.getVertices().size(), countOf(network.getEdges(isDirected(results))),
        cliques.size(), approximate > 0 ? " (" + approximate + " of them approximate)" : ""));
    if (results.getKs().isEmpty()) return table.toString();
    table.append(String.format("%n" + ROW, "k", "communities", "largest"));
    for (int k : results.getKs().descendingSet()) {
      List<Community> communities = results.getCommunities(k);
      table.append(String.format(ROW, k, communities.size(), largest(communities)));
    }
    return table.toString();
  }

  /** Only the edges of communities tell. */
  private static boolean isDirected(OutParams results) {
    return results.getKs().stream().map(results::getCommunities).flatMap(Collection::stream)
        .map(Community::getEdges).flatMap(Collection::stream).limit(1).anyMatch(Edge::isDirected);
  }

  /** An undirected link counts once, even if the link file gives it in both orders. */
  private static int countOf(List<Edge> edges) {
    return new HashSet<>(edges).size();
  }

  private static int largest(List<Community> communities) {
    return communities.stream().map(Community::getVertices).mapToInt(List::size).max().orElse(0);
  }
}
