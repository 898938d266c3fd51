import static org.junit.Assert.*;

import java.io.IOException;
import java.nio.file.*;
import java.util.*;
import java.util.concurrent.*;
import java.util.stream.Stream;
import org.junit.Test;
import zumo.community.*;
import zumo.community.VorlaneException.Kind;

/** Parts that are done in several threads make the directory of a single run. */
public class ThreadsPartsTest extends Fixture {
  private static final int PARTS = 4;

  private String work() {
    return path("work");
  }

  private interface Step {
    long of(Parts parts, int part) throws Exception;
  }

  /** Does these parts, each in a thread of its own; what they count, added up. */
  private long each(List<Integer> numbers, Step step) throws Exception {
    ExecutorService threads = Executors.newCachedThreadPool();
    List<Future<Long>> counts = new ArrayList<>();
    for (int number : numbers)
      counts.add(threads.submit(() -> {
        try (Parts parts = new Parts(work())) {
          return step.of(parts, number);
        }
      }));
    long sum = 0;
    for (Future<Long> count : counts) sum += count.get();
    threads.shutdown();
    return sum;
  }

  private void check(String linkFile, Options options, Run run) throws Exception {
    String out = path("out");
    try (Parts parts = new Parts(work())) {
      parts.plan(linkFile, out, PARTS, options);
      assertEquals(List.of(1, 2, 3, 4), parts.searchLeft());
      long cliques = each(parts.searchLeft(), Parts::search);
      assertEquals(List.of(), parts.searchLeft());
      assertFalse(parts.isGathered());
      assertEquals(cliques, parts.gather());
      assertTrue(parts.isGathered());
      long levels = each(parts.levelsLeft(), Parts::levels);
      parts.finish();
      run.find();
      assertEquals(contents(path("single")), contents(out));
      assertEquals(Run.load(out).getKs().size(), levels);
    }
    for (String directory : List.of(work(), out, path("single"))) delete(Path.of(directory));
  }

  private static void delete(Path directory) throws IOException {
    try (Stream<Path> files = Files.walk(directory)) {
      for (Path file : files.sorted(Comparator.reverseOrder()).toList()) Files.delete(file);
    }
  }

  @Test
  public void ofEachKind() throws Exception {
    String choir = example("choir.txt");
    String single = path("single");
    check(choir, new Options(), new Run(choir, single));
    check(choir, new Options().lowerThreshold(4).upperThreshold(12),
        new Run(choir, single).lowerThreshold(4).upperThreshold(12));
    check(choir, new Options().intensityThreshold(6), new Run(choir, single).intensityThreshold(6));
    check(example("advice.txt"), new Options().directed().singleK(3),
        new Run(example("advice.txt"), single).directed().singleK(3));
  }

  private static void check(Kind kind, String words, org.junit.function.ThrowingRunnable step) {
    VorlaneException failure = assertThrows(VorlaneException.class, step);
    assertTrue(failure.getMessage(), failure.getMessage().contains(words));
    assertEquals(kind, failure.getKind());
  }

  @Test
  public void thatCantBe() throws Exception {
    String choir = example("choir.txt");
    try (Parts parts = new Parts(work())) {
      check(Kind.OTHER, "graph.bin", () -> parts.search(1));
      check(Kind.PARAMETERS, "time limit",
          () -> parts.plan(choir, path("out"), 2, new Options().timeLimit(1)));
      check(Kind.PARAMETERS, "number of parts",
          () -> parts.plan(choir, path("out"), -1, new Options()));
      check(Kind.INPUT, "none", () -> parts.plan(path("none"), path("out"), 2, new Options()));
      parts.plan(choir, path("out"), 2, new Options());
      check(Kind.OTHER, "no part 3", () -> parts.search(3));
      check(Kind.OTHER, "cliques.2.bin", () -> {
        parts.search(1);
        parts.gather();
      });
    }
    Parts closed = new Parts(work());
    try (closed) {
      closed.stop();
      check(Kind.STOPPED, "", () -> closed.search(2));
    }
    assertThrows(IllegalStateException.class, closed::gather);
    closed.stop();
  }

  @Test(timeout = 60000)
  public void oneIsStoppedByItself() throws Exception {
    try (Parts parts = new Parts(work()); Parts others = new Parts(work())) {
      parts.plan(hardLinks(150), path("out"), 100, new Options());
      ExecutorService threads = Executors.newCachedThreadPool();
      Future<Long> endless = threads.submit(() -> parts.search(2)); // behind three easy nodes
      Future<Long> last = threads.submit(() -> others.search(100));
      Thread.sleep(50);
      parts.stop();
      Throwable end = assertThrows(ExecutionException.class, endless::get).getCause();
      assertEquals(Kind.STOPPED, ((VorlaneException) end).getKind());
      if (!last.isDone()) others.stop();
      threads.shutdown();
    }
  }
}
