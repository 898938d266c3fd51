import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import zumo.community.*;
import zumo.community.VorlaneException.Kind;

/** Each failure of the engine is one exception with its message. */
public class FailuresTest extends Fixture {
  private Run run(String linkFile) {
    return new Run(linkFile, path("out"));
  }

  private Run choir() {
    return run(example("choir.txt"));
  }

  /** The native operation throws a plain exception, and a run one that tells the kind. */
  private static void check(Kind kind, String message, ThrowingRunnable call) {
    VorlaneException failure = assertThrows(VorlaneException.class, call);
    assertEquals(message, failure.getMessage());
    assertEquals(kind, failure.getKind());
    assertEquals(message, failure.getCause().getMessage());
    assertEquals(Exception.class, failure.getCause().getClass());
    assertEquals(kind == Kind.STOPPED, Run.isStop(failure));
    assertEquals(kind == Kind.STOPPED, Run.isStop(failure.getCause()));
    assertEquals("", ExternalCalls.Read_error_message());
  }

  private static void checkNoPath(ThrowingRunnable call) {
    assertEquals("a path is null", assertThrows(NullPointerException.class, call).getMessage());
  }

  @Test
  public void ofArguments() throws Exception {
    check(Kind.PARAMETERS, "The following error(s) occured:\n"
            + " The sepcified lower threshold is higher (or equal to) the upper threshold.\n"
            + " The search algorithm cannot apply the link weight \n"
            + " intensity condition when looking for directed communities.\n\n",
        () -> choir().lowerThreshold(2).upperThreshold(1).directed().intensityThreshold(1).find());
    check(Kind.PARAMETERS, "ERROR: a path has a zero byte inside.\n", () -> run("a\0b").find());
    checkNoPath(() -> run(null).find());
    checkNoPath(() -> new Run("links", null).findAndLoad());
    checkNoPath(() -> ExternalCalls.loadComs(null, true, true));
    assertFalse(Files.exists(Path.of(path("out"))));
    write("links", "");
    check(Kind.OUTPUT, "ERROR: the output directory already exists and it is non-empty.\n",
        () -> new Run(example("choir.txt"), path("")).find());
    check(Kind.OUTPUT, "ERROR: the results can't be written to '" + path("links") + "':\n"
            + " it is the input file. Choose another output directory.\n",
        () -> new Run(path("links"), path("links")).find());
    assertArrayEquals(new String[] {"links"}, folder.getRoot().list());
  }

  @Test
  public void ofBadLines() throws Exception {
    String wrongLine = "ERROR: Wrong line found in ' the file I was reading' :\n";
    check(Kind.INPUT, wrongLine + "ab\uFFFD", run(write("links", "ab\u00E4\n"))::findAndLoad);
    String other = write("links", "a b\n\u00F0\u009F\u0098\u0080\n");
    check(Kind.INPUT, wrongLine + "\uD83D\uDE00", () -> new Run(other, path("out2")).findAndLoad());
  }

  @Test
  public void ofReloads() throws Exception {
    assertThrows(Exception.class, () -> Run.load(path("out")));
    assertEquals(" Loading results: from disk", ExternalCalls.Read_state_report());
    choir().find();
    assertEquals(" done.\n", ExternalCalls.Read_state_report());
    Files.delete(Path.of(path("out/k=4/communities")));
    VorlaneException failure =
        assertThrows(VorlaneException.class, () -> Run.load(path("out")));
    assertEquals(Kind.INPUT, failure.getKind());
    assertTrue(failure.getMessage(), failure.getMessage().contains("k=4/communities"));
    assertEquals(" Loading results: read from disk", ExternalCalls.Read_state_report());
  }

  @Test
  public void ofAStopUntilItsReset() throws Exception {
    ExternalCalls.Stop_process();
    check(Kind.STOPPED, "Process stopped by user.\n", choir()::findAndLoad);
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
    String[] told = end(jvm).out().split("! VorlaneException ");
    for (int i = 1; i <= 2; ++i) {
      assertTrue(told[i], told[i].startsWith("OUTPUT ERROR: the results are not whole, as "));
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
        "! OutOfMemoryError Java heap space", "= 27 nodes, 14 cliques, k [3, 4, 5]"),
        child.out().lines().filter(line -> !line.startsWith(" ")).toList());
  }

  /** What appears on the terminal is the trace lines, to the letter, and not a word of the JVM. An
   * analysis shows nothing. */
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
        "load|" + path("stopped"), "analyse|" + choir, "analyse|nowhere"));
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
        ! VorlaneException INPUT ERROR : File not found: 'nowhere'\s
        ! VorlaneException INPUT ERROR : File not found: 'nowhere'\s
         process ended succesfully
        = 27 nodes, 14 cliques, k [3, 4, 5], not finished
        = [Emil, Greta, Hugo, Ines, Jonas]
        = 0 nodes, 0 cliques, k []
        ! VorlaneException INPUT ERROR : File not found: 'nowhere'\s
        """,
        child.out().replaceFirst("= 33 nodes.*", "= 33 nodes, ..."));
    assertEquals("calling Load_coms: \nLoad_coms finished.\n".repeat(2), child.err());
    assertEquals(0, child.exitCode());
  }
}
