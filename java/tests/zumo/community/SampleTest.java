package zumo.community;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.BufferedReader;
import java.io.File;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Random;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** The sample as a user runs it, with the native library beside the jar. */
public class SampleTest {
  private static final String WARNING = "WARNING in native method";

  @Rule public final TemporaryFolder folder = new TemporaryFolder();

  private record Outcome(int exitCode, String output, String errors) {
    String table() {
      return output.substring(output.indexOf("  nodes"));
    }
  }

  private static Process start(File errors, String... args) throws IOException {
    List<String> command = new ArrayList<>(List.of(
        Path.of(System.getProperty("java.home"), "bin", "java").toString(), "-Xcheck:jni",
        "-jar", System.getProperty("vorlane.jar")));
    command.addAll(List.of(args));
    ProcessBuilder builder = new ProcessBuilder(command);
    if (errors != null) builder.redirectError(errors);
    return builder.start();
  }

  private Outcome sample(String... args) throws IOException, InterruptedException {
    File errors = folder.newFile();
    Process process = start(errors, args);
    String output = new String(process.getInputStream().readAllBytes());
    return new Outcome(process.waitFor(), output, Files.readString(errors.toPath()));
  }

  private String example(String name) {
    return Path.of(System.getProperty("vorlane.examples"), name).toString();
  }

  private String newDir() {
    return folder.getRoot().toPath().resolve("results" + System.nanoTime()).toString();
  }

  @Test
  public void aReloadShowsWhatTheRunOfAnyKindHasShown() throws Exception {
    String[][] runs = {
      {"nodes 27, links 61, cliques 14", "4            5         6", example("choir.txt")},
      {"nodes 12, links 24, cliques 3", "4            2         5", "-D", example("advice.txt")},
      {"nodes 27, links 61, cliques 14", "4            4         6",
          "-I", "6", "-k", "4", example("choir.txt")},
      {"nodes 23, links 38, cliques 10", "4            3         5",
          "-w", "4", "-W", "12", example("choir.txt")},
      {"(5 of them approximate)", "12            5        12",
          "-t", "0.000001", example("fair.txt")},
    };
    for (String[] run : runs) {
      List<String> args = new ArrayList<>(List.of(run).subList(2, run.length));
      String dir = newDir();
      args.add(dir);
      Outcome found = sample(args.toArray(String[]::new));
      assertEquals(found.errors, 0, found.exitCode);
      for (String text : List.of(run).subList(0, 2))
        assertTrue(found.output, found.table().contains(text));
      Outcome loaded = sample("--load", dir);
      assertEquals(loaded.errors, 0, loaded.exitCode);
      assertEquals(found.table(), loaded.table());
      assertFalse(found.output, found.output.contains(WARNING));
      assertFalse(loaded.output, loaded.output.contains(WARNING));
    }
  }

  @Test
  public void aFailureIsToldInTheEnginesWords() throws Exception {
    Outcome outcome = sample("/nowhere.txt", newDir());
    assertEquals(1, outcome.exitCode);
    assertEquals("ERROR : File not found: '/nowhere.txt'\n", outcome.errors);
    assertEquals(2, sample("/nowhere.txt").exitCode);
  }

  @Test
  public void aSignalStopsTheRunInGoodOrder() throws Exception {
    Process process = start(null, networkWithoutEnd(), newDir());
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

  /** A dense random network, which has more cliques than can be found. */
  private String networkWithoutEnd() throws IOException {
    Random random = new Random(1);
    StringBuilder links = new StringBuilder();
    for (int i = 0; i < 600; ++i)
      for (int j = 0; j < i; ++j)
        if (random.nextInt(10) < 6) links.append("n" + i + " n" + j + "\n");
    return Files.writeString(folder.newFile().toPath(), links).toString();
  }
}
