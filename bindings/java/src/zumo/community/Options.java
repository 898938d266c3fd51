package zumo.community;

import java.util.List;
import java.util.stream.Stream;

/** What is asked of an {@link Analysis}, and how it takes the links. */
public final class Options {
  boolean directed;
  boolean links;
  Double intensity;
  Double lowerThreshold;
  Double upperThreshold;
  Double timeLimit;
  Integer k;
  int jobs = 1;
  private String format = "";
  private String blanks = "";
  private List<String> columns = List.of();

  /** Takes links, cliques and communities as directed. */
  public Options directed() {
    directed = true;
    return this;
  }

  /**
   * Takes the intensity method: only k-cliques whose link weights have a geometric mean above this
   * threshold count.
   */
  public Options intensityThreshold(double threshold) {
    intensity = threshold;
    return this;
  }

  /** Drops links of this weight or less. */
  public Options lowerThreshold(double weight) {
    lowerThreshold = weight;
    return this;
  }

  /** Drops links of this weight or more. */
  public Options upperThreshold(double weight) {
    upperThreshold = weight;
    return this;
  }

  /** Looks for communities at this k only, 3 or more. */
  public Options singleK(int k) {
    this.k = k;
    return this;
  }

  /** Limits the processor time that the search may spend on a node at a time. */
  public Options timeLimit(double seconds) {
    timeLimit = seconds;
    return this;
  }

  /** Levels come with the links inside their communities. */
  public Options links() {
    links = true;
    return this;
  }

  /**
   * Works with so many cores; 0 stands for those at hand. The results don't depend on it. Each more
   * takes about half the memory of the first one.
   */
  public Options jobs(int cores) {
    if (cores < 0) throw new IllegalArgumentException("there can't be " + cores + " jobs");
    jobs = cores;
    return this;
  }

  /**
   * What the link file is: links, csv, tsv, graphml, pajek, mtx or metis. Without this its ending
   * tells.
   */
  public Options format(String name) {
    format = name;
    return this;
  }

  /**
   * Of csv and tsv: the columns of the two names and perhaps of the weight, by their names in the
   * first line or by numbers from 1. Without this those that the header names, or the first three.
   */
  public Options columns(String... names) {
    columns = List.of(names);
    return this;
  }

  /**
   * Of {@link Parts}, whose results can't hold white space in names, nor a # in front of one: a
   * character that takes its place. Without this such a name is refused.
   */
  public Options blanks(String character) {
    blanks = character;
    return this;
  }

  /** Whether links must have weights. */
  boolean needWeights() {
    return intensity != null || lowerThreshold != null || upperThreshold != null;
  }

  /** In an order that native code knows: of what is not set, NaN; a number is never NaN. */
  double[] numbers() {
    return new double[] {orNan(intensity), orNan(lowerThreshold), orNan(upperThreshold),
        orNan(timeLimit), k != null ? k : Double.NaN, jobs};
  }

  /** What is asked of a file, in an order that native code knows. */
  String[] texts() {
    return Stream.concat(Stream.of(format, blanks), columns.stream()).toArray(String[]::new);
  }

  private static double orNan(Double value) {
    if (value == null) return Double.NaN;
    if (value.isNaN()) throw new IllegalArgumentException("an option is not a number");
    return value;
  }
}
