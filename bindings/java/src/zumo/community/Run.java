package zumo.community;

import java.io.IOException;
import java.nio.file.DirectoryStream;
import java.nio.file.Files;
import java.nio.file.LinkOption;
import java.nio.file.Path;
import java.util.concurrent.Callable;

/**
 * A run to be started: link file, directory for the results, and what differs from a plain run.
 *
 * <pre>OutParams results = new Run("links.txt", "results").lowerThreshold(0.5).findAndLoad();</pre>
 */
public final class Run {
  private static final String STOPPED = "Process stopped by user.\n";
  private static final int MOST_JOBS = 1024;

  private final String linkFile;
  private final String resultsDir;
  private boolean directed;
  private Double intensityThreshold;
  private Double lowerThreshold;
  private Double upperThreshold;
  private Integer singleK;
  private Double timeLimit;
  private Long memoryLimit;
  private int jobs = 1;

  /** A plain run; the directory must not exist yet, or be empty. */
  public Run(String linkFile, String resultsDir) {
    this.linkFile = linkFile;
    this.resultsDir = resultsDir;
  }

  /** Takes links, cliques and communities as directed. */
  public Run directed() {
    directed = true;
    return this;
  }

  /** Takes the intensity method, with this lower threshold of the link weight intensity. */
  public Run intensityThreshold(double threshold) {
    intensityThreshold = threshold;
    return this;
  }

  /** Drops links of this weight or less. */
  public Run lowerThreshold(double weight) {
    lowerThreshold = weight;
    return this;
  }

  /** Drops links of this weight or more. */
  public Run upperThreshold(double weight) {
    upperThreshold = weight;
    return this;
  }

  /** Looks for communities at this k only. */
  public Run singleK(int k) {
    singleK = k;
    return this;
  }

  /** Limits the processor time that the search may spend on a node at a time. */
  public Run timeLimit(double seconds) {
    timeLimit = seconds;
    return this;
  }

  /**
   * Limits the memory by which the process may grow during the run; a run that needs more is
   * stopped and ends with an exception that tells so. The process is looked at some fifty times a
   * second. Without this there is no limit.
   */
  public Run memoryLimit(long bytes) {
    memoryLimit = bytes;
    return this;
  }

  /**
   * Works with so many cores, 1024 at most; 0 stands for those at hand. The results don't depend on
   * it. Each more takes about half the memory of the first one.
   */
  public Run jobs(int cores) {
    if (cores < 0 || cores > MOST_JOBS)
      throw new IllegalArgumentException("there can't be " + cores + " jobs");
    jobs = cores;
    return this;
  }

  /**
   * Runs and leaves the results in the directory.
   *
   * @throws VorlaneException with the engine's message, if the run fails or is stopped, or with the
   *     names of files that could not be written
   */
  public void find() throws VorlaneException {
    call(ExternalCalls::Find_coms);
  }

  /**
   * Runs, leaves the results in the directory and returns them too.
   *
   * @throws VorlaneException as {@link #find}
   */
  public OutParams findAndLoad() throws VorlaneException {
    return call(ExternalCalls::findAndLoadComs);
  }

  /**
   * Reads the results of an earlier run, of whichever kind it was. What a stopped run has finished
   * is read as well; {@link OutParams#isFinished} tells.
   *
   * @throws VorlaneException if something can't be read, with the engine's message
   */
  public static OutParams load(String resultsDir) throws VorlaneException {
    Path dir = Path.of(resultsDir);
    boolean unfinished = Files.exists(dir.resolve(".unfinished"), LinkOption.NOFOLLOW_LINKS);
    boolean directed = Files.exists(dir.resolve("directed_graph"));
    OutParams results =
        typed(() -> ExternalCalls.loadComs(resultsDir, directed, isFromIntensityRun(dir)));
    if (unfinished) results.setUnfinished();
    return results;
  }

  private static boolean isFromIntensityRun(Path dir) throws VorlaneException {
    if (!Files.isDirectory(dir)) return false;
    try (DirectoryStream<Path> extractions = Files.newDirectoryStream(dir, "k=*")) {
      for (Path extraction : extractions)
        if (Files.exists(extraction.resolve("intensity_communities"))) return true;
    } catch (IOException failure) {
      throw new VorlaneException(VorlaneException.Kind.INPUT, failure.getMessage(), failure);
    }
    return false;
  }

  /**
   * Ends the run that is going on, within some hundredths of a second; to be called from another
   * thread. Runs started later end at once, until {@link ExternalCalls#Reset_stop_process} is
   * called.
   */
  public static void stop() {
    ExternalCalls.Stop_at_once();
  }

  /** Whether a run ended with this exception because it was stopped. */
  public static boolean isStop(Throwable failure) {
    return failure instanceof VorlaneException typed
        ? typed.getKind() == VorlaneException.Kind.STOPPED
        : STOPPED.equals(failure.getMessage());
  }

  private interface Entry {
    OutParams call(
        String linkFile, String resultsDir, boolean directed,
        boolean useIntensity, double intensityThreshold,
        boolean useLowerThreshold, double lowerThreshold,
        boolean useUpperThreshold, double upperThreshold,
        boolean useSingleK, int singleK,
        boolean useTimeLimit, double timeLimitSeconds) throws Exception;
  }

  private OutParams call(Entry entry) throws VorlaneException {
    if (memoryLimit == null) return typed(() -> callUnwatched(entry));
    try (MemoryWatch watch = new MemoryWatch(memoryLimit)) {
      try {
        return typed(() -> callUnwatched(entry));
      } catch (VorlaneException failure) {
        throw watch.hasStopped() && isStop(failure) ? watch.failure(failure) : failure;
      }
    }
  }

  /** The entries throw plain exceptions, and tell the kind beside them. */
  private static OutParams typed(Callable<OutParams> call) throws VorlaneException {
    try {
      return call.call();
    } catch (VorlaneException | RuntimeException failure) {
      throw failure;
    } catch (Exception failure) {
      throw new VorlaneException(
          VorlaneException.Kind.at(ExternalCalls.failureKind()), failure.getMessage(), failure);
    }
  }

  private OutParams callUnwatched(Entry entry) throws Exception {
    ExternalCalls.setJobs(jobs);
    return entry.call(
        linkFile, resultsDir, directed,
        intensityThreshold != null, orZero(intensityThreshold),
        lowerThreshold != null, orZero(lowerThreshold),
        upperThreshold != null, orZero(upperThreshold),
        singleK != null, singleK != null ? singleK : 0,
        timeLimit != null, orZero(timeLimit));
  }

  private static double orZero(Double value) {
    return value != null ? value : 0;
  }
}
