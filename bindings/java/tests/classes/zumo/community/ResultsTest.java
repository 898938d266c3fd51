package zumo.community;

import static org.junit.Assert.*;

import java.util.List;
import org.junit.*;

/** Results that are put together in the order and manner in which the native library does it. */
public class ResultsTest {
  private final OutParams results = new OutParams();

  /** Of new strings, as native code may make one for every occurrence of a name. */
  private static Edge edge(String first, String second) {
    return new Edge(new String(first), new String(second), false);
  }

  private Community addCommunity(boolean approximate, String members, Edge edge, int clique) {
    Community community = new Community(approximate);
    community.setSize(3);
    for (String name : members.split("")) results.addVertexToCommunity(community, name);
    community.addEdge(edge);
    results.addCliqueToCommunity(community, clique);
    results.addCommunity(community);
    return community;
  }

  /** Two triangles, a-b-c and c-d-e, and what was found in them at k = 3; nothing at k = 4. */
  @Before
  public void fill() {
    InParams network = new InParams();
    for (String link : List.of("ab", "ac", "bc", "cd", "ce", "de"))
      network.addEdge(link.substring(0, 1), link.substring(1));
    results.setInParams(network);
    for (String names : List.of("abc", "cde")) {
      Clique clique = new Clique(names.equals("cde"));
      for (String name : names.split("")) clique.addVertex(name);
      results.addClique(clique, names.equals("cde") ? -1 : 0);
    }
    addCommunity(false, "abc", edge("c", "a"), 0);
    addCommunity(true, "cde", edge("c", "d"), 1);
    results.addCommunityGrafEdge(3, 0, 1, 1);
    results.addDistribution(3, 3, 2, new String("sizeDist"));
  }

  @Test
  public void cliquesAreFoundByTheirSignedAndTheirAbsoluteIndex() {
    assertEquals(results.getCliques().get(1), results.getClique(1));
    assertEquals("approximate clique [c, d, e]", results.getClique(-1).toString());
    assertEquals("clique [a, b, c]", results.getClique(0).toString());
    assertThrows(IllegalArgumentException.class, () -> results.addClique(new Clique(false), 3));
  }

  @Test
  public void nothingIsFoundAtAnotherKOrNameAndNothingIsListedForIt() {
    assertEquals(List.of(), results.getCommunities(4));
    assertEquals(List.of(), results.getCommunityGraph(4));
    assertEquals(List.of(), results.getDistribution(4, OutParams.SIZE_DIST));
    assertEquals(List.of(), results.getDistribution(3, OutParams.DEGREE_DIST));
    assertThrows(IllegalArgumentException.class, () -> results.getDistribution(3, "size"));
    assertEquals(List.of(3), List.copyOf(results.getKs()));
  }

  @Test
  public void everyNameIsHeldOnce() {
    String c = results.getInParams().getEdges(false).get(1).getVertex2();
    assertSame(c, results.getClique(0).getVertices().get(2));
    assertSame(c, results.getClique(1).getVertices().get(0));
    Community second = results.getCommunities(3).get(1);
    assertSame(c, second.getVertices().get(0));
    assertSame(c, second.getEdges().get(0).getVertex1());
    Community edgesFirst = new Community(false);
    edgesFirst.addEdge(edge("c", "a"));
    results.addCommunity(edgesFirst);
    assertSame(c, edgesFirst.getEdges().get(0).getVertex1());
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
    assertNotEquals(new Edge("x", "y", true), new Edge("y", "x", true));
    assertNotEquals(new Edge("x", "y", true), edge("x", "y"));
    assertThrows(IllegalArgumentException.class,
        () -> results.getCommunities(3).get(0).addEdge(new Edge("y", "z", true)));
  }
}
