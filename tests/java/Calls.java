import zumo.community.ExternalCalls;
import zumo.community.OutParams;
import zumo.community.Run;

/** The program of the child processes: carries out one call after the other and tells its end. */
final class Calls {
  private Calls() {}

  /** Each argument is the name of a call and its paths, separated by bars. */
  public static void main(String[] args) {
    for (String arg : args) {
      String[] words = arg.split("\\|");
      try {
        System.out.println("= " + tell(call(words)));
      } catch (Exception | OutOfMemoryError failure) {
        System.out.println("! " + failure.getClass().getName() + " " + failure.getMessage());
      }
    }
  }

  private static OutParams call(String[] words) throws Exception {
    return switch (words[0]) {
      case "find" -> {
        new Run(words[1], words[2]).find();
        yield new OutParams();
      }
      case "findAndLoad" -> new Run(words[1], words[2]).findAndLoad();
      case "limited" -> new Run(words[1], words[2]).timeLimit(1e-6).findAndLoad();
      case "weighted" ->
          new Run(words[1], words[2]).lowerThreshold(4.5).intensityThreshold(5.25).findAndLoad();
      case "load" -> ExternalCalls.loadComs(words[1], false, false);
      default -> throw new IllegalArgumentException(words[0]);
    };
  }

  private static String tell(OutParams results) {
    return results.getInParams().getVertices().size() + " nodes, "
        + results.getCliques().size() + " cliques, k " + results.getKs();
  }
}
