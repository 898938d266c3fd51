import static org.junit.Assert.*;

import java.io.IOException;
import java.nio.file.*;
import java.util.List;
import org.junit.Test;
import zumo.community.*;

/** What calls take they give back, and of a big result nothing is held twice. */
public class MemoryTest extends Fixture {
  private static final long MEGABYTE = 1 << 20;
  private static final long PAGE = 4096;

  private static long heap() {
    System.gc();
    return Runtime.getRuntime().totalMemory() - Runtime.getRuntime().freeMemory();
  }

  private static long resident() throws IOException {
    return Long.parseLong(Files.readString(Path.of("/proc/self/statm")).split(" ")[1]) * PAGE;
  }

  private void runAndLoad(int times) throws Exception {
    for (int i = 0; i < times; ++i) {
      String out = newDir();
      new Run(example("choir.txt"), out).findAndLoad();
      for (int loads = 0; loads < 5; ++loads) Run.load(out);
    }
  }

  @Test
  public void isFlatOverManyCalls() throws Exception {
    runAndLoad(20);
    long heap = heap();
    long resident = resident();
    runAndLoad(40);
    assertTrue("heap " + (heap() - heap), heap() - heap < MEGABYTE);
    assertTrue("resident " + (resident() - resident), resident() - resident < 8 * MEGABYTE);
  }

  /** The run holds 5 million cliques at its end; a limit stops it, and later runs go on. */
  @Test
  public void endsARunAtItsLimit() throws Exception {
    Run run = new Run(hardLinks(42), path("hardOut")).memoryLimit(50 * MEGABYTE);
    VorlaneException end = assertThrows(VorlaneException.class, run::find);
    assertEquals(VorlaneException.Kind.MEMORY, end.getKind());
    assertEquals("The memory limit of the run, 52428800 bytes, was reached.\n", end.getMessage());
    new Run(example("choir.txt"), newDir()).memoryLimit(1000 * MEGABYTE).find();
  }

  /** A million members of few names fit where a million strings don't. */
  @Test
  public void holdsAMillionMembers() throws Exception {
    new Run(example("choir.txt"), path("out")).find();
    StringBuilder communities = new StringBuilder();
    for (int i = 0; i < 1000; ++i)
      communities.append(i).append(": ").append("Ada Bruno ".repeat(500)).append('\n');
    write("out/k=3/communities", communities.toString());
    Child child = end(calling(List.of("-Xmx20m", "-XX:+UseSerialGC"), "load|" + path("out")));
    assertEquals(" process ended succesfully\n= 27 nodes, 14 cliques, k [3, 4, 5]\n", child.out());
  }
}
