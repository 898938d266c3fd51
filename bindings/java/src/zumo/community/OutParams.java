package zumo.community;

import java.util.Collections;
import java.util.List;
import java.util.NavigableSet;
import java.util.TreeMap;

/**
 * The results of a run. What the methods return that add nothing are unmodifiable views. Each node
 * name is held once, however often it occurs.
 */
public final class OutParams {
  /** How many communities have how many nodes. */
  public static final String SIZE_DIST = "sizeDist";
  /** How many communities overlap with how many others. */
  public static final String DEGREE_DIST = "degreeDist";
  /** How many pairs of communities share how many nodes. */
  public static final String OVERLAP_DIST = "overlapDist";
  /** How many nodes are in how many communities. */
  public static final String MEMBERSHIP_DIST = "membershipDist";

  static final List<String> DISTRIBUTIONS =
      List.of(SIZE_DIST, DEGREE_DIST, OVERLAP_DIST, MEMBERSHIP_DIST);
  private static final Extraction NOTHING = new Extraction();

  private final TreeMap<Integer, Extraction> extractions = new TreeMap<>();
  private InParams inParams = new InParams();
  private NodeNames names = new NodeNames();
  private final CliqueList cliques = new CliqueList(names);
  private boolean finished = true;

  /** Sets the network; to be called first, since everything else shares its names. */
  public void setInParams(InParams inParams) {
    this.inParams = inParams;
    names = new NodeNames(inParams.finish());
    cliques.share(names);
  }

  /**
   * Adds a finished clique.
   *
   * @param index its position, negative for an approximate clique
   * @throws IllegalArgumentException if it isn't the next position
   */
  public void addClique(Clique clique, int index) {
    if (Math.abs(index) != cliques.size())
      throw new IllegalArgumentException("clique " + index + " comes as number " + cliques.size());
    cliques.append(clique);
  }

  public void addVertexToCommunity(Community community, String name) {
    community.share(names);
    community.addVertex(name);
  }

  public void addCliqueToCommunity(Community community, int position) {
    community.addClique(position);
  }

  /** Adds a finished community, at its k, behind those that are there. */
  public void addCommunity(Community community) {
    community.share(names);
    community.finish();
    extraction(community.getK()).communities.add(community);
  }

  public void addCommunityGrafEdge(int k, int community1, int community2, int sharedNodes) {
    IntTable<CommunityOverlap> graph = extraction(k).communityGraph;
    graph.append(community1);
    graph.append(community2);
    graph.append(sharedNodes);
  }

  /**
   * Adds an entry to a distribution.
   *
   * @throws IllegalArgumentException if the name is none of the four
   */
  public void addDistribution(int k, int value, int count, String name) {
    IntTable<Frequency> distribution = extraction(k).distribution(name);
    distribution.append(value);
    distribution.append(count);
  }

  /** Tells that these are what a run has left that was stopped, failed or is still going on. */
  void setUnfinished() {
    finished = false;
  }

  /**
   * Whether the run was finished. If it was not, this is what it had written until then, and some k
   * may be missing.
   */
  public boolean isFinished() {
    return finished;
  }

  /** The parts that {@link ResultArrays} fills. */
  NodeNames names() {
    return names;
  }

  CliqueList cliques() {
    return cliques;
  }

  Extraction extraction(int k) {
    return extractions.computeIfAbsent(k, unused -> new Extraction());
  }

  private Extraction found(int k) {
    return extractions.getOrDefault(k, NOTHING);
  }

  /** The network; without links if the results were not loaded. */
  public InParams getInParams() {
    return inParams;
  }

  /** All cliques; the position in the list is the clique's number. */
  public List<Clique> getCliques() {
    return cliques;
  }

  /** The clique of a number as it stands in the files, with or without its minus sign. */
  public Clique getClique(int index) {
    return cliques.get(Math.abs(index));
  }

  /** Each k at which something was found, ascending. */
  public NavigableSet<Integer> getKs() {
    return Collections.unmodifiableNavigableSet(extractions.navigableKeySet());
  }

  /** The communities at this k; the position in the list is the community's number. */
  public List<Community> getCommunities(int k) {
    return Collections.unmodifiableList(found(k).communities);
  }

  /** The pairs of communities at this k that share nodes. */
  public List<CommunityOverlap> getCommunityGraph(int k) {
    return found(k).communityGraph;
  }

  /**
   * A distribution over the exact communities at this k, by ascending value.
   *
   * @throws IllegalArgumentException if the name is none of the four
   */
  public List<Frequency> getDistribution(int k, String name) {
    return found(k).distribution(name);
  }
}
