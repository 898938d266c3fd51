package zumo.community;

/** A failure of a {@link Run} or an {@link Analysis}; the kind is for programs, the text for people. */
public final class VorlaneException extends Exception {
  /** What a program may want to tell apart. */
  public enum Kind {
    /** Options that don't go together, arguments out of their range. */
    PARAMETERS,
    /** A file, a directory or an array that can't be read as what it should be. */
    INPUT,
    /** Results that can't be written. */
    OUTPUT,
    /** It ran out, or a limit of it was reached. */
    MEMORY,
    /** Somebody stopped it. */
    STOPPED,
    /** Another run or reload was going on, and only one can at a time. */
    BUSY,
    OTHER;

    private static final Kind[] ALL = values();

    /** Native code knows kinds by their places. */
    static Kind at(int place) {
      return ALL[place];
    }
  }

  private static final long serialVersionUID = 1;

  private final Kind kind;

  public VorlaneException(Kind kind, String text, Throwable cause) {
    super(text, cause);
    this.kind = kind;
  }

  /** For native code. */
  VorlaneException(int kind, String text) {
    this(Kind.at(kind), text, null);
  }

  public Kind getKind() {
    return kind;
  }
}
