import static org.junit.Assert.*;

import java.io.InputStream;
import java.io.OutputStream;
import java.nio.file.*;
import java.nio.file.attribute.PosixFilePermissions;
import java.util.*;
import java.util.jar.*;
import java.util.stream.Stream;
import javax.xml.parsers.DocumentBuilderFactory;
import org.junit.Test;
import org.w3c.dom.Document;

/** The jar as others take it: by itself, without a native library beside it. */
public class PackagedTest extends Fixture {
  private static final String POM = "META-INF/maven/zumo.community/vorlane/pom.xml";
  private static final String FOUND = "5 communities\n";

  private final Path jar = Path.of(System.getProperty("vorlane.jar"));

  /** Where Maven would put it, with the coordinates of its pom. */
  private Path inRepository() throws Exception {
    try (JarFile file = new JarFile(jar.toFile());
        InputStream pom = file.getInputStream(file.getJarEntry(POM))) {
      Document project =
          DocumentBuilderFactory.newInstance().newDocumentBuilder().parse(pom);
      List<String> told = new ArrayList<>();
      for (String name : List.of("groupId", "artifactId", "version"))
        told.add(project.getElementsByTagName(name).item(0).getTextContent());
      assertEquals(file.getManifest().getMainAttributes().getValue("Implementation-Version"),
          told.get(2));
      Path place = Path.of(path("m2"), told.get(0).replace('.', '/'), told.get(1), told.get(2));
      Files.createDirectories(place);
      return Files.copy(jar, place.resolve(told.get(1) + "-" + told.get(2) + ".jar"));
    }
  }

  /** One jar of the classes of an application and of all that this one has. */
  private Path fatJar() throws Exception {
    Manifest manifest = new Manifest();
    manifest.getMainAttributes().put(Attributes.Name.MANIFEST_VERSION, "1.0");
    manifest.getMainAttributes().put(Attributes.Name.MAIN_CLASS, "Application");
    Path fat = Path.of(path("fat.jar"));
    try (OutputStream file = Files.newOutputStream(fat);
        JarOutputStream out = new JarOutputStream(file, manifest);
        JarFile in = new JarFile(jar.toFile())) {
      for (JarEntry entry : Collections.list(in.entries())) {
        if (entry.getName().startsWith("META-INF") || entry.isDirectory()) continue;
        out.putNextEntry(new JarEntry(entry.getName()));
        in.getInputStream(entry).transferTo(out);
      }
      out.putNextEntry(new JarEntry("Application.class"));
      out.write(Application.class.getResourceAsStream("Application.class").readAllBytes());
    }
    return fat;
  }

  private ProcessBuilder application(Path library, String... options) throws Exception {
    String tests = Path.of(
        Application.class.getProtectionDomain().getCodeSource().getLocation().toURI()).toString();
    List<String> words = new ArrayList<>(List.of(options));
    words.addAll(List.of("-cp", library + ":" + tests, "Application", example("choir.txt")));
    return java(words);
  }

  private static List<Path> filesIn(Path folder) throws Exception {
    try (Stream<Path> files = Files.list(folder)) {
      return files.toList();
    }
  }

  private static String permissions(Path file) throws Exception {
    return PosixFilePermissions.toString(Files.getPosixFilePermissions(file));
  }

  /** Its library comes into the folder of the user, once, and again if it isn't whole. */
  @Test
  public void inARepository() throws Exception {
    ProcessBuilder application = application(inRepository());
    application.environment().put("XDG_CACHE_HOME", path("caches"));
    assertEquals(FOUND, end(application).out());
    Path folder = Path.of(path("caches"), "vorlane");
    assertEquals("rwx------", permissions(folder));
    Path library = filesIn(folder).get(0);
    assertEquals("r-x------", permissions(library));
    Object made = Files.getAttribute(library, "unix:ino");
    assertEquals(FOUND, end(application).out());
    assertEquals(made, Files.getAttribute(library, "unix:ino"));

    Files.delete(library);
    Files.writeString(library, "cut off");
    assertEquals(FOUND, end(application).out());
    assertEquals(List.of(library), filesIn(folder));

    Files.setPosixFilePermissions(folder, PosixFilePermissions.fromString("rwxrwxrwx"));
    Child refused = end(application);
    assertTrue(refused.err(), refused.err().contains(folder + ": others can write to it"));
  }

  @Test
  public void inAFatJarOfManyProcesses() throws Exception {
    Path folder = Path.of(path("new/libraries"));
    List<String> words = List.of("-Dvorlane.native.dir=" + folder, "-jar", fatJar().toString(),
        example("choir.txt"));
    List<Process> processes = new ArrayList<>();
    for (int i = 0; i < 4; ++i) processes.add(java(words).start());
    for (Process process : processes) {
      String out = new String(process.getInputStream().readAllBytes());
      assertEquals(new String(process.getErrorStream().readAllBytes()), FOUND, out);
    }
    assertEquals(filesIn(folder).toString(), 1, filesIn(folder).size());
  }

  @Test
  public void whereNothingCanBeUnpacked() throws Exception {
    write("file", "");
    Child child = end(application(inRepository(), "-Dvorlane.native.dir=" + path("file/inside")));
    assertTrue(child.err(), child.err().contains("the copy in the jar: "));
    assertTrue(child.err(), child.err().contains("-Dvorlane.native.dir=FOLDER"));
  }
}
