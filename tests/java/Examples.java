import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;

/** Link files. */
final class Examples {
  private Examples() {}

  static String file(String name) {
    return Path.of(System.getProperty("vorlane.examples"), name).toString();
  }

  /** A triangle, and 30 nodes that form 59049 cliques: too hard for any time limit. */
  static String hard(Path folder) throws IOException {
    StringBuilder links = new StringBuilder("a b\nb c\nc a\n");
    for (int i = 0; i < 30; ++i)
      for (int j = 0; j < i; ++j)
        if (i / 3 != j / 3) links.append(i).append(' ').append(j).append('\n');
    return Files.writeString(folder.resolve("hard"), links).toString();
  }
}
