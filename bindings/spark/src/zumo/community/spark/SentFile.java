package zumo.community.spark;

import java.io.IOException;
import java.io.Serializable;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;

/** A file on its way from an executor to the driver. */
final class SentFile implements Serializable {
  private static final long serialVersionUID = 1;

  private final String name;
  private final boolean result;
  private final byte[] contents;

  private SentFile(String name, boolean result, byte[] contents) {
    this.name = name;
    this.result = result;
    this.contents = contents;
  }

  /**
   * Takes the contents of a file along, with its path as seen from the folder. A result goes to the
   * results directory, anything else to the work folder.
   *
   * @throws IOException if it can't be read
   */
  static SentFile of(Path folder, Path file, boolean result) throws IOException {
    return new SentFile(folder.relativize(file).toString(), result, Files.readAllBytes(file));
  }

  boolean isResult() {
    return result;
  }

  long size() {
    return contents.length;
  }

  /** Puts it in its place below a folder, in one step. */
  void putInto(Path folder) throws IOException {
    Path file = folder.resolve(name);
    Files.createDirectories(file.getParent());
    Path aside = file.resolveSibling(file.getFileName() + ".sent");
    Files.write(aside, contents);
    Files.move(aside, file, StandardCopyOption.ATOMIC_MOVE);
  }
}
