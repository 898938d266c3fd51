package zumo.community;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;

/** Stops the run that goes on while it is open, once the process has grown too much. */
final class MemoryWatch implements AutoCloseable {
  private static final Path STATUS = Path.of("/proc/self/status");
  private static final long KILOBYTE = 1024;
  private static final long INTERVAL_MILLIS = 20;

  private final long limit;
  private final long atStart;
  private final Thread watcher = new Thread(this::watch, "vorlane memory watch");
  private volatile boolean stopped;

  MemoryWatch(long limit) throws VorlaneException {
    this.limit = limit;
    try {
      atStart = resident();
    } catch (IOException failure) {
      throw new VorlaneException(VorlaneException.Kind.OTHER, failure.getMessage(), failure);
    }
    watcher.setDaemon(true);
    watcher.start();
  }

  /** Bytes that the process holds, but for mapped files. */
  private static long resident() throws IOException {
    for (String line : Files.readAllLines(STATUS))
      if (line.startsWith("RssAnon:"))
        return Long.parseLong(line.replaceAll("[^0-9]", "")) * KILOBYTE;
    throw new IOException("no RssAnon in " + STATUS);
  }

  private void watch() {
    try {
      while (resident() - atStart <= limit) Thread.sleep(INTERVAL_MILLIS);
      stopped = true;
      ExternalCalls.Stop_at_once();
    } catch (IOException | InterruptedException end) {
      // The run is over, or goes on without a limit where the system doesn't tell.
    }
  }

  boolean hasStopped() {
    return stopped;
  }

  VorlaneException failure(VorlaneException stop) {
    return new VorlaneException(VorlaneException.Kind.MEMORY,
        "The memory limit of the run, " + limit + " bytes, was reached.\n", stop);
  }

  /** Ends the watch and takes its stop back. */
  @Override
  public void close() {
    watcher.interrupt();
    boolean interrupted = false;
    while (watcher.isAlive()) {
      try {
        watcher.join();
      } catch (InterruptedException later) {
        interrupted = true;
      }
    }
    if (interrupted) Thread.currentThread().interrupt();
    if (stopped) ExternalCalls.Reset_stop_process();
  }
}
