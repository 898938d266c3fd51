package zumo.community.spark;

import java.nio.file.Path;
import org.apache.spark.SparkFiles;
import org.apache.spark.TaskContext;
import zumo.community.NativeLibrary;
import zumo.community.Parts;
import zumo.community.VorlaneException;

/** Work of the native library inside a task of Spark; it ends when the task is killed. */
final class TaskWork {
  private static final long LOOK_MILLISECONDS = 50;

  private TaskWork() {}

  /** A step of a run in parts. */
  interface Step {
    void of(Parts parts) throws VorlaneException;
  }

  /**
   * Does the step in the thread of the task.
   *
   * @param elsewhere what takes the place of the results directory, or null
   * @throws VorlaneException if it fails, and of kind STOPPED if the task was killed meanwhile
   */
  static void run(Path work, Path elsewhere, Step step) throws VorlaneException {
    unpackBesideOtherFiles();
    TaskContext task = TaskContext.get();
    try (Parts parts = new Parts(work.toString(), elsewhere != null ? elsewhere.toString() : "")) {
      Thread watch = new Thread(() -> stopIfKilled(task, parts), "vorlane-watch");
      watch.setDaemon(true);
      watch.start();
      try {
        step.of(parts);
      } finally {
        watch.interrupt();
      }
    }
  }

  /** Where an executor keeps the files of Spark it may write, and Spark clears up. */
  private static void unpackBesideOtherFiles() {
    if (System.getProperty(NativeLibrary.FOLDER_PROPERTY) == null)
      System.setProperty(NativeLibrary.FOLDER_PROPERTY, SparkFiles.getRootDirectory());
  }

  private static void stopIfKilled(TaskContext task, Parts parts) {
    try {
      while (!task.isInterrupted()) Thread.sleep(LOOK_MILLISECONDS);
      parts.stop();
    } catch (InterruptedException done) {
      // The step has ended by itself.
    }
  }
}
