package zumo.community;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Runs in this process, with the native library beside the jar. */
public class RunTest {
  @Rule public final TemporaryFolder folder = new TemporaryFolder();

  private Path dir(String name) {
    return folder.getRoot().toPath().resolve(name);
  }

  private Run run(String resultsDir) {
    String links = Path.of(System.getProperty("vorlane.examples"), "choir.txt").toString();
    return new Run(links, dir(resultsDir).toString());
  }

  @Test
  public void resultsStayOnDiskUnlessTheyAreAskedFor() throws Exception {
    run("found").singleK(4).find();
    assertTrue(Files.exists(dir("found").resolve("k=4")));
    assertFalse(Files.exists(dir("found").resolve("k=3")));
    assertEquals(5, Run.load(dir("found").toString()).getCommunities(4).size());
  }

  @Test
  public void runsEndAtOnceBetweenAStopAndItsReset() throws Exception {
    ExternalCalls.Stop_process();
    assertTrue(Run.isStop(assertThrows(Exception.class, run("stopped")::findAndLoad)));
    assertEquals(" Process stopped by user.\n", ExternalCalls.Read_state_report());
    ExternalCalls.Reset_stop_process();
    assertEquals(14, run("finished").findAndLoad().getCliques().size());
    assertEquals(" done.", ExternalCalls.Read_state_report());
    assertFalse(Run.isStop(assertThrows(Exception.class, run("finished")::findAndLoad)));
    assertEquals("", ExternalCalls.Read_error_message());
  }
}
