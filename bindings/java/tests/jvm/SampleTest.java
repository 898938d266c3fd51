import static org.junit.Assert.*;

import java.io.BufferedReader;
import java.util.*;
import org.junit.Test;

/** The sample as a user runs it, with the native library beside the jar. */
public class SampleTest extends Fixture {
  private static ProcessBuilder sample(String... args) {
    List<String> all = new ArrayList<>(List.of("-jar", System.getProperty("vorlane.jar")));
    all.addAll(List.of(args));
    return java(all);
  }

  private String table(String... args) throws Exception {
    Child child = end(sample(args));
    assertEquals(child.err(), 0, child.exitCode());
    return child.out().substring(child.out().indexOf("  nodes"));
  }

  private void check(String links, String options, String... texts) throws Exception {
    String dir = newDir();
    List<String> words = new ArrayList<>(List.of(options.split(" ")));
    words.addAll(List.of(links, dir));
    String table = table(words.toArray(String[]::new));
    for (String text : texts) assertTrue(table, table.contains(text));
    assertEquals(table, table("--load", dir));
  }

  @Test
  public void aReloadShowsWhatTheRunOfAnyKindHasShown() throws Exception {
    String choir = example("choir.txt");
    check(choir, "-I 6 -k 4", "nodes 27, links 61, cliques 14", "4            4         6");
    check(choir, "-w 4 -W 12", "nodes 23, links 38, cliques 10", "4            3         5");
    check(example("advice.txt"), "-D", "nodes 12, links 24, cliques 3", "4            2         5");
    check(hardLinks(30), "-t 0.000001", " of them approximate)");
  }

  @Test
  public void aFailureIsToldInTheEnginesWords() throws Exception {
    Child child = end(sample("/nowhere.txt", newDir()));
    assertEquals(1, child.exitCode());
    assertEquals("ERROR : File not found: '/nowhere.txt'\n", child.err());
    assertEquals(2, end(sample("/nowhere.txt")).exitCode());
  }

  @Test
  public void aSignalStopsTheRunInGoodOrder() throws Exception {
    Process process = sample(hardLinks(150), newDir()).start();
    StringBuilder errors = new StringBuilder();
    try (BufferedReader reader = process.errorReader()) {
      for (String line = reader.readLine(); line != null; line = reader.readLine()) {
        errors.append(line).append('\n');
        if (line.startsWith("Locating cliques")) process.toHandle().destroy();
      }
    }
    assertEquals(errors.toString(), 130, process.waitFor());
    assertTrue(errors.toString(), errors.toString().endsWith("\nProcess stopped by user.\n"));
  }
}
