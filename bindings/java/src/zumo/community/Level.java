package zumo.community;

import java.util.Arrays;
import java.util.List;

/** The communities at one k, as an {@link Analysis} yields them. They are numbered from 0. */
public final class Level {
  private final String[] names;
  private final int k;
  private final int exactCount;
  private final IntRows members;
  private final IntRows cliques;
  private final IntRows links;
  private final IntTable<CommunityOverlap> overlaps = CommunityOverlap.table();
  private final Extraction distributions = new Extraction();

  /** For native code: starts and values of rows, overlaps in threes, distributions in pairs. */
  Level(String[] names, int k, int exactCount, int[] memberStarts, int[] members,
      int[] cliqueStarts, int[] cliques, int[] linkStarts, int[] links, int[] overlaps,
      int[] sizes, int[] degrees, int[] sharedNodes, int[] memberships) {
    this.names = names;
    this.k = k;
    this.exactCount = exactCount;
    this.members = new IntRows(memberStarts, members);
    this.cliques = new IntRows(cliqueStarts, cliques);
    this.links = new IntRows(linkStarts, links);
    this.overlaps.share(overlaps);
    int[][] pairs = {sizes, degrees, sharedNodes, memberships};
    for (int i = 0; i < pairs.length; ++i)
      distributions.distribution(OutParams.DISTRIBUTIONS.get(i)).share(pairs[i]);
  }

  public int k() {
    return k;
  }

  /** How many communities there are. */
  public int size() {
    return members.size();
  }

  /** How many of them have no approximate clique inside; the others stand behind them. */
  public int exactCount() {
    return exactCount;
  }

  /** By community: its nodes, ascending. */
  public IntRows members() {
    return members;
  }

  /** The names of the nodes of a community. */
  public List<String> names(int community) {
    return Arrays.stream(members.row(community)).mapToObj(node -> names[node]).toList();
  }

  /** By community: its cliques, as places in {@link Analysis#cliques}; none with intensity. */
  public IntRows cliques() {
    return cliques;
  }

  /** By community: its links, two nodes each; no rows unless {@link Options#links} asked. */
  public IntRows links() {
    return links;
  }

  /** The pairs of communities that share nodes. */
  public List<CommunityOverlap> overlaps() {
    return overlaps;
  }

  /**
   * A distribution over all communities, by ascending value.
   *
   * @param name {@link OutParams#SIZE_DIST}, say
   * @throws IllegalArgumentException if the name is none of the four
   */
  public List<Frequency> distribution(String name) {
    return distributions.distribution(name);
  }
}
