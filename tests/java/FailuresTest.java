import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import org.junit.After;
import org.junit.Rule;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import org.junit.rules.TemporaryFolder;
import zumo.community.ExternalCalls;
import zumo.community.Run;

/** Each failure of the engine is one java.lang.Exception with its message. */
public class FailuresTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  @After
  public void resetStop() {
    ExternalCalls.Reset_stop_process();
  }

  private Run run(String linkFile) {
    return new Run(linkFile, out().toString());
  }

  private Path out() {
    return dir.getRoot().toPath().resolve("out");
  }

  private static void check(String message, ThrowingRunnable call) {
    Throwable failure = assertThrows(Throwable.class, call);
    assertEquals(message, failure.getMessage());
    assertEquals(Exception.class, failure.getClass());
  }

  @Test
  public void parameters() {
    check("The following error(s) occured:\n"
            + " The sepcified lower threshold is higher (or equal to) the upper threshold.\n"
            + " The search algorithm cannot apply the link weight \n"
            + " intensity condition when looking for directed communities.\n\n",
        () -> run(Examples.file("choir.txt")).lowerThreshold(2).upperThreshold(1).directed()
            .intensityThreshold(1).find());
    assertFalse(Files.exists(out()));
  }

  @Test
  public void badLines() throws Exception {
    Path links = Files.write(dir.getRoot().toPath().resolve("links"), new byte[] {
        'a', 'b', (byte) 0xE4, '\n', (byte) 0xF0, (byte) 0x9F, (byte) 0x98, (byte) 0x80, '\n'});
    check("ERROR: Wrong line found in ' the file I was reading' :\nab\uFFFD",
        () -> run(links.toString()).findAndLoad());
    Files.write(links, "a b\n\uD83D\uDE00\n".getBytes("UTF-8"));
    check("ERROR: Wrong line found in ' the file I was reading' :\n\uD83D\uDE00",
        () -> new Run(links.toString(), out() + "2").findAndLoad());
  }

  @Test
  public void outputDirectories() throws Exception {
    Path inside = Files.createDirectories(out()).resolve("something");
    Files.writeString(inside, "");
    check("ERROR: the output directory already exists and it is non-empty.\n",
        () -> run(Examples.file("choir.txt")).find());
    assertEquals(1, out().toFile().list().length);
  }

  @Test
  public void reloads() throws Exception {
    assertThrows(Exception.class, () -> ExternalCalls.loadComs(out().toString(), false, false));
    assertEquals(" Loading results: from disk", ExternalCalls.Read_state_report());
    run(Examples.file("choir.txt")).find();
    assertEquals(" done.\n", ExternalCalls.Read_state_report());
    Files.delete(out().resolve("k=4").resolve("communities"));
    Throwable failure = assertThrows(
        Exception.class, () -> ExternalCalls.loadComs(out().toString(), false, false));
    assertTrue(failure.getMessage(), failure.getMessage().contains("k=4/communities"));
    assertEquals(" Loading results: read from disk", ExternalCalls.Read_state_report());
    assertEquals("", ExternalCalls.Read_error_message());
  }

  @Test
  public void stops() {
    ExternalCalls.Stop_process();
    check("Process stopped by user.\n", () -> run(Examples.file("choir.txt")).findAndLoad());
    assertEquals(" Process stopped by user.\n", ExternalCalls.Read_state_report());
    assertTrue(Files.exists(out().resolve("graph")));
  }

  @Test
  public void paths() {
    assertThrows(NullPointerException.class, () -> run(null).find());
    assertThrows(NullPointerException.class, () -> new Run("links", null).findAndLoad());
    assertThrows(NullPointerException.class, () -> ExternalCalls.loadComs(null, true, true));
    check("ERROR: a path has a zero byte inside.\n", () -> run("a\0b").find());
    assertEquals("", ExternalCalls.Read_state_report().trim());
  }

  /** The error of the JVM reaches the caller, nothing is reported on top, and calls go on. */
  @Test
  public void heaps() throws Exception {
    Path links = dir.getRoot().toPath().resolve("links");
    StringBuilder text = new StringBuilder();
    for (int i = 0; i < 200000; ++i) text.append("node").append(i).append(" x\n");
    Files.writeString(links, text);
    Child child = Child.run(List.of("-Xmx12m"), Map.of(), "find|" + links + "|" + out(),
        "load|" + out(), "findAndLoad|" + Examples.file("choir.txt") + "|" + out() + "2");
    List<String> lines = child.out().lines().filter(line -> !line.startsWith(" ")).toList();
    assertEquals("= 0 nodes, 0 cliques, k []", lines.get(0));
    assertEquals("! java.lang.OutOfMemoryError Java heap space", lines.get(1));
    assertEquals("= 27 nodes, 14 cliques, k [3, 4, 5]", lines.get(2));
    assertEquals(3, lines.size());
  }
}
