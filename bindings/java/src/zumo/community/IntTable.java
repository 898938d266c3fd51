package zumo.community;

import java.util.AbstractList;
import java.util.Arrays;
import java.util.Objects;
import java.util.RandomAccess;

/**
 * Rows of ints, one behind the other in one array. To others it is an unmodifiable list, whose
 * elements are made when asked for.
 */
final class IntTable<T> extends AbstractList<T> implements RandomAccess {
  /** Makes the element of the row that begins at a position of the array. */
  interface RowView<T> {
    T of(int[] values, int begin);
  }

  private static final int[] EMPTY = {};

  private final int width;
  private final RowView<T> view;
  private int[] values = EMPTY;
  private int used;

  IntTable(int width, RowView<T> view) {
    this.width = width;
    this.view = view;
  }

  /** A table of single ints. */
  static IntTable<Integer> ofInts() {
    return new IntTable<>(1, (values, begin) -> values[begin]);
  }

  /** Adds one value; a row is there when all of it has been added. */
  void append(int value) {
    if (used == values.length) values = Arrays.copyOf(values, Math.max(8, used + used / 2));
    values[used++] = value;
  }

  void trimToSize() {
    values = Arrays.copyOf(values, used);
  }

  @Override
  public T get(int index) {
    return view.of(values, Objects.checkIndex(index, size()) * width);
  }

  @Override
  public int size() {
    return used / width;
  }
}
