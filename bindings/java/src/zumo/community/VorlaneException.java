package zumo.community;

/** A failure of a {@link Run} or {@link Analysis}: its kind for programs, its text for people. */
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
  private final String source;
  private final long line;
  private final long column;

  VorlaneException(Kind kind, String text, Throwable cause) {
    super(text, cause);
    this.kind = kind;
    source = "";
    line = 0;
    column = 0;
  }

  /** For native code. */
  VorlaneException(int kind, String text, String source, long line, long column) {
    super(text);
    this.kind = Kind.at(kind);
    this.source = source;
    this.line = line;
    this.column = column;
  }

  public Kind getKind() {
    return kind;
  }

  /** The file that an analysis could not read; empty if the failure is about none. */
  public String getSource() {
    return source;
  }

  /** The line there, from 1; 0 if it isn't known. */
  public long getLine() {
    return line;
  }

  /** The column in the line, from 1; 0 if it isn't known. */
  public long getColumn() {
    return column;
  }
}
