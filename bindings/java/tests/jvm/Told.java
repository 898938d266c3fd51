import static java.util.stream.Collectors.joining;

import java.io.IOException;
import java.nio.file.*;
import java.util.*;
import java.util.stream.Stream;
import zumo.community.*;

/** Results as the lines of each result file, sorted; "" has the directories. */
final class Told {
  private static final Map<String, String> DISTRIBUTIONS = Map.of(
      OutParams.SIZE_DIST, "size", OutParams.DEGREE_DIST, "degree",
      OutParams.OVERLAP_DIST, "overlap", OutParams.MEMBERSHIP_DIST, "membership");

  private Told() {}

  /** `kind` is what stands in front of names in the directories k=: "directed_", say. */
  static Map<String, List<String>> of(OutParams results, String kind) {
    boolean directed = kind.equals("directed_");
    String front = directed ? kind : "";
    Map<String, List<String>> files = new TreeMap<>();
    files.put("", results.getKs().stream().map(k -> "k=" + k).toList());
    files.put(front + "graph", texts(results.getInParams().getEdges(directed), directed));
    List<String> cliques = files.computeIfAbsent(front + "cliques", name -> new ArrayList<>());
    for (Clique clique : results.getCliques())
      cliques.add(row(clique.isApproximate(), cliques.size(), clique.getVertices()));
    for (int k : results.getKs()) {
      String at = "k=" + k + "/";
      List<String> communities = new ArrayList<>();
      List<String> links = new ArrayList<>();
      List<String> inside = new ArrayList<>();
      for (Community community : results.getCommunities(k)) {
        int position = communities.size();
        communities.add(row(community.isApproximate(), position, community.getVertices()));
        links.add(row(community.isApproximate(), position, texts(community.getEdges(), directed)));
        if (!kind.equals("intensity_"))
          inside.add(row(false, position, community.getCliquePositions()));
      }
      files.put(at + kind + "communities", communities);
      files.put(at + kind + "communities_links", links);
      files.put(at + kind + "communities_cliques", inside);
      files.put(at + "graph_of_" + kind + "communities",
          results.getCommunityGraph(k).stream().map(overlap -> overlap.community1() + " "
              + overlap.community2() + " " + overlap.sharedNodes()).toList());
      DISTRIBUTIONS.forEach((name, file) -> files.put(at + kind + file + "_distribution",
          results.getDistribution(k, name).stream().map(f -> f.value() + " " + f.count())
              .toList()));
    }
    files.replaceAll((name, lines) -> sorted(lines.stream()));
    return files;
  }

  /** What a results directory has of these files. */
  static Map<String, List<String>> in(Path dir, Set<String> names) throws IOException {
    Map<String, List<String>> files = new TreeMap<>();
    for (String name : names) files.put(name, lines(dir, name));
    files.put("", sorted(Stream.of(dir.toFile().list()).filter(name -> name.startsWith("k="))));
    return files;
  }

  /** Without the signs of what has none in Java, and with the links of a community in one line. */
  private static List<String> lines(Path dir, String name) throws IOException {
    Path exact = dir.resolve(name + "_exact");
    Path file = Files.exists(exact) ? exact : dir.resolve(name);
    if (!Files.isRegularFile(file)) return List.of();
    String text = Files.readAllLines(file).stream().filter(line -> !line.startsWith("#"))
        .collect(joining("\n"));
    if (name.endsWith("_links")) text = text.replaceAll("\n(?![-0-9]+:)", " ");
    if (name.contains("graph_of") || name.endsWith("_cliques")) text = text.replace("-", "");
    text = text.replaceAll("(?m)^-0:", "0:");
    if (name.endsWith("graph")) text = text.replaceAll("(\\S+ \\S+).*", "$1");
    return sorted(text.lines().map(String::strip).filter(line -> !line.isEmpty()));
  }

  private static List<String> sorted(Stream<String> lines) {
    return lines.sorted().toList();
  }

  private static String row(boolean approximate, int position, List<?> words) {
    String text = (approximate ? -position : position) + ":";
    for (Object word : words) text += " " + word;
    return text;
  }

  private static List<String> texts(List<Edge> edges, boolean directed) {
    return edges.stream().map(edge -> edge.getVertex1()
        + (edge.isDirected() == directed ? " " : " wrong ") + edge.getVertex2()).toList();
  }
}
