package zumo.community.spark;

import java.nio.file.Path;
import java.util.Arrays;
import java.util.List;
import org.apache.spark.SparkConf;
import org.apache.spark.api.java.JavaSparkContext;
import zumo.community.Options;
import zumo.community.Parts;

/**
 * Cancels a search that would not end, and tells what became of it: CancelledSearch LINKS FOLDER.
 * The context goes on, and so would threads in native code.
 */
public final class CancelledSearch {
  private static final long WAIT_MILLISECONDS = 10_000;

  private CancelledSearch() {}

  private static boolean isSearching() {
    return Thread.getAllStackTraces().values().stream()
        .anyMatch(frames -> Arrays.stream(frames).anyMatch(frame ->
            frame.getClassName().equals(Parts.class.getName())
                && frame.getMethodName().equals("search") && frame.isNativeMethod()));
  }

  /** Waits for this to be so, and yields whether it came. */
  private static boolean comes(boolean searching) throws InterruptedException {
    long end = System.currentTimeMillis() + WAIT_MILLISECONDS;
    while (isSearching() != searching) {
      if (System.currentTimeMillis() > end) return false;
      Thread.sleep(10);
    }
    return true;
  }

  public static void main(String[] args) throws Exception {
    Path work = Path.of(args[1], "work");
    try (JavaSparkContext spark = new JavaSparkContext(new SparkConf());
        Parts parts = new Parts(work.toString())) {
      parts.plan(args[0], args[1] + "/out", 2, new Options());
      Thread job = new Thread(() -> new SharedFolder(spark, work).search(List.of(1, 2)));
      job.setUncaughtExceptionHandler((thread, failure) ->
          System.out.println("failed: " + failure.getMessage().lines().findFirst().orElse("")));
      job.start();
      System.out.println("searching: " + comes(true));
      Thread.sleep(200);
      long start = System.currentTimeMillis();
      spark.cancelAllJobs();
      System.out.println("stopped: " + comes(false) + " after "
          + (System.currentTimeMillis() - start) + " ms");
      job.join();
    }
  }
}
