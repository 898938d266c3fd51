package zumo.community.spark;

import java.util.List;

/** How the files of a run in parts get to the executors, and back what they make of them. */
interface Road {
  /** Has these parts of the search done. */
  void search(List<Integer> parts);

  /** Has these parts of the levels done, once the cliques are gathered. */
  void levels(List<Integer> parts);
}
