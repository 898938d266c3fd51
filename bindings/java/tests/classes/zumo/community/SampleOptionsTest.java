package zumo.community;

import static org.junit.Assert.*;

import java.util.Map;
import org.junit.Test;

public class SampleOptionsTest {
  private static SampleOptions parse(String commandLine) {
    return SampleOptions.parse(commandLine.isEmpty() ? new String[0] : commandLine.split(" "));
  }

  @Test
  public void switchesMayStandAnywhere() {
    assertNotNull(parse("-D links.txt -w -1.5 results -W 1e3 -t 0.1 -k 4 -I 2").run());
    assertTrue(parse("links.txt -h").help());
  }

  @Test
  public void aNumberIsOneThatARunCanHave() {
    for (String value : new String[] {"NaN", "Infinity", "-Infinity", "1,5"})
      for (String name : new String[] {"-w", "-W", "-I", "-t", "-k"}) wrong(name, value);
    wrong("-k", "-1");
    wrong("-k", "4294967296");
  }

  private static void wrong(String name, String value) {
    assertEquals(name + " needs a number, not " + value,
        assertThrows(IllegalArgumentException.class,
            () -> parse("links.txt results " + name + " " + value)).getMessage());
  }

  @Test
  public void wrongUsageIsToldByName() {
    Map.of(
        "", "A link file and a directory for the results must be given",
        "links.txt results more", "A link file and a directory for the results must be given",
        "links.txt results -x", "Unknown switch -x",
        "links.txt results -k", "-k needs a value",
        "links.txt results -k 3.5", "-k needs a number, not 3.5",
        "-w links.txt results", "-w needs a number, not links.txt",
        "--load results links.txt", "--load goes with nothing else",
        "--load results -D", "--load goes with nothing else"
    ).forEach((commandLine, message) -> assertEquals(message,
        assertThrows(IllegalArgumentException.class, () -> parse(commandLine)).getMessage()));
  }
}
