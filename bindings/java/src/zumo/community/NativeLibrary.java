package zumo.community;

import java.io.File;
import java.net.URISyntaxException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.security.CodeSource;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Consumer;

/** Finds the native library and loads it, once in a process. */
public final class NativeLibrary {
  /** The system property that names the library's file. */
  public static final String PROPERTY = "vorlane.library";

  private static final String FILE_NAME = System.mapLibraryName("vorlane_java");
  private static boolean loaded;

  private NativeLibrary() {}

  /**
   * Loads the file that the system property names. If it isn't set, looks in the folder of the jar,
   * then in those of {@code java.library.path}. Does nothing if the library is loaded already.
   *
   * @throws UnsatisfiedLinkError if there is none, with all places where it was looked for
   */
  public static synchronized void load() {
    String named = System.getProperty(PROPERTY);
    loadOnce(named != null ? List.of(Path.of(named)) : candidates());
  }

  /** Loads this file and no other, unless the library is loaded already. */
  public static synchronized void load(Path library) {
    loadOnce(List.of(library));
  }

  @SuppressWarnings("restricted")  // To load native code is what this class is for.
  private static void loadOnce(List<Path> candidates) {
    if (loaded) return;
    loadFirst(candidates, System::load);
    loaded = true;
  }

  static void loadFirst(List<Path> candidates, Consumer<String> loader) {
    StringBuilder tried = new StringBuilder();
    for (Path candidate : candidates) {
      String file = candidate.toAbsolutePath().toString();
      tried.append("\n  ").append(file).append(": ");
      if (!Files.exists(candidate)) {
        tried.append("no such file");
        continue;
      }
      try {
        loader.accept(file);
        return;
      } catch (UnsatisfiedLinkError failure) {
        tried.append(failure.getMessage());
      }
    }
    throw new UnsatisfiedLinkError("The native library of Vorlane could not be loaded. Tried:"
        + tried + "\nThe option -D" + PROPERTY + "=FILE of java tells where it is.");
  }

  private static List<Path> candidates() {
    return candidates(ownFolder(), System.getProperty("java.library.path", ""));
  }

  /** The library in the given folder (if there is one), then in those of the search path. */
  static List<Path> candidates(Path folder, String searchPath) {
    List<Path> candidates = new ArrayList<>();
    if (folder != null) candidates.add(folder.resolve(FILE_NAME));
    for (String entry : searchPath.split(File.pathSeparator))
      if (!entry.isEmpty()) candidates.add(Path.of(entry, FILE_NAME));
    return candidates.stream().distinct().toList();
  }

  /** The folder that holds the jar, or the classes if there is no jar; null if nobody knows. */
  private static Path ownFolder() {
    CodeSource source = NativeLibrary.class.getProtectionDomain().getCodeSource();
    if (source == null || source.getLocation() == null) return null;
    try {
      Path place = Path.of(source.getLocation().toURI());
      return Files.isDirectory(place) ? place : place.getParent();
    } catch (URISyntaxException | RuntimeException notAFile) {
      return null;
    }
  }
}
