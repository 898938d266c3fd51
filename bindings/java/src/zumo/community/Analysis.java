package zumo.community;

import java.util.Objects;

/**
 * Finds communities in memory: writes no file and prints nothing. Any number of analyses may go on
 * in a process, in any threads, and none knows of the others, nor of a {@link Run}.
 *
 * <pre>try (Analysis analysis = new Analysis("links.txt", new Options())) {
 *   for (Level level = analysis.next(); level != null; level = analysis.next()) ...
 * }</pre>
 *
 * <p>It works in the thread that asks for something; a second thread that asks waits. To stop it
 * and to read how far it is any thread may at any time. What it yields stays valid when it is
 * closed. It holds memory outside the heap until then.
 */
public final class Analysis implements AutoCloseable {
  static {
    NativeLibrary.load();
  }

  /** Held while it works. */
  private final Object work = new Object();
  /** Held while the handle is in use beside the work, and while it is given back. */
  private final Object watch = new Object();
  /** Of the native side; 0 when closed. */
  private long handle;
  private String[] names;

  /**
   * Of the links in a file: two names in each line, and a weight where the options need them. It is
   * read when something is asked for.
   *
   * @throws VorlaneException if the options don't go together
   */
  public Analysis(String linkFile, Options options) throws VorlaneException {
    handle = open(linkFile, options.directed, options.needWeights(), options.links,
        options.numbers(), options.texts());
  }

  /**
   * Of links between numbers from 1 to {@code count}, {@code from[i]} to {@code to[i]}. The arrays
   * are copied.
   *
   * @param weights as long, or null without weights
   * @throws VorlaneException if the options don't go together, or of kind INPUT for a number out of
   *     its range, with its place
   */
  public Analysis(int count, int[] from, int[] to, double[] weights, Options options)
      throws VorlaneException {
    handle = openLinks(count, Objects.requireNonNull(from), Objects.requireNonNull(to), weights,
        options.directed, options.links, options.numbers());
  }

  /**
   * All maximal cliques of 3 nodes or more, with ascending nodes; with {@link Options#singleK}
   * perhaps only those of k nodes or more.
   *
   * @throws VorlaneException if the links can't be read, memory ran out, or it was stopped
   */
  public IntRows cliques() throws VorlaneException {
    synchronized (work) {
      return cliques(opened());
    }
  }

  /** How many of {@link #cliques} are exact; those behind may be no cliques. */
  public int exactCliqueCount() throws VorlaneException {
    synchronized (work) {
      return exactCliqueCount(opened());
    }
  }

  /**
   * The next level: k goes down from the size of the largest clique to 3, or is the one that was
   * asked for. Null behind the last.
   *
   * @throws VorlaneException as {@link #cliques}
   */
  public Level next() throws VorlaneException {
    synchronized (work) {
      return next(opened(), knownNames());
    }
  }

  /**
   * The names of the nodes, which are numbered from 1; that at place 0 is empty. Of links between
   * numbers, the numbers.
   *
   * @throws VorlaneException as {@link #cliques}
   */
  public String[] names() throws VorlaneException {
    synchronized (work) {
      return knownNames().clone();
    }
  }

  /** Ends the work that goes on, and all that is asked for later, within hundredths of a second. */
  public void stop() {
    synchronized (watch) {
      if (handle != 0) stop(handle);
    }
  }

  /** What is going on, in words for people: several lines; empty when closed. */
  public String report() {
    synchronized (watch) {
      return handle != 0 ? report(handle) : "";
    }
  }

  /** What is going on, in figures; zeros when closed. */
  public Progress progress() {
    long[] figures = new long[5];
    synchronized (watch) {
      if (handle != 0) readProgress(handle, figures);
    }
    return new Progress(figures[0], figures[1], figures[2], figures[3], figures[4]);
  }

  /** Stops what goes on and gives the memory back. */
  @Override
  public void close() {
    stop();
    synchronized (work) {
      synchronized (watch) {
        if (handle != 0) close(handle);
        handle = 0;
      }
    }
  }

  private long opened() {
    if (handle == 0) throw new IllegalStateException("this analysis is closed");
    return handle;
  }

  private String[] knownNames() throws VorlaneException {
    if (names == null) names = names(opened());
    return names;
  }

  private static native long open(String linkFile, boolean directed, boolean weighted,
      boolean links, double[] numbers, String[] texts) throws VorlaneException;

  private static native long openLinks(int count, int[] from, int[] to, double[] weights,
      boolean directed, boolean links, double[] numbers) throws VorlaneException;

  private static native IntRows cliques(long handle) throws VorlaneException;

  private static native int exactCliqueCount(long handle) throws VorlaneException;

  private static native Level next(long handle, String[] names) throws VorlaneException;

  private static native String[] names(long handle) throws VorlaneException;

  private static native void stop(long handle);

  private static native String report(long handle);

  private static native void readProgress(long handle, long[] figures);

  private static native void close(long handle);
}
