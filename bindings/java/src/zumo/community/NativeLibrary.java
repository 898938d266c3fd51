package zumo.community;

import java.io.File;
import java.io.IOException;
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

  /** The system property that names the folder for the copy of the library that the jar carries. */
  public static final String FOLDER_PROPERTY = "vorlane.native.dir";

  static final String NAME = "vorlane_java";
  private static final String FILE_NAME = System.mapLibraryName(NAME);
  private static boolean loaded;

  private NativeLibrary() {}

  /**
   * Loads the file that {@link #PROPERTY} names. If it isn't set, looks in the folder of the jar,
   * then in those of {@code java.library.path}; then takes the library that the jar carries and
   * unpacks it into the folder that {@link #FOLDER_PROPERTY} names, else {@code vorlane} in the
   * user's folder for caches. Does nothing if the library is loaded already.
   *
   * @throws UnsatisfiedLinkError if there is none, with all places where it was looked for
   */
  public static synchronized void load() {
    String named = System.getProperty(PROPERTY);
    if (named != null) load(Path.of(named));
    else loadOnce(candidates(), CarriedLibrary::unpacked);
  }

  /** Loads this file and no other, unless the library is loaded already. */
  public static synchronized void load(Path library) {
    loadOnce(List.of(library), null);
  }

  /** Makes a file of the library, and yields it. */
  interface Unpacking {
    Path unpacked() throws IOException;
  }

  @SuppressWarnings("restricted")  // To load native code is what this class is for.
  private static void loadOnce(List<Path> candidates, Unpacking carried) {
    if (loaded) return;
    loadFirst(candidates, carried, System::load);
    loaded = true;
  }

  /** Has the first file loaded that can be; `carried` comes last, and may be null. */
  static void loadFirst(List<Path> candidates, Unpacking carried, Consumer<String> loader) {
    StringBuilder tried = new StringBuilder();
    for (Path candidate : candidates) {
      tried.append("\n  ").append(candidate.toAbsolutePath()).append(": ");
      if (!Files.exists(candidate)) tried.append("no such file");
      else if (isLoaded(candidate, loader, tried)) return;
    }
    String cure = "\nThe option -D" + PROPERTY + "=FILE of java tells where it is.";
    if (carried != null) {
      tried.append("\n  the copy in the jar: ");
      try {
        if (isLoaded(carried.unpacked(), loader, tried)) return;
      } catch (IOException failure) {
        tried.append(failure);
      }
      cure += "\nThe option -D" + FOLDER_PROPERTY + "=FOLDER names another folder for the copy in"
          + " the jar:\none that can be written to and isn't mounted noexec.";
    }
    throw new UnsatisfiedLinkError(
        "The native library of Vorlane could not be loaded. Tried:" + tried + cure);
  }

  private static boolean isLoaded(Path file, Consumer<String> loader, StringBuilder tried) {
    try {
      loader.accept(file.toAbsolutePath().toString());
      return true;
    } catch (UnsatisfiedLinkError failure) {
      tried.append(failure.getMessage());
      return false;
    }
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
