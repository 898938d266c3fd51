import java.nio.file.*;
import java.util.*;
import java.util.concurrent.*;
import zumo.community.*;

/** Stops runs at random moments: Stopping LINKS RESULTS STOPS LONGEST. For bench/stopping. */
public class Stopping {
  private static void delete(Path dir) throws Exception {
    if (!Files.exists(dir)) return;
    try (var entries = Files.walk(dir)) {
      for (Path entry : entries.sorted(Comparator.reverseOrder()).toList()) Files.delete(entry);
    }
  }

  /** Seconds from the stop, `delay` seconds behind the start, to the end of the run. */
  private static OptionalDouble stopped(Run run, double delay) throws Exception {
    FutureTask<Void> call = new FutureTask<>(() -> {
      run.find();
      return null;
    });
    new Thread(call).start();
    try {
      call.get((long) (delay * 1e9), TimeUnit.NANOSECONDS);
      return OptionalDouble.empty();
    } catch (TimeoutException goingOn) {
      long asked = System.nanoTime();
      Run.stop();
      try {
        call.get();
        return OptionalDouble.empty();
      } catch (ExecutionException end) {
        if (!Run.isStop(end.getCause())) throw end;
        return OptionalDouble.of((System.nanoTime() - asked) / 1e9);
      }
    } finally {
      ExternalCalls.Reset_stop_process();
    }
  }

  public static void main(String[] args) throws Exception {
    Path results = Path.of(args[1]);
    Random random = new Random();
    long began = System.nanoTime();
    stopped(new Run(args[0], args[1]), Double.parseDouble(args[3]));
    double duration = (System.nanoTime() - began) / 1e9;
    for (int i = 0; i < Integer.parseInt(args[2]); ++i) {
      delete(results);
      stopped(new Run(args[0], args[1]), duration * random.nextDouble())
          .ifPresent(seconds -> System.out.println("stopped " + seconds));
    }
  }
}
