package zumo.community;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertSame;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.util.List;
import org.junit.Before;
import org.junit.Test;

/** Results that are put together in the order and manner in which the native library does it. */
public class ResultsTest {
  private final OutParams results = new OutParams();

  /** Native code makes a new string for every occurrence of a name. */
  private static String fresh(String name) {
    return new String(name);
  }

  private static Edge edge(String first, String second) {
    return new Edge(fresh(first), fresh(second), false);
  }

  private static Community community(int k, boolean approximate) {
    Community community = new Community(approximate);
    community.setSize(k);
    return community;
  }

  /** Two triangles, a-b-c and c-d-e, and what was found in them at k = 3; nothing at k = 4. */
  @Before
  public void fill() {
    InParams network = new InParams();
    for (String link : List.of("ab", "ac", "bc", "cd", "ce", "de"))
      network.addEdge(fresh(link.substring(0, 1)), fresh(link.substring(1)));
    results.setInParams(network);

    List<String> triangles = List.of("abc", "cde");
    for (int i = 0; i < 2; ++i) {
      Clique clique = new Clique(i == 1);
      triangles.get(i).chars().forEach(name -> clique.addVertex(Character.toString(name)));
      results.addClique(clique, -i);
    }
    for (int i = 0; i < 2; ++i) {
      Community community = community(3, i == 1);
      triangles.get(i).chars()
          .forEach(name -> results.addVertexToCommunity(community, Character.toString(name)));
      community.addEdge(edge("c", i == 0 ? "a" : "d"));
      results.addCliqueToCommunity(community, i);
      results.addCommunity(community);
    }
    results.addCommunityGrafEdge(3, 0, 1, 1);
    results.addDistribution(3, 3, 2, fresh("sizeDist"));
    results.addDistribution(3, 1, 4, fresh("membershipDist"));
    results.addDistribution(3, 2, 1, fresh("membershipDist"));
  }

  @Test
  public void communitiesHaveTheirMembersLinksAndCliques() {
    Community second = results.getCommunities(3).get(1);
    assertEquals(3, second.getK());
    assertTrue(second.isApproximate());
    assertFalse(results.getCommunities(3).get(0).isApproximate());
    assertEquals(List.of("c", "d", "e"), second.getVertices());
    assertEquals(List.of(edge("c", "d")), second.getEdges());
    assertEquals(List.of(1), second.getCliquePositions());
  }

  @Test
  public void aCliqueIsFoundByItsSignedAndItsAbsoluteIndex() {
    assertEquals(results.getCliques().get(1), results.getClique(1));
    assertEquals(results.getClique(1), results.getClique(-1));
    assertEquals(List.of("c", "d", "e"), results.getClique(-1).getVertices());
    assertTrue(results.getClique(1).isApproximate());
    assertFalse(results.getClique(0).isApproximate());
    assertThrows(IllegalArgumentException.class, () -> results.addClique(new Clique(false), 3));
  }

  @Test
  public void graphAndDistributionsKeepEveryColumnApart() {
    assertEquals(List.of(new CommunityOverlap(0, 1, 1)), results.getCommunityGraph(3));
    assertEquals(List.of(new Frequency(3, 2)), results.getDistribution(3, OutParams.SIZE_DIST));
    assertEquals(List.of(new Frequency(1, 4), new Frequency(2, 1)),
        results.getDistribution(3, OutParams.MEMBERSHIP_DIST));
    assertEquals(List.of(), results.getDistribution(3, OutParams.DEGREE_DIST));
    assertThrows(IllegalArgumentException.class, () -> results.getDistribution(3, "size"));
  }

  @Test
  public void aKWithoutResultsIsEmptyAndNotListed() {
    assertEquals(List.of(), results.getCommunities(4));
    assertEquals(List.of(), results.getCommunityGraph(4));
    assertEquals(List.of(), results.getDistribution(4, OutParams.SIZE_DIST));
    assertEquals(List.of(3), List.copyOf(results.getKs()));
  }

  @Test
  public void everyNameIsHeldOnce() {
    String c = results.getInParams().getEdges(false).get(1).getVertex2();
    assertEquals("c", c);
    assertSame(c, results.getClique(0).getVertices().get(2));
    assertSame(c, results.getClique(1).getVertices().get(0));
    assertSame(c, results.getCommunities(3).get(1).getVertices().get(0));
    assertSame(c, results.getCommunities(3).get(0).getEdges().get(0).getVertex1());
  }

  @Test
  public void namesAreSharedWhicheverPartOfACommunityComesFirst() {
    Community edgesFirst = community(3, false);
    edgesFirst.addEdge(edge("a", "d"));
    results.addCommunity(edgesFirst);
    String a = results.getClique(0).getVertices().get(0);
    assertSame(a, edgesFirst.getEdges().get(0).getVertex1());
  }

  @Test
  public void viewsCannotBeChanged() {
    Community community = results.getCommunities(3).get(0);
    for (List<?> view : List.of(results.getCliques(), results.getCommunities(3),
        results.getCommunityGraph(3), results.getDistribution(3, OutParams.SIZE_DIST),
        results.getInParams().getEdges(true), results.getClique(0).getVertices(),
        community.getVertices(), community.getEdges(), community.getCliquePositions()))
      assertThrows(UnsupportedOperationException.class, () -> view.remove(0));
    assertThrows(UnsupportedOperationException.class, () -> results.getKs().clear());
    assertThrows(UnsupportedOperationException.class,
        () -> results.getInParams().getVertices().clear());
  }

  @Test
  public void onlyUndirectedEdgesAreEqualInEitherOrder() {
    assertEquals(edge("x", "y"), edge("y", "x"));
    assertEquals(edge("x", "y").hashCode(), edge("y", "x").hashCode());
    assertFalse(new Edge("x", "y", true).equals(new Edge("y", "x", true)));
    assertFalse(new Edge("x", "y", true).equals(edge("x", "y")));
    Community directed = community(3, false);
    directed.addEdge(new Edge("x", "y", true));
    assertThrows(IllegalArgumentException.class, () -> directed.addEdge(edge("y", "z")));
  }

  /** Without sharing, the names alone would need more than twice the heap of this test. */
  @Test
  public void bigResultsFitASmallHeap() {
    int members = 100_000;
    for (int k = 12; k > 3; --k) {
      Community community = community(k, false);
      for (int i = 0; i < members; ++i) results.addVertexToCommunity(community, "node" + i);
      for (int i = 1; i < members; ++i)
        community.addEdge(new Edge("node" + (i - 1), "node" + i, false));
      for (int i = 0; i < members; ++i) results.addCliqueToCommunity(community, i);
      results.addCommunity(community);
    }
    for (int i = 0; i < members; ++i) results.addCommunityGrafEdge(4, i, i + 1, i + 2);

    assertEquals(List.of(3, 4, 5, 6, 7, 8, 9, 10, 11, 12), List.copyOf(results.getKs()));
    int last = members - 1;
    Community big = results.getCommunities(4).get(0);
    assertEquals("node" + last, big.getVertices().get(last));
    assertEquals(edge("node" + last, "node" + (last - 1)), big.getEdges().get(last - 1));
    assertEquals(last, (int) big.getCliquePositions().get(last));
    assertEquals(new CommunityOverlap(last, last + 1, last + 2),
        results.getCommunityGraph(4).get(last));
  }
}
