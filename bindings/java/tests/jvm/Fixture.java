import static java.nio.charset.StandardCharsets.ISO_8859_1;

import java.io.IOException;
import java.nio.file.*;
import java.util.*;
import java.util.stream.Stream;
import org.junit.*;
import org.junit.rules.TemporaryFolder;
import zumo.community.*;

/** What the tests share: a folder, and JVMs of their own that watch native code. */
public abstract class Fixture {
  /** What a JVM has done, its output with one character a byte. */
  record Child(int exitCode, String out, String err) {}

  @Rule public final TemporaryFolder folder = new TemporaryFolder();

  @After
  public void resetStop() {
    ExternalCalls.Reset_stop_process();
  }

  static String example(String name) {
    return Path.of(System.getProperty("vorlane.examples"), name).toString();
  }

  String path(String name) {
    return folder.getRoot() + "/" + name;
  }

  String newDir() throws IOException {
    return folder.newFolder().toString();
  }

  /** Writes a file whose text has one character a byte. */
  String write(String name, String text) throws IOException {
    return Files.writeString(Path.of(path(name)), text, ISO_8859_1).toString();
  }

  /** The text of each file below a directory, one character a byte. */
  static Map<String, String> contents(String dir) throws IOException {
    Map<String, String> contents = new TreeMap<>();
    try (Stream<Path> files = Files.walk(Path.of(dir))) {
      for (Path file : files.filter(Files::isRegularFile).toList())
        contents.put(file.toString().substring(dir.length()), Files.readString(file, ISO_8859_1));
    }
    return contents;
  }

  /** A triangle, and cliques of one each of any three nodes: 59049 of 30 nodes, say. */
  String hardLinks(int nodes) throws IOException {
    StringBuilder links = new StringBuilder("a b\nb c\nc a\n");
    for (int i = 0; i < nodes; ++i)
      for (int j = 0; j < i; ++j)
        if (i / 3 != j / 3) links.append(i).append(' ').append(j).append('\n');
    return write("hard", links.toString());
  }

  static ProcessBuilder java(List<String> args) {
    String program = System.getProperty("java.home") + "/bin/java";
    return new ProcessBuilder(
        Stream.concat(Stream.of(program, "-Xcheck:jni"), args.stream()).toList());
  }

  /** A JVM for calls, each told as its name and its paths, separated by bars. */
  ProcessBuilder calling(List<String> options, String... calls) throws IOException {
    List<String> classPath = new ArrayList<>();
    for (String jar : System.getProperty("java.class.path").split(":")) classPath.add(copied(jar));
    String library = copied(System.getProperty("vorlane.library"));
    List<String> program =
        List.of("-Dvorlane.library=" + library, "-cp", String.join(":", classPath), "Fixture");
    List<String> words = new ArrayList<>();
    for (String call : calls) words.add(withLinkedExamples(call));
    return java(Stream.of(options, program, words).flatMap(List::stream).toList());
  }

  /** A JVM finds no class behind a path that its locale can't tell, be it through a link. */
  private String copied(String file) throws IOException {
    Path copy = Path.of(path(Path.of(file).getFileName().toString()));
    if (!Files.exists(copy)) Files.copy(Path.of(file), copy);
    return copy.toString();
  }

  private String withLinkedExamples(String call) throws IOException {
    Path link = Path.of(path("examples"));
    String examples = System.getProperty("vorlane.examples");
    if (!Files.exists(link)) Files.createSymbolicLink(link, Path.of(examples));
    return call.replace(examples, link.toString());
  }

  /** Shows the output too, where a word of the JVM makes the test fail. */
  Child end(ProcessBuilder jvm) throws IOException, InterruptedException {
    Path out = folder.newFile().toPath();
    Path err = folder.newFile().toPath();
    int exitCode = jvm.redirectOutput(out.toFile()).redirectError(err.toFile()).start().waitFor();
    Child child =
        new Child(exitCode, Files.readString(out, ISO_8859_1), Files.readString(err, ISO_8859_1));
    System.out.println(child);
    return child;
  }

  /** The program of such a JVM. */
  public static void main(String[] args) {
    for (String arg : args) {
      try {
        OutParams results = call(arg.split("\\|"));
        System.out.println("= " + results.getInParams().getVertices().size() + " nodes, "
            + results.getCliques().size() + " cliques, k " + results.getKs()
            + (results.isFinished() ? "" : ", not finished"));
      } catch (Exception | OutOfMemoryError failure) {
        System.out.println("! " + failure.getClass().getSimpleName() + " "
            + (failure instanceof VorlaneException typed ? typed.getKind() + " " : "")
            + failure.getMessage());
      }
    }
  }

  private static OutParams call(String[] words) throws Exception {
    if (words[0].equals("load")) return Run.load(words[1]);
    if (words[0].equals("analyse")) {
      try (Analysis analysis = new Analysis(words[1], new Options())) {
        System.out.println("= " + analysis.next().names(0));
      }
      return new OutParams();
    }
    Run run = new Run(words[1], words[2]);
    if (words[0].equals("limited")) run.timeLimit(1e-6);
    if (words[0].equals("weighted")) run.lowerThreshold(4.5).intensityThreshold(5.25);
    if (!words[0].equals("find")) return run.findAndLoad();
    run.find();
    return new OutParams();
  }
}
