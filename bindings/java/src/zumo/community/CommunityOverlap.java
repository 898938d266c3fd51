package zumo.community;

/** A link of the community graph: two communities at one k, by position, that share nodes. */
public record CommunityOverlap(int community1, int community2, int sharedNodes) {
  static IntTable<CommunityOverlap> table() {
    return new IntTable<>(3, (values, begin) ->
        new CommunityOverlap(values[begin], values[begin + 1], values[begin + 2]));
  }
}
