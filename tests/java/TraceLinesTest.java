import static org.junit.Assert.assertEquals;

import java.util.List;
import java.util.Map;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** What appears on the terminal is the trace lines, to the letter, and not a word of the JVM. */
public class TraceLinesTest {
  @Rule public final TemporaryFolder dir = new TemporaryFolder();

  private void check(String call, String out, String err) throws Exception {
    Child child = Child.run(List.of(), Map.of(), call);
    assertEquals(out, child.out());
    assertEquals(err, child.err());
    assertEquals(0, child.exitCode());
  }

  @Test
  public void ofEachEntry() throws Exception {
    String results = dir.getRoot() + "/results";
    check("find|" + Examples.file("choir.txt") + "|" + results,
        " starting c++\n in/out args converted\n calling Find_coms\n process ended succesfully\n"
            + " no approximation was needed\n= 0 nodes, 0 cliques, k []\n",
        "");
    check("load|" + results,
        " process ended succesfully\n= 27 nodes, 14 cliques, k [3, 4, 5]\n",
        "calling Load_coms: \nLoad_coms finished.\n");
    check("findAndLoad|" + Examples.file("choir.txt") + "|" + results + "2",
        " process ended succesfully\n no approximation was needed\n"
            + "= 27 nodes, 14 cliques, k [3, 4, 5]\n",
        "");
  }

  @Test
  public void ofApproximation() throws Exception {
    Child child = Child.run(List.of(), Map.of(),
        "limited|" + Examples.hard(dir.getRoot().toPath()) + "|" + dir.getRoot() + "/limited");
    assertEquals(" process ended succesfully\n approximation was needed\n",
        child.out().substring(0, child.out().indexOf('=')));
    assertEquals("", child.err());
  }

  @Test
  public void ofFailures() throws Exception {
    check("findAndLoad|nowhere|" + dir.getRoot() + "/a",
        "! java.lang.Exception ERROR : File not found: 'nowhere' \n", "");
    check("find|nowhere|" + dir.getRoot() + "/b",
        " starting c++\n in/out args converted\n calling Find_coms\n"
            + "! java.lang.Exception ERROR : File not found: 'nowhere' \n",
        "");
  }
}
