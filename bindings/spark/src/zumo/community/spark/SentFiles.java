package zumo.community.spark;

import java.io.IOException;
import java.io.Serializable;
import java.io.UncheckedIOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.stream.Stream;
import org.apache.spark.SparkFiles;
import org.apache.spark.api.java.JavaRDD;
import org.apache.spark.api.java.JavaSparkContext;
import org.apache.spark.api.java.function.Function;
import scala.Function1;
import scala.Function2;
import scala.collection.Iterator;
import scala.reflect.ClassTag$;
import scala.runtime.BoxedUnit;

/**
 * Only the driver sees the work folder and the results directory. What the executors need of the
 * work folder is sent to each of them, once, into the folder that Spark has there for such files.
 * What they make comes back with their answers, which the driver writes as they come.
 */
final class SentFiles implements Road {
  /** What an answer may hold: an array of Java, less what Spark adds. */
  private static final long MOST_BYTES = Integer.MAX_VALUE - (1 << 20);

  private final JavaSparkContext spark;
  private final Path work;
  private final Path resultsDir;

  SentFiles(JavaSparkContext spark, Path work, Path resultsDir) {
    this.spark = spark;
    this.work = work;
    this.resultsDir = resultsDir;
  }

  @Override
  public void search(List<Integer> parts) {
    send("graph.bin", "plan.tsv", "run.json");
    collect(parts, SentFiles::search);
  }

  @Override
  public void levels(List<Integer> parts) {
    send("cliques.bin", "levels.tsv");
    collect(parts, SentFiles::levels);
  }

  private void send(String... names) {
    for (String name : names) spark.addFile(work.resolve(name).toString());
  }

  /** Has the executors do the parts, one task each, and writes what they make as it comes. */
  private void collect(List<Integer> parts, Function<Integer, ArrayList<SentFile>> make) {
    JavaRDD<ArrayList<SentFile>> made = spark.parallelize(parts, parts.size()).map(make);
    Function1<Iterator<ArrayList<SentFile>>, ArrayList<SentFile>> only =
        (Function1<Iterator<ArrayList<SentFile>>, ArrayList<SentFile>> & Serializable)
            Iterator::next;
    Function2<Object, ArrayList<SentFile>, BoxedUnit> write = (place, files) -> {
      write(files);
      return BoxedUnit.UNIT;
    };
    spark.sc().runJob(made.rdd(), only, write, ClassTag$.MODULE$.apply(ArrayList.class));
  }

  private void write(List<SentFile> files) {
    try {
      for (SentFile file : files) file.putInto(file.isResult() ? resultsDir : work);
    } catch (IOException failure) {
      throw new UncheckedIOException(failure);
    }
  }

  private static ArrayList<SentFile> search(int part) throws Exception {
    Path folder = Path.of(SparkFiles.getRootDirectory());
    TaskWork.run(folder, folder, all -> all.search(part));
    ArrayList<SentFile> files = new ArrayList<>();
    take(folder, folder.resolve("cliques." + part + ".bin"), false, files);
    return files;
  }

  private static ArrayList<SentFile> levels(int part) throws Exception {
    Path folder = Path.of(SparkFiles.getRootDirectory());
    Path results = Files.createTempDirectory(folder, "levels");
    ArrayList<SentFile> files = new ArrayList<>();
    try {
      TaskWork.run(folder, results, all -> all.levels(part));
      for (Path path : allIn(results))
        if (Files.isRegularFile(path)) take(results, path, true, files);
    } finally {
      for (Path path : allIn(results)) Files.delete(path);
    }
    take(folder, folder.resolve("levels." + part + ".done"), false, files);
    return files;
  }

  /** Moves a file into an answer, which must not get too large. */
  private static void take(Path folder, Path file, boolean result, List<SentFile> files)
      throws IOException {
    long size = Files.size(file) + files.stream().mapToLong(SentFile::size).sum();
    if (size > MOST_BYTES)
      throw new IOException("A part has made " + size + " bytes or more, and no more than "
          + MOST_BYTES + " come through Spark at once. With a shared folder nothing is sent; a plan"
          + " of more parts may do as well.");
    files.add(SentFile.of(folder, file, result));
    Files.delete(file);
  }

  /** All in a folder and the folder itself, each behind what it holds. */
  private static List<Path> allIn(Path folder) throws IOException {
    try (Stream<Path> all = Files.walk(folder)) {
      return all.sorted(Comparator.reverseOrder()).toList();
    }
  }
}
