import static org.junit.Assert.*;

import java.nio.file.*;
import java.util.*;
import java.util.concurrent.*;
import org.junit.Test;
import zumo.community.*;

/** Analyses in several threads, and a run beside them, don't know of each other. */
public class ThreadsAnalysisTest extends Fixture {
  private static final String READING = " Reading input ...\n";

  private static int communities(Analysis analysis) throws Exception {
    int count = 0;
    for (Level level = analysis.next(); level != null; level = analysis.next())
      count += level.size();
    return count;
  }

  private String pipe(String name) throws Exception {
    assertEquals(0, new ProcessBuilder("mkfifo", path(name)).start().waitFor());
    return path(name);
  }

  /** One waits for its links at a pipe, a run at another, while the rest begins and ends. */
  @Test(timeout = 60000)
  public void eachIsStoppedByItself() throws Exception {
    ExecutorService threads = Executors.newCachedThreadPool();
    Future<OutParams> run = threads.submit(new Run(pipe("pipe1"), path("out"))::findAndLoad);
    try (Analysis waiting = new Analysis(pipe("pipe2"), new Options())) {
      Future<Level> level = threads.submit(waiting::next);
      while (!waiting.report().equals(READING) || !ExternalCalls.Read_state_report().equals(READING))
        Thread.yield();
      List<Future<Integer>> counts = new ArrayList<>();
      for (int i = 0; i < 8; ++i)
        counts.add(threads.submit(() -> {
          try (Analysis analysis = new Analysis(example("choir.txt"), new Options())) {
            return communities(analysis);
          }
        }));
      for (Future<Integer> count : counts) assertEquals(12, (int) count.get());
      assertFalse(level.isDone());
      assertEquals(READING, waiting.report());
      assertEquals(READING, ExternalCalls.Read_state_report());
      waiting.stop();
      Throwable end = assertThrows(ExecutionException.class, level::get).getCause();
      assertEquals(VorlaneException.Kind.STOPPED, ((VorlaneException) end).getKind());
    }
    assertFalse(run.isDone());
    Files.writeString(Path.of(path("pipe1")), "a b\nb c\nc a\n");
    assertEquals(1, run.get().getCliques().size());
    threads.shutdown();
  }

  /** While others look on, and close it. */
  @Test(timeout = 60000)
  public void aWorkIsEndedByClosing() throws Exception {
    ExecutorService threads = Executors.newCachedThreadPool();
    Analysis analysis = new Analysis(hardLinks(150), new Options());
    Future<IntRows> cliques = threads.submit(analysis::cliques);
    Future<Void> watcher = threads.submit(() -> {
      while (!cliques.isDone())
        assertTrue(analysis.progress().nodesLeft() >= 0 && analysis.report() != null);
      return null;
    });
    while (analysis.progress().nodesLeft() == 0) Thread.yield();
    analysis.close();
    Throwable end = assertThrows(ExecutionException.class, cliques::get).getCause();
    assertEquals(VorlaneException.Kind.STOPPED, ((VorlaneException) end).getKind());
    watcher.get();
    threads.shutdown();
  }
}
