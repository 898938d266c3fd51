package zumo.community;

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

  /** Whether links must have weights. */
  boolean needWeights() {
    return intensity != null || lowerThreshold != null || upperThreshold != null;
  }

  /** In an order that native code knows: of what is not set, NaN; a number is never NaN. */
  double[] numbers() {
    return new double[] {orNan(intensity), orNan(lowerThreshold), orNan(upperThreshold),
        orNan(timeLimit), k != null ? k : Double.NaN, jobs};
  }

  private static double orNan(Double value) {
    if (value == null) return Double.NaN;
    if (value.isNaN()) throw new IllegalArgumentException("an option is not a number");
    return value;
  }
}
