import java.io.IOException;
import java.nio.charset.Charset;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.SortedMap;
import java.util.TreeMap;
import zumo.community.Clique;
import zumo.community.Community;
import zumo.community.CommunityOverlap;
import zumo.community.Edge;
import zumo.community.Frequency;
import zumo.community.OutParams;

/** Results as lines that can be compared, told from Java objects and from files. */
final class Told {
  private static final String[][] DISTRIBUTIONS = {
      {OutParams.SIZE_DIST, "size_distribution"}, {OutParams.DEGREE_DIST, "degree_distribution"},
      {OutParams.OVERLAP_DIST, "overlap_distribution"},
      {OutParams.MEMBERSHIP_DIST, "membership_distribution"}};

  private static final Comparator<String> BY_SIGNED_PAIR =
      Comparator.<String>comparingInt(line -> Integer.parseInt(line.split(" ")[0]))
          .thenComparingInt(line -> Integer.parseInt(line.split(" ")[1]));

  private Told() {}

  static List<String> of(OutParams results, boolean directed) {
    List<String> lines = new ArrayList<>();
    for (Edge edge : results.getInParams().getEdges(directed)) lines.add("link " + text(edge));
    for (Clique clique : results.getCliques())
      lines.add("clique " + text(clique.isApproximate(), clique.getVertices()));
    for (int k : results.getKs().descendingSet()) {
      lines.add("k=" + k);
      for (Community community : results.getCommunities(k)) {
        lines.add("community " + text(community.isApproximate(), community.getVertices()));
        for (Edge edge : community.getEdges()) lines.add("link inside " + text(edge, directed));
        for (int clique : community.getCliquePositions()) lines.add("clique inside " + clique);
      }
      for (CommunityOverlap overlap : results.getCommunityGraph(k))
        lines.add("overlap " + overlap.community1() + " " + overlap.community2() + " "
            + overlap.sharedNodes());
      for (String[] distribution : DISTRIBUTIONS)
        for (Frequency entry : results.getDistribution(k, distribution[0]))
          lines.add(distribution[0] + " " + entry.value() + " " + entry.count());
    }
    return lines;
  }

  /** `kind` is what stands in front of names in the directories k=: "directed_", say. */
  static List<String> of(Path dir, String kind) throws IOException {
    List<String> lines = new ArrayList<>();
    String front = kind.equals("directed_") ? kind : "";
    for (String line : read(dir.resolve(front + "graph")))
      lines.add("link " + String.join(" ", List.of(line.split(" ")).subList(0, 2)));
    for (Row row : rows(dir.resolve(front + "cliques")).values())
      lines.add("clique " + text(row.approximate, row.words));
    for (int k = 100; k > 0; --k) {
      Path at = dir.resolve("k=" + k);
      if (!Files.exists(at)) continue;
      lines.add("k=" + k);
      addCommunities(at, kind, lines);
      read(at.resolve("graph_of_" + kind + "communities")).stream().sorted(BY_SIGNED_PAIR)
          .forEach(line -> lines.add("overlap " + line.replace("-", "")));
      for (String[] distribution : DISTRIBUTIONS)
        for (String line : distribution(at, kind + distribution[1]))
          lines.add(distribution[0] + " " + line);
    }
    return lines;
  }

  private static void addCommunities(Path at, String kind, List<String> lines) throws IOException {
    SortedMap<Integer, Row> links = rows(at.resolve(kind + "communities_links"));
    Path cliquesFile = at.resolve(kind + "communities_cliques");
    SortedMap<Integer, Row> cliques =
        Files.exists(cliquesFile) ? rows(cliquesFile) : new TreeMap<>();
    rows(at.resolve(kind + "communities")).forEach((position, row) -> {
      lines.add("community " + text(row.approximate, row.words));
      for (String link : links.get(position).below) lines.add("link inside " + link);
      if (cliques.containsKey(position))
        for (String clique : cliques.get(position).words)
          lines.add("clique inside " + clique.replace("-", ""));
    });
  }

  private static List<String> distribution(Path at, String name) throws IOException {
    Path exact = at.resolve(name + "_exact");
    return read(Files.exists(exact) ? exact : at.resolve(name));
  }

  /** A numbered line, and the lines below it that have no number. Zero has no sign in Java. */
  private record Row(boolean approximate, List<String> words, List<String> below) {}

  private static SortedMap<Integer, Row> rows(Path file) throws IOException {
    SortedMap<Integer, Row> rows = new TreeMap<>();
    Row row = null;
    for (String line : read(file)) {
      int colon = line.indexOf(':');
      if (colon < 0) {
        row.below.add(line);
        continue;
      }
      String words = line.substring(colon + 1).strip();
      int number = Integer.parseInt(line.substring(0, colon));
      row = new Row(number < 0, words.isEmpty() ? List.of() : List.of(words.split(" ")),
          new ArrayList<>());
      rows.put(Math.abs(number), row);
    }
    return rows;
  }

  private static List<String> read(Path file) throws IOException {
    return Files.readAllLines(file, Charset.defaultCharset()).stream()
        .filter(line -> !line.isEmpty() && !line.startsWith("#")).toList();
  }

  private static String text(boolean approximate, List<String> names) {
    return (approximate ? "approximate " : "") + names;
  }

  private static String text(Edge edge) {
    return edge.getVertex1() + " " + edge.getVertex2();
  }

  private static String text(Edge edge, boolean directed) {
    return text(edge) + (edge.isDirected() == directed ? "" : " of the wrong kind");
  }
}
