package zumo.community;

/**
 * How far an {@link Analysis} has come.
 *
 * @param cliquesFound by the search for cliques
 * @param nodesLeft of the search for cliques
 * @param kCliquesFound with intensity, at the k at hand
 * @param workDone of the stage at hand, in units of its own
 * @param workTotal 0 if the stage doesn't tell
 */
public record Progress(
    long cliquesFound, long nodesLeft, long kCliquesFound, long workDone, long workTotal) {}
