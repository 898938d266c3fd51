package zumo.community;

/** An entry of a distribution: a value and how often it occurs. */
public record Frequency(int value, int count) {
  static IntTable<Frequency> table() {
    return new IntTable<>(2, (values, begin) -> new Frequency(values[begin], values[begin + 1]));
  }
}
