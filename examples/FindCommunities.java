import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import zumo.community.Community;
import zumo.community.OutParams;
import zumo.community.Run;

/**
 * Prints the k-clique communities of a link file, and the people in more than one of them. From
 * the directory of the project:
 *
 * <pre>java -cp build/vorlane.jar examples/FindCommunities.java LINK_FILE RESULTS_DIR K</pre>
 */
public final class FindCommunities {
  private FindCommunities() {}

  public static void main(String[] args) throws Exception {
    if (args.length != 3) {
      System.err.println("usage: FindCommunities LINK_FILE RESULTS_DIR K");
      System.exit(2);
    }
    int k = Integer.parseInt(args[2]);
    OutParams results = new Run(args[0], args[1]).singleK(k).findAndLoad();
    print(results.getCommunities(k));
  }

  private static void print(List<Community> communities) {
    Map<String, Integer> memberships = new TreeMap<>();
    for (int i = 0; i < communities.size(); ++i) {
      List<String> people = communities.get(i).getVertices();
      System.out.println("community " + i + ": " + String.join(" ", people));
      for (String person : people) memberships.merge(person, 1, Integer::sum);
    }
    memberships.forEach((person, count) -> {
      if (count > 1) System.out.println(person + " is in " + count + " communities");
    });
  }
}
