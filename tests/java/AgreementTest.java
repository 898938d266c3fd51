import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.nio.file.Path;
import java.util.List;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;
import zumo.community.Community;
import zumo.community.Edge;
import zumo.community.ExternalCalls;
import zumo.community.OutParams;
import zumo.community.Run;

/** Files and Java objects tell the same, right after the run and read back, for each kind of run. */
public class AgreementTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  private String out() {
    return dir.getRoot() + "/out";
  }

  private Run run(String example) {
    return new Run(Examples.file(example), out());
  }

  private List<String> check(Run run, String kind) throws Exception {
    boolean directed = kind.equals("directed_");
    List<String> afterRun = Told.of(run.findAndLoad(), directed);
    assertEquals(" done.", ExternalCalls.Read_state_report());
    List<String> written = Told.of(Path.of(out()), kind);
    for (int i = 0; i < Math.min(written.size(), afterRun.size()); ++i)
      assertEquals("line " + i, written.get(i), afterRun.get(i));
    assertEquals(written.size(), afterRun.size());
    OutParams loaded = ExternalCalls.loadComs(out(), directed, kind.equals("intensity_"));
    assertEquals(afterRun, Told.of(loaded, directed));
    assertEquals(" done.", ExternalCalls.Read_state_report());
    return afterRun;
  }

  @Test
  public void plain() throws Exception {
    List<String> lines = check(run("choir.txt"), "");
    assertTrue(lines.contains("community [Emil, Greta, Hugo, Ines, Jonas]"));
    assertTrue(lines.contains("overlap 2 4 1"));
  }

  @Test
  public void thresholds() throws Exception {
    check(run("choir.txt").lowerThreshold(4).upperThreshold(20), "");
  }

  @Test
  public void directed() throws Exception {
    assertTrue(check(run("advice.txt").directed(), "directed_")
        .contains("community [Uwe, Rita, Sven, Tina, Tom]"));
  }

  @Test
  public void intensity() throws Exception {
    check(run("choir.txt").intensityThreshold(6), "intensity_");
  }

  @Test
  public void timeLimit() throws Exception {
    String links = Examples.hard(dir.getRoot().toPath());
    List<String> lines = check(new Run(links, out()).timeLimit(1e-6), "");
    assertTrue(lines.contains("community [a, b, c]"));
    assertTrue(lines.stream().anyMatch(line -> line.startsWith("community approximate [")));
  }

  @Test
  public void singleK() throws Exception {
    assertEquals(1, check(run("choir.txt").singleK(4), "").stream()
        .filter(line -> line.startsWith("k=")).count());
  }

  /** Too large for any clique, as Java's negative numbers are. */
  @Test(timeout = 60000)
  public void negativeK() throws Exception {
    OutParams results = run("choir.txt").singleK(-1).findAndLoad();
    assertEquals(14, results.getCliques().size());
    assertTrue(results.getCommunities(-1).isEmpty());
  }

  /** The edges are what the call says, whatever the directory is read as. */
  @Test
  public void bothBooleans() throws Exception {
    run("choir.txt").intensityThreshold(6).find();
    Community community =
        ExternalCalls.loadComs(out(), true, true).getCommunities(4).get(1);
    assertEquals(List.of("Emil", "Greta", "Hugo", "Ines", "Jonas"), community.getVertices());
    assertTrue(community.getEdges().stream().allMatch(Edge::isDirected));
  }
}
