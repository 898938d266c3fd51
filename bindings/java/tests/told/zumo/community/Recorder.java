package zumo.community;

import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.stream.Stream;

/**
 * A caller's own classes, with the methods of old and nothing else: writes down what native code
 * calls after a run and after a reload, and prints it if it is the same.
 */
public final class Recorder {
  static List<String> calls = new ArrayList<>();

  private Recorder() {}

  static void add(String format, Object... arguments) {
    calls.add(String.format(format, arguments));
  }

  public static void main(String[] args) throws Exception {
    System.load(args[0]);
    Path out = Files.createTempDirectory("told");
    ExternalCalls.findAndLoadComs(args[1], out.toString(), false, false, 0, false, 0, false, 0,
        true, 4, false, 0);
    List<String> afterRun = calls;
    calls = new ArrayList<>();
    ExternalCalls.loadComs(out.toString(), false, false);
    System.out.println(calls.equals(afterRun) ? String.join("\n", calls) : "not the same");
    try (Stream<Path> files = Files.walk(out)) {
      for (Path file : files.sorted(Comparator.reverseOrder()).toList()) Files.delete(file);
    }
  }
}

final class ExternalCalls {
  private ExternalCalls() {}

  static native OutParams findAndLoadComs(
      String linkFile, String resultsDir, boolean directed,
      boolean useIntensity, double intensityThreshold,
      boolean useLowerThreshold, double lowerThreshold,
      boolean useUpperThreshold, double upperThreshold,
      boolean useSingleK, int singleK,
      boolean useTimeLimit, double timeLimitSeconds) throws Exception;

  static native OutParams loadComs(String resultsDir, boolean directed, boolean useIntensity)
      throws Exception;
}

final class OutParams {
  void setInParams(InParams inParams) {
    Recorder.add("setInParams %d", inParams.edges);
  }

  void addClique(Clique clique, int index) {
    Recorder.add("addClique %d %s", index, clique.names);
  }

  void addCommunity(Community community) {
    Recorder.add("addCommunity %d, edges %d", community.k, community.edges);
  }

  void addVertexToCommunity(Community community, String name) {
    Recorder.add("addVertexToCommunity %s", name);
  }

  void addCliqueToCommunity(Community community, int clique) {
    Recorder.add("addCliqueToCommunity %d", clique);
  }

  void addCommunityGrafEdge(int k, int community1, int community2, int sharedNodes) {
    Recorder.add("addCommunityGrafEdge %d %d %d %d", k, community1, community2, sharedNodes);
  }

  void addDistribution(int k, int value, int count, String name) {
    Recorder.add("addDistribution %d %d %d %s", k, value, count, name);
  }
}

final class InParams {
  int edges;

  void addEdge(String vertex1, String vertex2) {
    ++edges;
  }
}

final class Clique {
  final List<String> names = new ArrayList<>();

  Clique(boolean approximate) {}

  void addVertex(String name) {
    names.add(name);
  }
}

final class Community {
  int k;
  int edges;

  Community(boolean approximate) {}

  void setSize(int size) {
    k = size;
  }

  void addEdge(Edge edge) {
    ++edges;
  }
}

final class Edge {
  Edge(String vertex1, String vertex2, boolean directed) {}
}
