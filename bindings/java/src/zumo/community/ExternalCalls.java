package zumo.community;

/**
 * The native operations. One run or reload at a time may go on in a process; it blocks its thread,
 * and other threads may meanwhile stop it or read how far it is. {@link Run} is the comfortable way
 * to start one.
 */
public final class ExternalCalls {
  static {
    NativeLibrary.load();
  }

  private ExternalCalls() {}

  /**
   * Finds the communities of a link file and writes them to a directory, which must not exist yet
   * or be empty. A value counts only if the boolean in front of it is true.
   *
   * @return an object without results; {@link #loadComs} reads them
   * @throws Exception if the run fails or is stopped, with the engine's message, or if files could
   *     not be written, with their names
   */
  public static native OutParams Find_coms(
      String linkFile, String resultsDir, boolean directed,
      boolean useIntensity, double intensityThreshold,
      boolean useLowerThreshold, double lowerThreshold,
      boolean useUpperThreshold, double upperThreshold,
      boolean useSingleK, int singleK,
      boolean useTimeLimit, double timeLimitSeconds) throws Exception;

  /** As {@link #Find_coms}, but returns the results too. */
  public static native OutParams findAndLoadComs(
      String linkFile, String resultsDir, boolean directed,
      boolean useIntensity, double intensityThreshold,
      boolean useLowerThreshold, double lowerThreshold,
      boolean useUpperThreshold, double upperThreshold,
      boolean useSingleK, int singleK,
      boolean useTimeLimit, double timeLimitSeconds) throws Exception;

  /**
   * Reads the results of an earlier run; the booleans tell which kind of run it was. Whether it was
   * finished {@link Run#load} tells.
   *
   * @throws Exception if something can't be read, with the engine's message
   */
  public static native OutParams loadComs(
      String resultsDir, boolean directed, boolean useIntensity) throws Exception;

  /**
   * Asks the run to end, which it does at its next opportunity. Runs started later end at once,
   * until {@link #Reset_stop_process} is called.
   */
  public static native void Stop_process();

  /**
   * As {@link #Stop_process}, but the run ends inside its long stages too: within some hundredths
   * of a second, perhaps in the middle of a file.
   */
  public static native void Stop_at_once();

  /** Lets runs go on again after {@link #Stop_process} or {@link #Stop_at_once}. */
  public static native void Reset_stop_process();

  /** Tells in one or more lines what the run or reload is doing, or did last. */
  public static native String Read_state_report();

  /** Always empty: a failure is told by the exception of the call that failed. */
  public static native String Read_error_message();

  /**
   * The next run of this thread works with so many cores, 0 for those at hand; one that is told
   * nothing works with one.
   */
  static native void setJobs(int cores);

  /** Why the last call of this thread has failed, as the place of a VorlaneException.Kind. */
  static native int failureKind();
}
