import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import java.util.stream.*;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import zumo.community.*;
import zumo.community.VorlaneException.Kind;

/** What is found in memory is what a run writes, and what fails tells the kind and the place. */
public class AnalysisTest extends Fixture {
  private final String choir = example("choir.txt");

  private void check(Analysis analysis, OutParams expected) throws Exception {
    try (analysis) {
      String[] names = analysis.names();
      IntRows cliques = analysis.cliques();
      assertEquals(expected.getCliques().stream().map(Clique::getVertices).toList(),
          Stream.of(cliques.toArrays()).map(row -> named(row, names)).toList());
      assertEquals(
          expected.getCliques().stream().filter(clique -> !clique.isApproximate()).count(),
          analysis.exactCliqueCount());
      Set<Integer> ks = new TreeSet<>();
      for (Level level = analysis.next(); level != null; level = analysis.next()) {
        ks.add(level.k());
        check(level, names, expected);
      }
      assertEquals(expected.getKs(), ks);
      assertNull(analysis.next());
    }
  }

  private static void check(Level level, String[] names, OutParams expected) {
    List<Community> communities = expected.getCommunities(level.k());
    assertEquals(communities.size(), level.size());
    for (int i = 0; i < level.size(); ++i) {
      Community community = communities.get(i);
      assertEquals(community.getVertices(), level.names(i));
      assertEquals(community.getVertices(), named(level.members().row(i), names));
      assertEquals(community.isApproximate(), i >= Math.max(1, level.exactCount()));
      if (level.cliques().size() > 0)
        assertEquals(community.getCliquePositions(), boxed(level.cliques().row(i)));
      assertEquals(level.links().size() > 0 ? 2 * community.getEdges().size() : 0,
          level.links().size() > 0 ? level.links().sizeOf(i) : 0);
    }
    if (level.exactCount() < level.size()) return;  // a run tells numbers of the exact ones
    assertEquals(expected.getCommunityGraph(level.k()), level.overlaps());
    for (String name : List.of(OutParams.SIZE_DIST, OutParams.DEGREE_DIST, OutParams.OVERLAP_DIST,
        OutParams.MEMBERSHIP_DIST))
      assertEquals(expected.getDistribution(level.k(), name), level.distribution(name));
  }

  private static List<String> named(int[] nodes, String[] names) {
    return IntStream.of(nodes).mapToObj(node -> names[node]).toList();
  }

  private static List<Integer> boxed(int[] values) {
    return IntStream.of(values).boxed().toList();
  }

  private Run run(String links) throws Exception {
    return new Run(links, newDir());
  }

  @Test
  public void ofEachKindAgreesWithARun() throws Exception {
    for (int jobs : new int[] {0, 1, 3}) {
      check(new Analysis(choir, new Options().links().jobs(jobs)), run(choir).findAndLoad());
    }
    check(new Analysis(choir, new Options().lowerThreshold(4).upperThreshold(12)),
        run(choir).lowerThreshold(4).upperThreshold(12).findAndLoad());
    String advice = example("advice.txt");
    check(new Analysis(advice, new Options().directed().links()),
        run(advice).directed().findAndLoad());
    check(new Analysis(choir, new Options().intensityThreshold(6).links()),
        run(choir).intensityThreshold(6).findAndLoad());
    String hard = hardLinks(30);
    check(new Analysis(hard, new Options().timeLimit(100)), run(hard).findAndLoad());
    try (Analysis limited = new Analysis(hard, new Options().timeLimit(1e-6))) {
      assertTrue(limited.exactCliqueCount() < limited.cliques().size());
    }
    try (Analysis single = new Analysis(choir, new Options().singleK(4))) {
      assertEquals(4, single.next().k());
      assertNull(single.next());
    }
  }

  @Test
  public void ofATableThatIsToldByOptions() throws Exception {
    String table = write("table", "id;to;by\n7;a b;c\n8;c;d\n9;d;a b\n");
    try (Analysis analysis =
        new Analysis(table, new Options().format("csv").columns("by", "2"))) {
      assertEquals(Set.of("a b", "c", "d"), Set.copyOf(analysis.next().names(0)));
    }
    check(Kind.PARAMETERS, "no format 'cvs'",
        () -> new Analysis(table, new Options().format("cvs")).next());
    assertThrows(NullPointerException.class, () -> new Options().columns("by", null));
  }

