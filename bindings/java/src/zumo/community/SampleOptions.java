package zumo.community;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.Iterator;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Function;

/**
 * What the command line asks for.
 *
 * @param run the run, or null for a reload
 * @param resultsDir the directory to read, or null for a run
 */
record SampleOptions(boolean help, Run run, String resultsDir) {
  static final String USAGE = """
      usage: java -jar vorlane.jar [SWITCHES] LINK_FILE RESULTS_DIR
             java -jar vorlane.jar --load RESULTS_DIR

      Finds the communities of a link file, writes them to a directory (which must not
      exist yet, or be empty) and shows what was found; or shows what an earlier run found.

        -D          directed links
        -I NUMBER   intensity method: lower threshold of the link weight intensity
        -w NUMBER   drop links of this weight or less
        -W NUMBER   drop links of this weight or more
        -t SECONDS  processor time that the search may spend on a node at a time
        -k NUMBER   communities at this k only
        -h          show this text

      Exit codes: 0 finished, 1 failed, 2 wrong usage, 130 stopped (by Ctrl-C)""";

  /**
   * Reads the arguments.
   *
   * @throws IllegalArgumentException with a text for the user, if they can't be understood
   */
  static SampleOptions parse(String... args) {
    List<Consumer<Run>> switches = new ArrayList<>();
    List<String> paths = new ArrayList<>();
    String load = null;
    for (Iterator<String> rest = Arrays.asList(args).iterator(); rest.hasNext(); ) {
      String arg = rest.next();
      switch (arg) {
        case "-h", "--help" -> {
          return new SampleOptions(true, null, null);
        }
        case "--load" -> load = value(arg, rest);
        case "-D" -> switches.add(Run::directed);
        case "-I" -> switches.add(with(Run::intensityThreshold, number(arg, rest)));
        case "-w" -> switches.add(with(Run::lowerThreshold, number(arg, rest)));
        case "-W" -> switches.add(with(Run::upperThreshold, number(arg, rest)));
        case "-t" -> switches.add(with(Run::timeLimit, number(arg, rest)));
        case "-k" -> switches.add(with(Run::singleK, parsed(arg, rest, Integer::parseUnsignedInt)));
        default -> {
          require(!arg.startsWith("-"), "Unknown switch " + arg);
          paths.add(arg);
        }
      }
    }
    if (load != null) {
      require(switches.isEmpty() && paths.isEmpty(), "--load goes with nothing else");
      return new SampleOptions(false, null, load);
    }
    require(paths.size() == 2, "A link file and a directory for the results must be given");
    Run run = new Run(paths.get(0), paths.get(1));
    switches.forEach(set -> set.accept(run));
    return new SampleOptions(false, run, null);
  }

  private interface Setter<T> {
    Run set(Run run, T value);
  }

  private static <T> Consumer<Run> with(Setter<T> setter, T value) {
    return run -> setter.set(run, value);
  }

  private static Double number(String name, Iterator<String> rest) {
    return parsed(name, rest, text -> {
      double value = Double.parseDouble(text);
      if (!Double.isFinite(value)) throw new NumberFormatException();
      return value;
    });
  }

  private static <T> T parsed(String name, Iterator<String> rest, Function<String, T> parse) {
    String text = value(name, rest);
    try {
      return parse.apply(text);
    } catch (NumberFormatException wrong) {
      throw new IllegalArgumentException(name + " needs a number, not " + text, wrong);
    }
  }

  private static String value(String name, Iterator<String> rest) {
    require(rest.hasNext(), name + " needs a value");
    return rest.next();
  }

  private static void require(boolean condition, String otherwise) {
    if (!condition) throw new IllegalArgumentException(otherwise);
  }
}
