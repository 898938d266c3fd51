import zumo.community.*;

/** A program of somebody else: tells the communities of a link file at k = 4. */
public final class Application {
  private Application() {}

  public static void main(String[] args) throws Exception {
    try (Analysis analysis = new Analysis(args[0], new Options().singleK(4))) {
      System.out.println(analysis.next().size() + " communities");
    }
  }
}
