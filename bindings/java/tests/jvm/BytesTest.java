import static java.nio.charset.StandardCharsets.*;
import static org.junit.Assert.*;

import java.io.IOException;
import java.nio.charset.Charset;
import java.nio.file.*;
import java.util.*;
import org.junit.*;
import zumo.community.*;

/** Names are any bytes but white space, and a JVM anywhere in the world writes the same bytes. */
public class BytesTest extends Fixture {
  /** Three names make a triangle; each is given by its bytes, one character a byte. */
  private OutParams triangle(List<String> expected, String a, String b, String c) throws Exception {
    String links = write("links", String.join(" ", a, b, "\n", b, c, "\n", c, a, "\n"));
    OutParams results = new Run(links, newDir()).findAndLoad();
    List<String> names = results.getCliques().get(0).getVertices();
    assertEquals(expected, names.stream().sorted().toList());
    assertEquals(names, results.getCommunities(3).get(0).getVertices());
    return results;
  }

  private static String bytes(String text) {
    return new String(text.getBytes(UTF_8), ISO_8859_1);
  }

  /** Those of the network are decoded as the JVM decodes paths. */
  @Test
  public void ofNames() throws Exception {
    List<String> utf8 = List.of("Zo\u00EB", "\u7FA4", "\uD83D\uDE00\uD83C\uDFB5");
    triangle(utf8, bytes(utf8.get(0)), bytes(utf8.get(1)), bytes(utf8.get(2)));
    String first = "a\0\u00E4";
    OutParams results = triangle(List.of("a\0\uFFFD", "b\uFFFD\0", "c\uFFFD"),
        first, "b\u00FF\u00C0\u0080", "c\u00F0\u009F");
    assertEquals(new String(first.getBytes(ISO_8859_1), Charset.defaultCharset()),
        results.getInParams().getEdges(false).get(0).getVertex1());
    assertEquals(3, results.getInParams().getVertices().size());
  }

  /** One replacement for each broken sequence, as the JVM does it in the names of the network. */
  @Test
  public void ofBrokenNames() throws Exception {
    Assume.assumeTrue(Charset.defaultCharset().equals(UTF_8));
    List<String> ends = List.of("", "\u0080", "\u009F\u0098", "\u00A0", "\u0090\u0080\u0080", "z");
    for (int lead = 0x80; lead < 0x100; ++lead) {
      if (lead == 0xC0) continue;  // C0 80 is a zero in the names of cliques
      List<String> names = new ArrayList<>();
      for (String end : ends) names.add("n" + names.size() + (char) lead + end);
      StringBuilder links = new StringBuilder();
      for (String a : names)
        for (String b : names) links.append(a).append(' ').append(b).append('\n');
      OutParams results = new Run(write("broken", links.toString()), newDir()).findAndLoad();
      assertEquals(results.getInParams().getVertices(),
          new HashSet<>(results.getCliques().get(0).getVertices()));
    }
  }

  private Child child(String out, String locale, String... options) throws Exception {
    ProcessBuilder jvm =
        calling(List.of(options), "weighted|" + example("choir.txt") + "|" + out);
    jvm.environment().putAll(Map.of("LC_ALL", locale, "LOCPATH", path("")));
    return end(jvm);
  }

  private Map<String, String> results(String locale, String... options) throws Exception {
    String out = newDir();
    assertTrue(child(out, locale, options).out().contains("no approximation was needed"));
    return contents(out);
  }

  /** The Turkish one writes 0,5 and has another small I. */
  @Test
  public void ofResultsInAnyLocale() throws Exception {
    try {
      new ProcessBuilder("localedef", "--no-archive", "-i", "tr_TR", "-f", "UTF-8",
          path("tr_TR.UTF-8")).start().waitFor();
    } catch (IOException noLocaledef) {
      // The name alone still changes what the JVM takes for its own.
    }
    Map<String, String> expected = results("C.UTF-8");
    assertTrue(expected.get("/input_params.txt").contains("5.250000"));
    assertEquals(expected, results("C", "-Duser.language=de", "-Duser.country=DE"));
    assertEquals(expected, results("tr_TR.UTF-8", "-Dfile.encoding=ISO-8859-1"));
  }

  /** Paths pass in the default character set; in this one each has zero bytes inside. */
  @Test
  public void ofPathsInUtf16() throws Exception {
    String told = child(path("out"), "C.UTF-8", "-Dfile.encoding=UTF-16").out();
    assertTrue(told, told.replace("\0", "")
        .contains("! VorlaneException PARAMETERS ERROR: a path has a zero byte inside."));
    assertFalse(Files.exists(Path.of(path("out"))));
  }
}
