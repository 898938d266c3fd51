package zumo.community;

/**
 * Takes results in arrays, as native code hands them over, instead of one by one. Rows stand one
 * behind the other, and an array of ends tells where each of them ends; what is approximate is told
 * by its positions. Nodes are numbers of names, which may come last. No array is copied.
 */
final class ResultArrays {
  private final OutParams results = new OutParams();

  /** The network: the names by number, and two numbers for each link. */
  void network(String[] names, int[] ends) {
    InParams network = new InParams();
    network.setEdges(names, ends);
    results.setInParams(network);
  }

  /** The names of what comes beside the network. */
  void names(String[] names) {
    results.names().set(names);
  }

  void cliques(int[] approximate, int[] ends, int[] nodes) {
    results.cliques().set(approximate, ends, nodes);
  }

  /** The communities at a k: their nodes, links of two nodes each, and cliques. */
  void communities(int k, boolean directed, int[] approximate, int[] nodeEnds, int[] nodes,
      int[] linkEnds, int[] links, int[] cliqueEnds, int[] cliques) {
    int approximateSeen = 0;
    for (int i = 0; i < nodeEnds.length; ++i) {
      boolean isApproximate =
          approximateSeen < approximate.length && approximate[approximateSeen] == i;
      if (isApproximate) ++approximateSeen;
      Community community = new Community(isApproximate, k, directed, results.names());
      share(community.vertices(), nodeEnds, nodes, i);
      share(community.edges(), linkEnds, links, i);
      share(community.cliquePositions(), cliqueEnds, cliques, i);
      results.extraction(k).communities.add(community);
    }
  }

  private static void share(IntTable<?> part, int[] ends, int[] values, int row) {
    if (ends.length > 0) part.share(values, row == 0 ? 0 : ends[row - 1], ends[row]);
  }

  /** The community graph at a k: two communities and the nodes that they share, in threes. */
  void communityGraph(int k, int[] overlaps) {
    if (overlaps.length > 0) results.extraction(k).communityGraph.share(overlaps);
  }

  /** A distribution at a k, in pairs of a value and its count. */
  void distribution(int k, String name, int[] pairs) {
    if (pairs.length > 0) results.extraction(k).distribution(name).share(pairs);
  }

  OutParams results() {
    return results;
  }
}
