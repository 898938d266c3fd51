import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import java.util.concurrent.*;
import java.util.concurrent.atomic.AtomicBoolean;
import org.junit.Test;
import org.junit.function.ThrowingRunnable;
import zumo.community.*;

/** Other threads look on, stop and are refused while a run goes on. */
public class ThreadsTest extends Fixture {
  private static <T> FutureTask<T> start(Callable<T> call) {
    FutureTask<T> task = new FutureTask<>(call);
    new Thread(task).start();
    return task;
  }

  private static void checkRefused(ThrowingRunnable call) {
    VorlaneException failure = assertThrows(VorlaneException.class, call);
    assertEquals("ERROR: another run or reload is going on in this process, and only one can at a"
        + " time.\n", failure.getMessage());
    assertEquals(VorlaneException.Kind.BUSY, failure.getKind());
    assertEquals(" Reading input ...\n", ExternalCalls.Read_state_report());
  }

  /** The run waits for its links at a pipe. */
  @Test
  public void aRunIsStoppedAndNoOtherIsLetIn() throws Exception {
    String pipe = path("pipe");
    assertEquals(0, new ProcessBuilder("mkfifo", pipe).start().waitFor());
    FutureTask<OutParams> run = start(new Run(pipe, path("out"))::findAndLoad);
    while (!ExternalCalls.Read_state_report().equals(" Reading input ...\n")) Thread.yield();
    checkRefused(() -> Run.load(path("out")));
    checkRefused(new Run(pipe, path("out2"))::find);
    ExternalCalls.Stop_process();
    Files.writeString(Path.of(pipe), "a b\n");
    Throwable end = assertThrows(ExecutionException.class, run::get).getCause();
    assertEquals("Process stopped by user.\n", end.getMessage());
  }

  /** A stop at once doesn't wait for what the pipe may bring. */
  @Test
  public void aRunThatWaitsIsStoppedAtOnce() throws Exception {
    String pipe = path("pipe");
    assertEquals(0, new ProcessBuilder("mkfifo", pipe).start().waitFor());
    FutureTask<OutParams> run = start(new Run(pipe, path("out"))::findAndLoad);
    while (!ExternalCalls.Read_state_report().equals(" Reading input ...\n")) Thread.yield();
    Run.stop();
    Throwable end = assertThrows(ExecutionException.class, run::get).getCause();
    assertTrue(Run.isStop(end));
    assertFalse(Files.exists(Path.of(path("out/graph"))));
  }

  /** Also what a run hands over, level by level, and what a stop ends. */
  @Test
  public void severalCoresMakeTheSameBytes() throws Exception {
    String links = hardLinks(24);
    String alone = path("alone");
    String levels = told(new Run(links, alone).findAndLoad());
    for (int jobs : new int[] {1, 4, 0}) {
      String out = path("jobs" + jobs);
      assertEquals(levels, told(new Run(links, out).jobs(jobs).findAndLoad()));
      assertEquals(contents(alone), contents(out));
    }
    for (int wrong : new int[] {-1, 1025})
      assertThrows(IllegalArgumentException.class, () -> new Run(links, alone).jobs(wrong));
    ExternalCalls.Stop_process();
    assertTrue(Run.isStop(assertThrows(VorlaneException.class,
        new Run(links, path("stopped")).jobs(4)::find)));
  }

  private static String told(OutParams results) {
    StringBuilder text = new StringBuilder();
    for (int k : results.getKs())
      for (Community community : results.getCommunities(k))
        text.append(k).append(' ').append(community.getVertices()).append('\n');
    return text.toString();
  }

  @Test
  public void reportsAreReadWhole() throws Exception {
    AtomicBoolean over = new AtomicBoolean();
    Set<String> reports = ConcurrentHashMap.newKeySet();
    List<FutureTask<Void>> watchers = new ArrayList<>();
    for (int i = 0; i < 3; ++i)
      watchers.add(start(() -> {
        while (!over.get())
          reports.add(ExternalCalls.Read_state_report() + ExternalCalls.Read_error_message());
        return null;
      }));
    for (int i = 0; i < 20; ++i)
      start(new Run(example("choir.txt"), newDir())::findAndLoad).get();
    over.set(true);
    for (FutureTask<Void> watcher : watchers) watcher.get();
    for (String report : reports)
      assertTrue(report, report.isEmpty() || report.endsWith("\n") || report.endsWith("results")
          || report.matches(" (done\\.|Loading results: [a-z= 0-9]*)"));
  }
}
