package zumo.community.spark;

import java.nio.file.Path;
import java.util.List;
import org.apache.spark.api.java.JavaSparkContext;

/** All machines see the work folder and the results directory, under the same paths. */
final class SharedFolder implements Road {
  private final JavaSparkContext spark;
  private final String work;

  SharedFolder(JavaSparkContext spark, Path work) {
    this.spark = spark;
    this.work = work.toString();
  }

  @Override
  public void search(List<Integer> parts) {
    String folder = work;
    spark.parallelize(parts, parts.size())
        .foreach(part -> TaskWork.run(Path.of(folder), null, all -> all.search(part)));
  }

  @Override
  public void levels(List<Integer> parts) {
    String folder = work;
    spark.parallelize(parts, parts.size())
        .foreach(part -> TaskWork.run(Path.of(folder), null, all -> all.levels(part)));
  }
}
