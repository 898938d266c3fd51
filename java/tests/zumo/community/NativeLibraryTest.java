package zumo.community;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.File;
import java.io.IOException;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

public class NativeLibraryTest {
  private static final String FILE_NAME = System.mapLibraryName("vorlane");

  @Rule public final TemporaryFolder folder = new TemporaryFolder();

  @Test
  public void theOwnFolderComesBeforeTheSearchPath() {
    String searchPath = String.join(File.pathSeparator, "", "/one", "/own", "/two");
    List<Path> onPath = List.of(Path.of("/one", FILE_NAME), Path.of("/two", FILE_NAME));
    assertEquals(List.of(Path.of("/own", FILE_NAME), onPath.get(0), onPath.get(1)),
        NativeLibrary.candidates(Path.of("/own"), searchPath));
    assertEquals(Path.of("/one", FILE_NAME), NativeLibrary.candidates(null, searchPath).get(0));
  }

  @Test
  public void theFirstFileThatLoadsIsTaken() throws IOException {
    Path missing = folder.getRoot().toPath().resolve("missing");
    Path broken = folder.newFile("broken").toPath();
    Path good = folder.newFile("good").toPath();
    Path late = folder.newFile("late").toPath();
    List<String> asked = new ArrayList<>();
    NativeLibrary.loadFirst(List.of(missing, broken, good, late), file -> {
      asked.add(file);
      if (file.endsWith("broken")) throw new UnsatisfiedLinkError("wrong machine");
    });
    assertEquals(List.of(broken.toString(), good.toString()), asked);
  }

  @Test
  public void theErrorTellsEveryPlaceAndWhatWasWrongThere() throws IOException {
    String broken = folder.newFile("broken").toString();
    String text = assertThrows(UnsatisfiedLinkError.class, () -> NativeLibrary.loadFirst(
        List.of(Path.of("/nowhere", FILE_NAME), Path.of(broken)),
        file -> {
          throw new UnsatisfiedLinkError("wrong machine");
        })).getMessage();
    assertTrue(text, text.contains("/nowhere/" + FILE_NAME + ": no such file"));
    assertTrue(text, text.contains(broken + ": wrong machine"));
  }

  @Test
  public void aNamedFileIsTheOnlyOneTried() {
    System.setProperty(NativeLibrary.PROPERTY, "/nowhere/named.so");
    try {
      String text = assertThrows(UnsatisfiedLinkError.class, NativeLibrary::load).getMessage();
      assertTrue(text, text.contains("/nowhere/named.so"));
      assertEquals(text, -1, text.indexOf(FILE_NAME));
    } finally {
      System.clearProperty(NativeLibrary.PROPERTY);
    }
  }
}
