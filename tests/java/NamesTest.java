import static org.junit.Assert.assertEquals;

import java.io.ByteArrayOutputStream;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.stream.Stream;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;
import zumo.community.OutParams;
import zumo.community.Run;

/** Names are any bytes but white space. */
public class NamesTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  /** Three names make a triangle; each is given by its bytes, one character per byte. */
  private OutParams triangle(String... names) throws Exception {
    Path links = dir.getRoot().toPath().resolve("links");
    String text = "";
    for (int i = 0; i < 3; ++i) text += names[i] + " " + names[(i + 1) % 3] + "\n";
    Files.write(links, text.getBytes(StandardCharsets.ISO_8859_1));
    OutParams results = new Run(links.toString(), dir.newFolder().toString()).findAndLoad();
    assertEquals(results.getCliques().get(0).getVertices(),
        results.getCommunities(3).get(0).getVertices());
    return results;
  }

  private static String bytes(String text) {
    return new String(text.getBytes(StandardCharsets.UTF_8), StandardCharsets.ISO_8859_1);
  }

  @Test
  public void inUtf8() throws Exception {
    String[] names = {"Zo\u00EB", "\u7FA4", "\uD83D\uDE00\uD83C\uDFB5"};
    OutParams results = triangle(Stream.of(names).map(NamesTest::bytes).toArray(String[]::new));
    assertEquals(List.of(names), results.getCliques().get(0).getVertices().stream().sorted().toList());
  }

  @Test
  public void inOtherBytes() throws Exception {
    OutParams results = triangle("a\0\u00E4", "b\u00FF\u00C0\u0080", "c\u00F0\u009F");
    assertEquals(List.of("a\0\uFFFD", "b\uFFFD\0", "c\uFFFD\uFFFD"),
        results.getCliques().get(0).getVertices().stream().sorted().toList());
  }

  /** The links of the network are decoded as the JVM decodes files. */
  @Test
  public void ofTheNetwork() throws Exception {
    OutParams results = triangle("a\u00E4", "b\u00F0\u009F\u0098\u0080", "c");
    ByteArrayOutputStream first = new ByteArrayOutputStream();
    first.write('a');
    first.write(0xE4);
    assertEquals(first.toString(Charset.defaultCharset()),
        results.getInParams().getEdges(false).get(0).getVertex1());
  }
}
