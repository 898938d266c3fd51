import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import java.util.stream.Stream;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** A JVM anywhere in the world writes the same bytes. */
public class LocalesTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  private Path locales;

  /** Locales that write 0,5: the system may have none. */
  @Before
  public void makeLocales() throws Exception {
    locales = dir.newFolder("locales").toPath();
    for (String name : List.of("de_DE", "tr_TR")) {
      try {
        new ProcessBuilder("localedef", "--no-archive", "-i", name, "-f", "UTF-8",
            locales.resolve(name + ".UTF-8").toString()).start().waitFor();
      } catch (IOException noLocaledef) {
        // The names alone still change what the JVM takes for its own.
      }
    }
  }

  private static Map<String, String> contents(Path dir) throws IOException {
    Map<String, String> contents = new TreeMap<>();
    try (Stream<Path> files = Files.walk(dir)) {
      for (Path file : files.filter(Files::isRegularFile).toList())
        contents.put(dir.relativize(file).toString(),
            Files.readString(file, StandardCharsets.ISO_8859_1));
    }
    return contents;
  }

  private Map<String, String> results(String locale, String... options) throws Exception {
    Path out = dir.getRoot().toPath().resolve("out");
    Map<String, String> environment =
        Map.of("LC_ALL", locale, "LOCPATH", locales.toString());
    Child child = Child.run(List.of(options), environment,
        "weighted|" + Examples.file("choir.txt") + "|" + out);
    assertTrue(child.out() + child.err(), child.out().contains("no approximation was needed"));
    Map<String, String> contents = contents(out);
    assertEquals(0, new ProcessBuilder("rm", "-r", out.toString()).start().waitFor());
    return contents;
  }

  @Test
  public void writeTheSameBytes() throws Exception {
    Map<String, String> expected = results("C.UTF-8");
    assertTrue(expected.get("input_params.txt").contains("5.250000"));
    assertEquals(expected, results("C"));
    assertEquals(expected, results("de_DE.UTF-8"));
    assertEquals(expected, results("tr_TR.UTF-8"));
    assertEquals(expected, results("C.UTF-8", "-Duser.language=de", "-Duser.country=DE"));
    assertEquals(expected, results("C.UTF-8", "-Dfile.encoding=ISO-8859-1"));
    assertEquals(expected, results("de_DE.UTF-8", "-Dfile.encoding=UTF-8"));
  }

  /** Paths pass in the default character set; in this one each has zero bytes inside. */
  @Test
  public void refusePathsInUtf16() throws Exception {
    Path out = dir.getRoot().toPath().resolve("out");
    Child child = Child.run(List.of("-Dfile.encoding=UTF-16"), Map.of(),
        "findAndLoad|" + Examples.file("choir.txt") + "|" + out);
    String told = new String(child.out().getBytes(StandardCharsets.ISO_8859_1),
        StandardCharsets.UTF_16);
    assertTrue(told, told.contains("! java.lang.Exception ERROR: a path has a zero byte inside."));
    assertFalse(Files.exists(out));
  }
}
