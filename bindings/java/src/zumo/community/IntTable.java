package zumo.community;

import java.util.AbstractList;
import java.util.Objects;
import java.util.RandomAccess;
import java.util.function.IntUnaryOperator;

/**
 * Rows of ints, one behind the other in an array, or in a part of one that others share. To others
 * it is an unmodifiable list, whose elements are made when asked for.
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
  private int from;
  private int to;
  private boolean own = true;

  IntTable(int width, RowView<T> view) {
    this.width = width;
    this.view = view;
  }

  /** A table of single ints. */
  static IntTable<Integer> ofInts() {
    return new IntTable<>(1, (values, begin) -> values[begin]);
  }

  /** Takes the ints of an array from one position up to another in place of its own. */
  void share(int[] array, int begin, int end) {
    values = array;
    from = begin;
    to = end;
    own = false;
  }

  void share(int[] array) {
    share(array, 0, array.length);
  }

  /** Another view of rows of this table, of other width perhaps; positions count ints. */
  <U> IntTable<U> part(int width, RowView<U> view, int begin, int end) {
    IntTable<U> part = new IntTable<>(width, view);
    part.share(values, from + begin, from + end);
    return part;
  }

  /** Adds one value; a row is there when all of it has been added. */
  void append(int value) {
    if (!own || to == values.length) moveTo(new int[Math.max(8, ints() + 1 + ints() / 2)]);
    values[to++] = value;
  }

  private void moveTo(int[] array) {
    System.arraycopy(values, from, array, 0, ints());
    to = ints();
    from = 0;
    values = array;
    own = true;
  }

  /** Puts another value in the place of each. */
  void replaceInts(IntUnaryOperator other) {
    moveTo(new int[ints()]);
    for (int i = 0; i < to; ++i) values[i] = other.applyAsInt(values[i]);
  }

  void trimToSize() {
    if (own) moveTo(new int[ints()]);
  }

  /** How many ints it holds, and each of them. */
  int ints() {
    return to - from;
  }

  int value(int place) {
    return values[from + place];
  }

  @Override
  public T get(int index) {
    return view.of(values, from + Objects.checkIndex(index, size()) * width);
  }

  @Override
  public int size() {
    return ints() / width;
  }
}
