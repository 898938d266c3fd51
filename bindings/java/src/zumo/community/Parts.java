package zumo.community;

import java.util.List;
import java.util.Objects;
import java.util.stream.IntStream;

/**
 * Does a run in parts, of which any number of processes on any machines may do one each. They meet
 * in a work folder; the results directory gets the same files as that of a single run. What is cut
 * short, or done twice, or by two at a time, does no harm: do it again.
 *
 * <pre>plan once; search(1) ... search(N) in any order; gather once; levels(1) ... levels(N) in any
 * order; finish once</pre>
 *
 * <p>Each object works in the thread that asks for something, one thing at a time; {@link #stop}
 * may be called from any thread. Any number of them may work in a process.
 */
public final class Parts implements AutoCloseable {
  static {
    NativeLibrary.load();
  }

  private final String work;
  /** In place of the results directory; empty for that itself. */
  private final String elsewhere;
  /** Held while it works. */
  private final Object working = new Object();
  /** Held while the handle is in use beside the work, and while it is given back. */
  private final Object watch = new Object();
  /** Of the native side; 0 when closed. */
  private long handle = open();

  /** Of the run whose parts meet in this folder, or will. */
  public Parts(String work) {
    this(work, "");
  }

  /**
   * The same for search and levels on a machine that doesn't see the results directory: another
   * one, which must exist, takes its place, for somebody to carry the files from there.
   */
  public Parts(String work, String elsewhere) {
    this.work = Objects.requireNonNull(work);
    this.elsewhere = Objects.requireNonNull(elsewhere);
  }

  /** A step of the native side. */
  private interface Step<T> {
    T at(long handle) throws VorlaneException;
  }

  private <T> T step(Step<T> step) throws VorlaneException {
    synchronized (working) {
      if (handle == 0) throw new IllegalStateException("these parts are closed");
      return step.at(handle);
    }
  }

  /**
   * Reads the links and makes the plan of a run in so many parts. Where the folder holds the same
   * plan already, what is done of it stays.
   *
   * @throws VorlaneException if the links can't be read, the options don't go together or ask for a
   *     time limit, or the folder or the results directory belongs to another run
   */
  public void plan(String linkFile, String resultsDir, int parts, Options options)
      throws VorlaneException {
    step(handle -> {
      plan(handle, work, linkFile, resultsDir, parts, options.directed, options.numbers(),
          options.texts());
      return null;
    });
  }

  /** The numbers of the parts that are still to be searched. */
  public List<Integer> searchLeft() throws VorlaneException {
    return listed(searchLeft(work));
  }

  /** Whether {@link #gather} is done. */
  public boolean isGathered() throws VorlaneException {
    return isGathered(work);
  }

  /** The numbers of the parts whose communities are still to be found. */
  public List<Integer> levelsLeft() throws VorlaneException {
    return listed(levelsLeft(work));
  }

  private static List<Integer> listed(int[] parts) {
    return IntStream.of(parts).boxed().toList();
  }

  /**
   * Finds the cliques of a part, counted from 1, and yields how many.
   *
   * @throws VorlaneException if something of the plan is missing or changed, memory ran out, or it
   *     was stopped; so do the other steps
   */
  public long search(int part) throws VorlaneException {
    return step(handle -> search(handle, work, elsewhere, part));
  }

  /** Puts the cliques of all parts together, and yields how many there are. */
  public long gather() throws VorlaneException {
    return step(handle -> gather(handle, work));
  }

  /** Finds and writes the communities at those k of a part, counted from 1. Yields how many k. */
  public long levels(int part) throws VorlaneException {
    return step(handle -> levels(handle, work, elsewhere, part));
  }

  /**
   * Sees that all is there, and makes the results those of a finished run.
   *
   * @throws VorlaneException that tells what is missing
   */
  public void finish() throws VorlaneException {
    step(handle -> {
      finish(handle, work);
      return null;
    });
  }

  /** Ends the work that goes on, and all that is asked for later, within hundredths of a second. */
  public void stop() {
    synchronized (watch) {
      if (handle != 0) stop(handle);
    }
  }

  /** Stops what goes on. */
  @Override
  public void close() {
    stop();
    synchronized (working) {
      synchronized (watch) {
        if (handle != 0) close(handle);
        handle = 0;
      }
    }
  }

  private static native long open();

  private static native void plan(long handle, String work, String linkFile, String resultsDir,
      int parts, boolean directed, double[] numbers, String[] texts) throws VorlaneException;

  private static native long search(long handle, String work, String elsewhere, int part)
      throws VorlaneException;

  private static native int[] searchLeft(String work) throws VorlaneException;

  private static native boolean isGathered(String work) throws VorlaneException;

  private static native int[] levelsLeft(String work) throws VorlaneException;

  private static native long gather(long handle, String work) throws VorlaneException;

  private static native long levels(long handle, String work, String elsewhere, int part)
      throws VorlaneException;

  private static native void finish(long handle, String work) throws VorlaneException;

  private static native void stop(long handle);

  private static native void close(long handle);
}
