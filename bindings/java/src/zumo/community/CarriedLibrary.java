package zumo.community;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.*;
import java.nio.file.attribute.PosixFilePermission;
import java.nio.file.attribute.PosixFilePermissions;
import java.security.MessageDigest;
import java.security.NoSuchAlgorithmException;
import java.util.Arrays;
import java.util.HexFormat;
import java.util.Locale;
import java.util.Set;

/**
 * The native library that the jar carries, and its copy in a folder: a system loads it from a file
 * only. The file is named by its contents and comes into its place in one step, so that any number
 * of JVMs and versions may share the folder.
 */
final class CarriedLibrary {
  private static final Path PROCESS = Path.of("/proc/self");
  private static final int HASH_BYTES = 8;

  private CarriedLibrary() {}

  /** Where it stands in the jar: in the folder of the kind of machine. */
  static String resource() {
    String machine = System.getProperty("os.arch");
    return "/native/" + System.getProperty("os.name").toLowerCase(Locale.ROOT) + "-"
        + (machine.equals("amd64") ? "x86_64" : machine) + "/"
        + System.mapLibraryName(NativeLibrary.NAME);
  }

  /** The folder that the system property names, or that of the user for such files. */
  static Path folder() {
    String set = System.getProperty(NativeLibrary.FOLDER_PROPERTY);
    if (set != null) return Path.of(set);
    String caches = System.getenv("XDG_CACHE_HOME");
    Path cache = caches != null && caches.startsWith("/")
        ? Path.of(caches) : Path.of(System.getProperty("user.home"), ".cache");
    return cache.resolve("vorlane");
  }

  /**
   * The file, which is made unless it is there.
   *
   * @throws IOException if the jar has none for this machine, or the folder can't have it
   */
  static Path unpacked() throws IOException {
    byte[] library = contents();
    Path folder = folder();
    prepare(folder);
    if (System.getProperty(NativeLibrary.FOLDER_PROPERTY) == null) refuseForeign(folder);
    Path file = folder.resolve(NativeLibrary.NAME + "-" + hash(library) + ".so");
    if (Files.exists(file) && Arrays.equals(Files.readAllBytes(file), library)) return file;
    Path unfinished = Files.createTempFile(folder, NativeLibrary.NAME, ".tmp");
    try {
      Files.write(unfinished, library);
      Files.setPosixFilePermissions(unfinished, PosixFilePermissions.fromString("r-x------"));
      return Files.move(unfinished, file, StandardCopyOption.ATOMIC_MOVE);
    } finally {
      Files.deleteIfExists(unfinished);
    }
  }

  private static byte[] contents() throws IOException {
    try (InputStream in = CarriedLibrary.class.getResourceAsStream(resource())) {
      if (in == null) throw new NoSuchFileException(resource(), null, "the jar has none");
      return in.readAllBytes();
    }
  }

  /** Makes the folder, for nobody but the user. */
  private static void prepare(Path folder) throws IOException {
    if (Files.isDirectory(folder)) return;
    Path above = folder.toAbsolutePath().getParent();
    if (above != null) Files.createDirectories(above);
    try {
      Files.createDirectory(folder,
          PosixFilePermissions.asFileAttribute(PosixFilePermissions.fromString("rwx------")));
    } catch (FileAlreadyExistsException another) {
      if (!Files.isDirectory(folder)) throw another;
    }
  }

  /** Who could write there could have this process do anything. */
  private static void refuseForeign(Path folder) throws IOException {
    Set<PosixFilePermission> permissions = Files.getPosixFilePermissions(folder);
    boolean open = permissions.contains(PosixFilePermission.GROUP_WRITE)
        || permissions.contains(PosixFilePermission.OTHERS_WRITE);
    boolean own = !Files.exists(PROCESS) || Files.getAttribute(folder, "unix:uid")
        .equals(Files.getAttribute(PROCESS, "unix:uid"));
    if (open || !own)
      throw new AccessDeniedException(folder.toString(), null, "others can write to it");
  }

  private static String hash(byte[] contents) {
    try {
      byte[] hash = MessageDigest.getInstance("SHA-256").digest(contents);
      return HexFormat.of().formatHex(hash, 0, HASH_BYTES);
    } catch (NoSuchAlgorithmException impossible) {
      throw new IllegalStateException(impossible);
    }
  }
}
