package zumo.community;

import static org.junit.Assert.*;

import java.io.File;
import java.nio.file.AccessDeniedException;
import java.nio.file.Path;
import java.util.*;
import org.junit.*;
import org.junit.rules.TemporaryFolder;

public class NativeLibraryTest {
  private static final String FILE_NAME = System.mapLibraryName("vorlane_java");

  @Rule public final TemporaryFolder folder = new TemporaryFolder();

  @Test
  public void theOwnFolderComesBeforeTheSearchPath() {
    Path one = Path.of("/one", FILE_NAME);
    Path own = Path.of("/own", FILE_NAME);
    Path two = Path.of("/two", FILE_NAME);
    String searchPath = String.join(File.pathSeparator, "", "/one", "/own", "/two");
    assertEquals(List.of(own, one, two), NativeLibrary.candidates(Path.of("/own"), searchPath));
    assertEquals(List.of(one, own, two), NativeLibrary.candidates(null, searchPath));
  }

  @Test
  public void theFirstFileThatLoadsIsTakenAndTheErrorTellsThemAll() throws Exception {
    List<Path> files = new ArrayList<>(List.of(Path.of("/nowhere", FILE_NAME)));
    for (String name : List.of("broken", "good", "late")) files.add(folder.newFile(name).toPath());
    List<Path> asked = new ArrayList<>();
    NativeLibrary.loadFirst(files, null, file -> {
      asked.add(Path.of(file));
      if (file.endsWith("broken")) throw new UnsatisfiedLinkError("wrong machine");
    });
    assertEquals(files.subList(1, 3), asked);
    String text = assertThrows(UnsatisfiedLinkError.class,
        () -> NativeLibrary.loadFirst(files, null, file -> {
          throw new UnsatisfiedLinkError("wrong machine");
        })).getMessage();
    assertTrue(text, text.contains("/nowhere/" + FILE_NAME + ": no such file"));
    for (Path file : files.subList(1, 4))
      assertTrue(text, text.contains(file + ": wrong machine"));
  }

  /** A folder that is mounted noexec lets nothing be loaded; one that can't be written, too. */
  @Test
  public void theCopyInTheJarComesLastAndTheErrorTellsTheCure() throws Exception {
    Path file = folder.newFile("near").toPath();
    Path copy = folder.newFile("copy").toPath();
    List<String> asked = new ArrayList<>();
    String text = assertThrows(UnsatisfiedLinkError.class,
        () -> NativeLibrary.loadFirst(List.of(file), () -> copy, asking -> {
          asked.add(asking);
          throw new UnsatisfiedLinkError(asking + ": failed to map segment");
        })).getMessage();
    assertEquals(List.of(file.toString(), copy.toString()), asked);
    assertTrue(text, text.contains(copy + ": failed to map segment"));
    assertTrue(text, text.contains("-Dvorlane.native.dir=FOLDER"));
    assertTrue(text, text.contains("noexec"));
    NativeLibrary.loadFirst(List.of(file), () -> copy, asking -> {
      if (asking.endsWith("near")) throw new UnsatisfiedLinkError("wrong machine");
    });
    text = assertThrows(UnsatisfiedLinkError.class,
        () -> NativeLibrary.loadFirst(List.of(), () -> {
          throw new AccessDeniedException("/caches");
        }, asked::add)).getMessage();
    assertTrue(text, text.contains("AccessDeniedException: /caches"));
    assertEquals(2, asked.size());
  }

  @Test
  public void aNamedFileIsTheOnlyOneTried() {
    System.setProperty(NativeLibrary.PROPERTY, "/nowhere/named.so");
    String text = assertThrows(UnsatisfiedLinkError.class, NativeLibrary::load).getMessage();
    assertTrue(text, text.contains("/nowhere/named.so"));
    assertFalse(text, text.contains(FILE_NAME));
  }
}
