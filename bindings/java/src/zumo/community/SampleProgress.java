package zumo.community;

import static java.util.stream.Collectors.joining;

/** A thread that shows on standard error what a run is doing, whenever that has changed. */
final class SampleProgress extends Thread {
  private static final long PAUSE_MS = 500;

  private String shown = "";

  SampleProgress() {
    super("progress");
    setDaemon(true);
  }

  @Override
  public void run() {
    try {
      while (true) {
        Thread.sleep(PAUSE_MS);
        show(ExternalCalls.Read_state_report());
      }
    } catch (InterruptedException theRunIsOver) {
      return;
    }
  }

  private void show(String report) {
    if (report.equals(shown)) return;
    shown = report;
    System.err.println(inOneLine(report));
  }

  /** Without the rulers above it. */
  private static String inOneLine(String report) {
    return report.lines().map(String::strip).filter(line -> !line.matches("_*"))
        .collect(joining(" "));
  }

  void finish() throws InterruptedException {
    interrupt();
    join();
  }
}
