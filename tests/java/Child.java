import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;

/** What a process of its own has done: the program Calls in a JVM that watches native code. */
record Child(int exitCode, String out, String err) {
  static Child run(List<String> options, Map<String, String> environment, String... calls)
      throws IOException, InterruptedException {
    List<String> command = new ArrayList<>(List.of(
        Path.of(System.getProperty("java.home"), "bin", "java").toString(), "-Xcheck:jni",
        "-Dvorlane.library=" + System.getProperty("vorlane.library"),
        "-cp", System.getProperty("java.class.path")));
    command.addAll(options);
    command.add("Calls");
    command.addAll(List.of(calls));
    File out = File.createTempFile("vorlane", ".out");
    File err = File.createTempFile("vorlane", ".err");
    try {
      ProcessBuilder builder =
          new ProcessBuilder(command).redirectOutput(out).redirectError(err);
      builder.environment().putAll(environment);
      int exitCode = builder.start().waitFor();
      return new Child(exitCode, text(out), text(err));
    } finally {
      out.delete();
      err.delete();
    }
  }

  /** With one character per byte. */
  private static String text(File file) throws IOException {
    return Files.readString(file.toPath(), StandardCharsets.ISO_8859_1);
  }
}