  /** Two triangles with a common side; node 5 of 5 has no link. */
  @Test
  public void ofArraysAndTheirNumbers() throws Exception {
    int[] from = {4, 2, 3, 2, 3};
    int[] to = {2, 3, 4, 1, 1};
    double[] weights = {1, 1, 1, 9, 9};
    try (Analysis analysis = new Analysis(5, from, to, null, new Options())) {
      String[] names = analysis.names();
      assertEquals(List.of("", "1", "2", "3", "4"), Stream.of(names).sorted().toList());
      Level level = analysis.next();
      assertEquals(Set.of("1", "2", "3", "4"), Set.copyOf(level.names(0)));
      assertEquals(List.of(new Frequency(4, 1)), level.distribution(OutParams.SIZE_DIST));
    }
    try (Analysis heavy = new Analysis(5, from, to, weights, new Options().intensityThreshold(2))) {
      assertEquals(Set.of("1", "2", "3"), Set.copyOf(heavy.next().names(0)));
    }
    try (Analysis nothing = new Analysis(0, new int[0], new int[0], null, new Options())) {
      assertNull(nothing.next());
      assertEquals(0, nothing.cliques().size());
    }
  }

  private static VorlaneException check(Kind kind, String text, ThrowingRunnable call) {
    VorlaneException failure = assertThrows(VorlaneException.class, call);
    assertTrue(failure.getMessage(), failure.getMessage().contains(text));
    assertEquals(kind, failure.getKind());
    return failure;
  }

  @Test
  public void failuresTellKindAndPlace() throws Exception {
    String wrong = write("wrong", "a b 1\nb c heavy\n");
    try (Analysis analysis = new Analysis(wrong, new Options().lowerThreshold(0))) {
      VorlaneException failure =
          check(Kind.INPUT, "where a number as weight was expected", analysis::next);
      assertEquals(wrong, failure.getSource());
      assertEquals("2:5", failure.getLine() + ":" + failure.getColumn());
    }
    try (Analysis analysis = new Analysis("nowhere", new Options())) {
      check(Kind.INPUT, "nowhere", analysis::cliques);
    }
    check(Kind.PARAMETERS, "undirected",
        () -> new Analysis(choir, new Options().directed().intensityThreshold(1)));
    check(Kind.PARAMETERS, "k must be", () -> new Analysis(choir, new Options().singleK(-2)));
    assertThrows(IllegalArgumentException.class,
        () -> new Analysis(choir, new Options().timeLimit(Double.NaN)));
    assertThrows(IllegalArgumentException.class, () -> new Options().jobs(-1));
    check(Kind.PARAMETERS, "workers", () -> new Analysis(choir, new Options().jobs(5000)));
    int[] one = {1};
    check(Kind.INPUT, "Link 0", () -> new Analysis(1, one, new int[] {2}, null, new Options()));
    check(Kind.INPUT, "", () -> new Analysis(3, one, new int[0], null, new Options()));
    check(Kind.PARAMETERS, "negative", () -> new Analysis(-1, one, one, null, new Options()));
    for (ThrowingRunnable call : List.<ThrowingRunnable>of(
        () -> new Analysis(null, new Options()), () -> new Analysis(1, null, one, null,
        new Options()), () -> new Analysis(1, one, null, null, new Options())))
      assertThrows(NullPointerException.class, call);
  }

  @Test
  public void whatIsClosedOrStoppedAnswersPlainly() throws Exception {
    Analysis stopped = new Analysis(choir, new Options());
    stopped.stop();
    check(Kind.STOPPED, "stopped", stopped::next);
    check(Kind.STOPPED, "stopped", stopped::cliques);
    stopped.close();
    stopped.close();
    stopped.stop();
    assertEquals("", stopped.report());
    assertEquals(new Progress(0, 0, 0, 0, 0), stopped.progress());
    assertThrows(IllegalStateException.class, stopped::cliques);
    Level kept;
    try (Analysis analysis = new Analysis(choir, new Options())) {
      kept = analysis.next();
      assertTrue(analysis.progress().cliquesFound() > 0);
    }
    assertEquals(5, kept.k());
    assertFalse(kept.names(0).isEmpty());
  }
}
