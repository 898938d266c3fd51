import java.nio.file.Path;

/** The link files of the examples. */
final class Examples {
  private Examples() {}

  static String file(String name) {
    return Path.of(System.getProperty("vorlane.examples"), name).toString();
  }
}
