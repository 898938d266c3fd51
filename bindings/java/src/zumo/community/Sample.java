package zumo.community;

import java.util.concurrent.CompletableFuture;

/** A command-line program on top of this package: finds communities or reads those found before. */
public final class Sample {
  private static final int FINISHED = 0;
  private static final int FAILED = 1;
  private static final int WRONG_USAGE = 2;
  private static final int STOPPED = 130;

  private Sample() {}

  public static void main(String[] args) {
    SampleOptions options = null;
    try {
      options = SampleOptions.parse(args);
    } catch (IllegalArgumentException wrong) {
      System.err.println(wrong.getMessage() + "\n\n" + SampleOptions.USAGE);
      System.exit(WRONG_USAGE);
    }
    if (options.help()) {
      System.out.println(SampleOptions.USAGE);
      return;
    }
    CompletableFuture<Integer> exitCode = new CompletableFuture<>();
    exitCode.complete(carryOut(options, exitCode));
    System.exit(exitCode.join());
  }

  private static int carryOut(SampleOptions options, CompletableFuture<Integer> exitCode) {
    try {
      NativeLibrary.load();
      if (options.run() != null) stopOnSignal(exitCode);
      OutParams results = results(options);
      System.out.print(SampleSummary.of(results));
      if (!results.isFinished())
        System.err.println("Not whole: the run is still going on, or was stopped, or failed.");
      return FINISHED;
    } catch (OutOfMemoryError failure) {
      System.err.println("Not enough memory: " + failure.getMessage()
          + " (the option -Xmx of java sets how much it may use)");
      return FAILED;
    } catch (Exception | UnsatisfiedLinkError failure) {
      String text = failure.getMessage() != null ? failure.getMessage() : failure.toString();
      System.err.println(text.stripTrailing());
      return Run.isStop(failure) ? STOPPED : FAILED;
    }
  }

  private static OutParams results(SampleOptions options) throws Exception {
    SampleProgress progress = new SampleProgress();
    progress.start();
    try {
      return options.run() != null ? options.run().findAndLoad() : Run.load(options.resultsDir());
    } finally {
      progress.finish();
    }
  }

  /** Lets a signal that ends the process (Ctrl-C, say) stop the run first and wait for its end. */
  private static void stopOnSignal(CompletableFuture<Integer> exitCode) {
    Runtime.getRuntime().addShutdownHook(new Thread(() -> {
      if (exitCode.isDone()) return;
      Run.stop();
      Runtime.getRuntime().halt(exitCode.join());
    }));
  }
}
