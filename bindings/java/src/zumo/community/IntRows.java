package zumo.community;

import java.util.Arrays;

/**
 * Rows of numbers in two flat arrays: row i is {@code values[starts[i]]} up to
 * {@code values[starts[i + 1]]}. There is one start more than rows.
 *
 * @param starts the array itself, not a copy; who changes it changes the rows
 * @param values the same
 */
public record IntRows(int[] starts, int[] values) {
  /** How many rows there are. */
  public int size() {
    return starts.length - 1;
  }

  /** A copy of a row. */
  public int[] row(int index) {
    return Arrays.copyOfRange(values, starts[index], starts[index + 1]);
  }

  /** How many numbers a row has. */
  public int sizeOf(int index) {
    return starts[index + 1] - starts[index];
  }

  /** Copies of all rows. */
  public int[][] toArrays() {
    int[][] rows = new int[size()][];
    for (int i = 0; i < rows.length; ++i) rows[i] = row(i);
    return rows;
  }

  @Override
  public boolean equals(Object other) {
    return other instanceof IntRows rows && Arrays.equals(starts, rows.starts)
        && Arrays.equals(values, rows.values);
  }

  @Override
  public int hashCode() {
    return 31 * Arrays.hashCode(starts) + Arrays.hashCode(values);
  }

  @Override
  public String toString() {
    return Arrays.deepToString(toArrays());
  }
}
