import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import org.junit.Test;
import zumo.community.*;

/** Files and Java objects tell the same, right after each kind of run and read back. */
public class AgreementTest extends Fixture {
  private final String choir = example("choir.txt");
  private Path out;

  private Run run(String links) throws Exception {
    out = Path.of(newDir());
    return new Run(links, out.toString());
  }

  private void check(Run run, String kind, String file, String pattern) throws Exception {
    OutParams found = run.findAndLoad();
    OutParams loaded = Run.load(out.toString());
    Map<String, List<String>> afterRun = Told.of(found, kind);
    Told.in(out, afterRun.keySet())
        .forEach((name, lines) -> assertEquals(name, lines, afterRun.get(name)));
    assertEquals(Told.of(loaded, kind), afterRun);
    for (int k : found.getKs())  // in the same order, too
      assertEquals(loaded.getCommunityGraph(k), found.getCommunityGraph(k));
    List<String> lines = afterRun.get(file);
    assertTrue(lines.toString(), lines.stream().anyMatch(line -> line.matches(pattern)));
    assertEquals(" done.", ExternalCalls.Read_state_report());
  }

  @Test
  public void ofEachKindOfRun() throws Exception {
    check(run(choir), "", "k=4/graph_of_communities", "2 4 1");
    check(run(choir).lowerThreshold(4).upperThreshold(12), "", "", "k=3");
    check(run(example("advice.txt")).directed(), "directed_",
        "k=4/directed_communities", "0: Uwe Rita Sven Tina Tom");
    check(run(choir).intensityThreshold(6), "intensity_",
        "k=4/intensity_communities", "1: Emil Greta Hugo Ines Jonas");
    check(run(hardLinks(30)).timeLimit(1e-6), "", "cliques", "-\\d+: .*");
    check(run(choir).singleK(4), "", "", "k=4");
  }

  /** A negative k is one too large for any clique. */
  @Test(timeout = 60000)
  public void ofArgumentsInTheirOrder() throws Exception {
    for (boolean load : new boolean[] {false, true}) {
      checkParameters(load,
          run(choir).directed().lowerThreshold(0.25).upperThreshold(1.5).timeLimit(7).singleK(4),
          """
          # at a lower link weight threshold of 0.250000,
          # and at an upper link weight threshold of 1.500000.
          # Links were treated as directed.
          # The maximal allowed time per node during clique search was 7.000000 secs.
          # The communities were extracted solely at k=4.
          """);
      checkParameters(load, run(choir).intensityThreshold(0.5).singleK(-2),
          """
          # at no lower link weight threshold,
          # and at no upper link weight threshold.
          # A lower link weight intensity threshold of 0.500000 was set.
          # Links were treated as undirected.
          # No time limit was set for the clique search.
          # The communities were extracted solely at k=4294967294.
          """);
    }
  }

  private void checkParameters(boolean load, Run run, String parameters) throws Exception {
    if (load) run.findAndLoad();
    else run.find();
    String header = Files.readString(out.resolve("input_params.txt"));
    assertEquals(parameters, header.substring(header.indexOf('\n') + 1));
  }

  /** The edges are what the call says, whatever the directory is read as. */
  @Test
  public void ofBothBooleans() throws Exception {
    run(choir).intensityThreshold(6).find();
    Community community =
        ExternalCalls.loadComs(out.toString(), true, true).getCommunities(4).get(1);
    assertEquals(List.of("Emil", "Greta", "Hugo", "Ines", "Jonas"), community.getVertices());
    assertTrue(community.getEdges().stream().allMatch(Edge::isDirected));
  }
}
