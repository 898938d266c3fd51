import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.FileWriter;
import java.util.Set;
import java.util.concurrent.CompletableFuture;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.ExecutionException;
import java.util.concurrent.atomic.AtomicBoolean;
import org.junit.After;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;
import zumo.community.ExternalCalls;
import zumo.community.OutParams;
import zumo.community.Run;

/** Other threads look on, stop and are refused while a run goes on. */
public class ThreadsTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  @After
  public void resetStop() {
    ExternalCalls.Reset_stop_process();
  }

  private static CompletableFuture<OutParams> start(Run run) {
    CompletableFuture<OutParams> end = new CompletableFuture<>();
    new Thread(() -> {
      try {
        end.complete(run.findAndLoad());
      } catch (Throwable failure) {
        end.completeExceptionally(failure);
      }
    }).start();
    return end;
  }

  private String makePipe() throws Exception {
    String pipe = dir.getRoot() + "/pipe";
    assertEquals(0, new ProcessBuilder("mkfifo", pipe).start().waitFor());
    return pipe;
  }

  private static void awaitReport(String report) {
    while (!ExternalCalls.Read_state_report().equals(report)) Thread.yield();
  }

  /** The run waits for its links at a pipe. */
  @Test
  public void aRunIsStoppedAndNoOtherIsLetIn() throws Exception {
    String pipe = makePipe();
    CompletableFuture<OutParams> run = start(new Run(pipe, dir.getRoot() + "/out"));
    awaitReport(" Reading input ...\n");
    String refusal = "ERROR: another run or reload is going on in this process, and only one can at"
        + " a time.\n";
    assertEquals(refusal, assertThrows(Exception.class,
        () -> ExternalCalls.loadComs(dir.getRoot() + "/out", false, false)).getMessage());
    assertEquals(refusal, assertThrows(Exception.class,
        () -> new Run(pipe, dir.getRoot() + "/out2").find()).getMessage());
    assertEquals(" Reading input ...\n", ExternalCalls.Read_state_report());
    ExternalCalls.Stop_process();
    try (FileWriter links = new FileWriter(pipe)) {
      links.write("a b\n");
    }
    Throwable end = assertThrows(ExecutionException.class, run::get).getCause();
    assertEquals("Process stopped by user.\n", end.getMessage());
    assertTrue(Run.isStop(end));
  }

  @Test
  public void reportsAreReadWhole() throws Exception {
    AtomicBoolean over = new AtomicBoolean();
    Set<String> reports = ConcurrentHashMap.newKeySet();
    Thread[] watchers = new Thread[3];
    for (int i = 0; i < watchers.length; ++i) {
      watchers[i] = new Thread(() -> {
        while (!over.get()) {
          reports.add(ExternalCalls.Read_state_report());
          assertEquals("", ExternalCalls.Read_error_message());
          Thread.yield();
        }
      });
      watchers[i].start();
    }
    for (int i = 0; i < 20; ++i)
      start(new Run(Examples.file("choir.txt"), dir.getRoot() + "/" + i)).get();
    over.set(true);
    for (Thread watcher : watchers) watcher.join();
    for (String report : reports)
      assertTrue(report, report.isEmpty() || report.endsWith("\n") || report.endsWith("results")
          || report.matches(" (done\\.|Loading results: [a-z= 0-9]*)"));
  }
}
