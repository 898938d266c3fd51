import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import zumo.community.*;

/** Each failure of the engine is one java.lang.Exception with its message. */
public class FailuresTest extends Fixture {
  private Run run(String linkFile) {
    return new Run(linkFile, path("out"));
  }

  private Run choir() {
    return run(example("choir.txt"));
  }

  private static void check(Class<?> type, String message, ThrowingRunnable call) {
    Throwable failure = assertThrows(Throwable.class, call);
    assertEquals(message, failure.getMessage());
    assertEquals(type, failure.getClass());
    assertEquals(message.equals("Process stopped by user.\n"), Run.isStop(failure));
    assertEquals("", ExternalCalls.Read_error_message());
  }

  private static void check(String message, ThrowingRunnable call) {
    check(Exception.class, message, call);
  }

  @Test
  public void ofArguments() throws Exception {
    check("The following error(s) occured:\n"
            + " The sepcified lower threshold is higher (or equal to) the upper threshold.\n"
            + " The search algorithm cannot apply the link weight \n"
            + " intensity condition when looking for directed communities.\n\n",
        () -> choir().lowerThreshold(2).upperThreshold(1).directed().intensityThreshold(1).find());
    check("ERROR: a path has a zero byte inside.\n", () -> run("a\0b").find());
    String noPath = "a path is null";
    check(NullPointerException.class, noPath, () -> run(null).find());
    check(NullPointerException.class, noPath, () -> new Run("links", null).findAndLoad());
    check(NullPointerException.class, noPath, () -> ExternalCalls.loadComs(null, true, true));
    assertFalse(Files.exists(Path.of(path("out"))));
    write("links", "");
    check("ERROR: the output directory already exists and it is non-empty.\n",
        () -> new Run(example("choir.txt"), path("")).find());
    check("ERROR: the results can't be written to '" + path("links") + "':\n"
            + " it is the input file. Choose another output directory.\n",
        () -> new Run(path("links"), path("links")).find());
    assertArrayEquals(new String[] {"links"}, folder.getRoot().list());
  }

  @Test
  public void ofBadLines() throws Exception {
    String wrongLine = "ERROR: Wrong line found in ' the file I was reading' :\n";
    check(wrongLine + "ab\uFFFD", run(write("links", "ab\u00E4\n"))::findAndLoad);
    String other = write("links", "a b\n\u00F0\u009F\u0098\u0080\n");
    check(wrongLine + "\uD83D\uDE00", () -> new Run(other, path("out2")).findAndLoad());
  }

  @Test
  public void ofReloads() throws Exception {
    assertThrows(Exception.class, () -> Run.load(path("out")));
    assertEquals(" Loading results: from disk", ExternalCalls.Read_state_report());
    choir().find();
    assertEquals(" done.\n", ExternalCalls.Read_state_report());
    Files.delete(Path.of(path("out/k=4/communities")));
    Throwable failure = assertThrows(Exception.class, () -> Run.load(path("out")));
    assertTrue(failure.getMessage(), failure.getMessage().contains("k=4/communities"));
    assertEquals(" Loading results: read from disk", ExternalCalls.Read_state_report());
  }

  @Test
  public void ofAStopUntilItsReset() throws Exception {
    ExternalCalls.Stop_process();
    check("Process stopped by user.\n", choir()::findAndLoad);
    assertEquals(" Process stopped by user.\n", ExternalCalls.Read_state_report());
    assertTrue(Files.exists(Path.of(path("out/graph"))));
    ExternalCalls.Reset_stop_process();
    assertEquals(14, new Run(example("choir.txt"), newDir()).findAndLoad().getCliques().size());
  }

  /** As on a full disk: no file can grow beyond 8 KB. */
  @Test
  public void ofFiles() throws Exception {
    String links = hardLinks(30);
    ProcessBuilder jvm = calling(List.of("-XX:-UsePerfData"),
        "find|" + links + "|" + path("out1"), "findAndLoad|" + links + "|" + path("out2"));
    List<String> limited = new ArrayList<>(List.of("bash", "-c", "ulimit -f 8; exec \"$@\"", ""));
    limited.addAll(jvm.command());
    jvm.command(limited);
    String[] told = end(jvm).out().split("! java.lang.Exception ");
    for (int i = 1; i <= 2; ++i) {
      assertTrue(told[i], told[i].startsWith("ERROR: the results are not whole, as "));
      assertTrue(told[i], told[i].contains("\n  " + path("out" + i) + "/cliques: write: File too"));
    }
  }

  /** The error of the JVM reaches the caller, nothing is reported on top, and calls go on. */
  @Test
  public void ofHeaps() throws Exception {
    StringBuilder text = new StringBuilder();
    for (int i = 0; i < 200000; ++i) text.append("node").append(i).append(" x\n");
    Child child = end(calling(List.of("-Xmx12m"),
        "find|" + write("links", text.toString()) + "|" + path("out"), "load|" + path("out"),
        "findAndLoad|" + example("choir.txt") + "|" + path("out2")));
    assertEquals(List.of("= 0 nodes, 0 cliques, k []",
        "! java.lang.OutOfMemoryError Java heap space", "= 27 nodes, 14 cliques, k [3, 4, 5]"),
        child.out().lines().filter(line -> !line.startsWith(" ")).toList());
  }

  /** What appears on the terminal is the trace lines, to the letter, and not a word of the JVM. */
  @Test
  public void andWhatIsShown() throws Exception {
    String choir = example("choir.txt");
    new Run(choir, path("stopped")).find();
    write("stopped/.unfinished", "");
    Child child = end(calling(List.of(),
        "find|" + choir + "|" + path("out"), "load|" + path("out"),
        "findAndLoad|" + choir + "|" + newDir(),
        "limited|" + hardLinks(30) + "|" + newDir(),
        "find|nowhere|" + newDir(), "findAndLoad|nowhere|" + newDir(),
        "load|" + path("stopped")));
    assertEquals("""
         starting c++
         in/out args converted
         calling Find_coms
         process ended succesfully
         no approximation was needed
        = 0 nodes, 0 cliques, k []
         process ended succesfully
        = 27 nodes, 14 cliques, k [3, 4, 5]
         process ended succesfully
         no approximation was needed
        = 27 nodes, 14 cliques, k [3, 4, 5]
         process ended succesfully
         approximation was needed
        = 33 nodes, ...
         starting c++
         in/out args converted
         calling Find_coms
        ! java.lang.Exception ERROR : File not found: 'nowhere'\s
        ! java.lang.Exception ERROR : File not found: 'nowhere'\s
         process ended succesfully
        = 27 nodes, 14 cliques, k [3, 4, 5], not finished
        """,
        child.out().replaceFirst("= 33 nodes.*", "= 33 nodes, ..."));
    assertEquals("calling Load_coms: \nLoad_coms finished.\n".repeat(2), child.err());
    assertEquals(0, child.exitCode());
  }
}
