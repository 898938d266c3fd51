package zumo.community.spark;

import java.io.IOException;
import java.nio.file.DirectoryStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.function.Consumer;
import org.apache.spark.SparkConf;
import org.apache.spark.api.java.JavaSparkContext;
import zumo.community.Parts;
import zumo.community.VorlaneException;

/** The program for spark-submit: plans a run in parts, has Spark do them, and finishes it. */
public final class Communities {
  private static final int FAILED = 1;
  private static final int WRONG_USAGE = 2;

  private Communities() {}

  public static void main(String[] args) {
    CommandLine wishes = null;
    try {
      wishes = CommandLine.parse(args);
    } catch (IllegalArgumentException wrong) {
      System.err.println(wrong.getMessage() + "\n\n" + CommandLine.USAGE);
      System.exit(WRONG_USAGE);
    }
    if (wishes == null) {
      System.out.println(CommandLine.USAGE);
      return;
    }
    try (JavaSparkContext spark = new JavaSparkContext(configuration())) {
      find(spark, wishes);
      System.out.println("results in " + wishes.results());
    } catch (Exception | UnsatisfiedLinkError failure) {
      System.err.println("vorlane: " + reason(failure).strip());
      System.exit(FAILED);
    }
  }

  /** What comes back from the executors is written at once and not held, so it may be much. */
  private static SparkConf configuration() {
    return new SparkConf().setIfMissing("spark.driver.maxResultSize", "0");
  }

  private static void find(JavaSparkContext spark, CommandLine wishes) throws Exception {
    Road road = wishes.sharedFolder() ? new SharedFolder(spark, wishes.work())
        : new SentFiles(spark, wishes.work(), wishes.results());
    try (Parts parts = new Parts(wishes.work().toString())) {
      parts.plan(wishes.linkFile(), wishes.resultsDir(), wishes.parts(), wishes.options());
      if (!parts.isGathered()) {
        stage(spark, "search for cliques", parts.searchLeft(), road::search);
        parts.gather();
      }
      stage(spark, "communities at each k", parts.levelsLeft(), road::levels);
      parts.finish();
    }
    if (wishes.workFolder() == null) delete(wishes.work());
  }

  private static void stage(JavaSparkContext spark, String name, List<Integer> parts,
      Consumer<List<Integer>> road) {
    System.err.println("vorlane: " + name + ": " + parts.size() + " parts");
    spark.sc().setJobDescription(name);
    if (!parts.isEmpty()) road.accept(parts);
  }

  /** What a run has left in its own work folder. */
  private static void delete(Path work) throws IOException {
    try (DirectoryStream<Path> files = Files.newDirectoryStream(work)) {
      for (Path file : files) Files.delete(file);
    }
    Files.delete(work);
  }

  /** The words of the engine, if it is what failed, on whichever machine. */
  private static String reason(Throwable failure) {
    for (Throwable cause = failure; cause != null; cause = cause.getCause())
      if (cause instanceof VorlaneException ours) return ours.getMessage();
    return failure.getMessage() != null ? failure.getMessage() : failure.toString();
  }
}
