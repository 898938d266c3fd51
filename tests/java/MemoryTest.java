import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.io.PrintWriter;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;
import zumo.community.ExternalCalls;
import zumo.community.Run;

/** What calls take they give back, and of a big result nothing is held twice. */
public class MemoryTest {
  private static final long MEGABYTE = 1 << 20;
  private static final long PAGE = 4096;

  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  private static long heap() {
    System.gc();
    return Runtime.getRuntime().totalMemory() - Runtime.getRuntime().freeMemory();
  }

  private static long resident() throws IOException {
    return Long.parseLong(Files.readString(Path.of("/proc/self/statm")).split(" ")[1]) * PAGE;
  }

  private void runAndLoad(int times) throws Exception {
    for (int i = 0; i < times; ++i) {
      Path out = dir.newFolder().toPath().resolve("out");
      new Run(Examples.file("choir.txt"), out.toString()).findAndLoad();
      for (int loads = 0; loads < 10; ++loads) ExternalCalls.loadComs(out.toString(), false, false);
    }
  }

  @Test
  public void isFlatOverManyCalls() throws Exception {
    runAndLoad(50);
    long heap = heap();
    long resident = resident();
    runAndLoad(100);
    assertTrue("heap " + (heap() - heap), heap() - heap < MEGABYTE);
    assertTrue("resident " + (resident() - resident), resident() - resident < 16 * MEGABYTE);
  }

  /** A million members of few names fit where a million strings don't. */
  @Test
  public void holdsAMillionMembers() throws Exception {
    Path out = dir.newFolder().toPath();
    new Run(Examples.file("choir.txt"), out.toString()).find();
    try (PrintWriter communities = new PrintWriter(out.resolve("k=3/communities").toFile())) {
      for (int i = 0; i < 1000; ++i) {
        StringBuilder line = new StringBuilder().append(i).append(": ");
        for (int member = 0; member < 500; ++member) line.append("Ada Bruno ");
        communities.println(line);
      }
    }
    Child child =
        Child.run(List.of("-Xmx20m", "-XX:+UseSerialGC"), Map.of(), "load|" + out);
    assertEquals(" process ended succesfully\n= 27 nodes, 14 cliques, k [3, 4, 5]\n", child.out());
  }
}
