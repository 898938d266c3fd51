package zumo.community.spark;

import java.nio.file.Path;
import java.util.Arrays;
import java.util.Iterator;
import java.util.List;
import java.util.function.Function;
import zumo.community.Options;

/**
 * What the command line asks for.
 *
 * @param linkFile where the links are, as it was given
 * @param resultsDir where the results go, the same
 * @param workFolder where the parts meet, null if none was given
 * @param parts how many the search is cut into
 * @param sharedFolder whether all machines see the three paths
 * @param options how the links are taken and what is found
 */
record CommandLine(String linkFile, String resultsDir, String workFolder, int parts,
    boolean sharedFolder, Options options) {
  static final String USAGE = """
      usage: spark-submit [OPTIONS OF SPARK] vorlane-spark.jar -i FILE -o DIR [SWITCHES]

      Finds the communities of a link file on a Spark cluster and writes them to a directory
      (which must not exist yet, or be empty), the same files as on a single machine. FILE and
      DIR are on a folder that all machines share.

        --parts N             how many parts the work is cut into; 64 without it
        --work FOLDER         where the parts meet; without it DIR.parts, which is deleted at
                              the end
        --no-shared-folder    FILE, DIR and FOLDER are on the machine of the driver only
        --format FORMAT       what FILE is: links, csv, tsv, graphml, pajek, mtx or metis;
                              without it told by its name
        --columns A,B,W       of csv and tsv: the columns of a link, by name or number; the
                              weight may lack
        --blanks C            takes the place of blanks in names, which results can't hold
        -D                    directed links
        -I NUMBER             intensity method: lower threshold of the link weight intensity
        -w NUMBER             drop links of this weight or less
        -W NUMBER             drop links of this weight or more
        -k NUMBER             communities at this k only
        -h                    show this text

      The same command, given again after a failure, goes on where that has ended.
      Exit codes: 0 finished, 1 failed, 2 wrong usage""";

  private static final int DEFAULT_PARTS = 64;

  /** Where the results go, seen from anywhere. */
  Path results() {
    return Path.of(resultsDir).toAbsolutePath().normalize();
  }

  /** Where the parts meet, seen from anywhere. */
  Path work() {
    if (workFolder != null) return Path.of(workFolder).toAbsolutePath().normalize();
    return results().resolveSibling(results().getFileName() + ".parts");
  }

  /**
   * Reads the arguments; null if they ask for help.
   *
   * @throws IllegalArgumentException with a text for the user, if they can't be understood
   */
  static CommandLine parse(String... args) {
    String linkFile = null;
    String resultsDir = null;
    String workFolder = null;
    int parts = DEFAULT_PARTS;
    boolean sharedFolder = true;
    Options options = new Options();
    for (Iterator<String> rest = words(args).iterator(); rest.hasNext(); ) {
      String arg = rest.next();
      switch (arg) {
        case "-h", "--help" -> {
          return null;
        }
        case "-i" -> linkFile = value(arg, rest);
        case "-o" -> resultsDir = value(arg, rest);
        case "--work" -> workFolder = value(arg, rest);
        case "--parts" -> parts = parsed(arg, rest, Integer::parseUnsignedInt);
        case "--no-shared-folder" -> sharedFolder = false;
        case "--format" -> options.format(value(arg, rest));
        case "--columns" -> options.columns(value(arg, rest).split(",", -1));
        case "--blanks" -> options.blanks(value(arg, rest));
        case "-D" -> options.directed();
        case "-I" -> options.intensityThreshold(parsed(arg, rest, Double::valueOf));
        case "-w" -> options.lowerThreshold(parsed(arg, rest, Double::valueOf));
        case "-W" -> options.upperThreshold(parsed(arg, rest, Double::valueOf));
        case "-k" -> options.singleK(parsed(arg, rest, Integer::parseUnsignedInt));
        default -> throw new IllegalArgumentException("Unknown switch " + arg);
      }
    }
    if (linkFile == null || resultsDir == null)
      throw new IllegalArgumentException(
          "A link file and a directory for the results must be given");
    return new CommandLine(linkFile, resultsDir, workFolder, parts, sharedFolder, options);
  }

  /** "--parts=8" is two words. */
  private static List<String> words(String... args) {
    return Arrays.stream(args)
        .flatMap(arg -> Arrays.stream(arg.startsWith("--") ? arg.split("=", 2) : new String[] {arg}))
        .toList();
  }

  private static String value(String name, Iterator<String> rest) {
    if (!rest.hasNext()) throw new IllegalArgumentException(name + " needs a value");
    return rest.next();
  }

  private static <T> T parsed(String name, Iterator<String> rest, Function<String, T> parse) {
    String text = value(name, rest);
    try {
      return parse.apply(text);
    } catch (IllegalArgumentException wrong) {
      throw new IllegalArgumentException(name + " can't be " + text, wrong);
    }
  }
}
