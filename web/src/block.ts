/** Reads the data block that the program writes into the page; see src/report/Page_data.h there. */

export class Reader {
  private at = 0;
  private readonly utf8 = new TextDecoder();

  constructor(private readonly bytes: Uint8Array) {}

  number(): number {
    let value = 0;
    let weight = 1;
    for (;;) {
      const byte = this.bytes[this.at++];
      if (byte === undefined) throw new RangeError("The data of this page end too early.");
      if (byte < 128) return value + byte * weight;
      value += (byte - 128) * weight;
      weight *= 128;
    }
  }

  signed(): number {
    const doubled = this.number();
    return doubled % 2 === 0 ? doubled / 2 : -(doubled + 1) / 2;
  }

  text(): string {
    const length = this.number();
    return this.utf8.decode(this.raw(length));
  }

  raw(length: number): Uint8Array {
    if (this.at + length > this.bytes.length)
      throw new RangeError("The data of this page end too early.");
    this.at += length;
    return this.bytes.subarray(this.at - length, this.at);
  }

  /** Appends ascending numbers, the first told by its distance from `near`. */
  ascending(near: number, out: Growing): void {
    const count = this.number();
    let value = near;
    for (let i = 0; i < count; ++i) {
      value += i === 0 ? this.signed() : this.number();
      out.push(value);
    }
  }

  /** Numbers of 16 bits: all high bytes, then all low ones. */
  sixteen(count: number): Uint16Array {
    const high = this.raw(count);
    const low = this.raw(count);
    return Uint16Array.from(high, (byte, i) => byte * 256 + low[i]!);
  }

  get left(): number {
    return this.bytes.length - this.at;
  }
}

/** An array of numbers that grows. */
export class Growing {
  length = 0;
  private values = new Uint32Array(1024);

  push(value: number): void {
    if (this.length === this.values.length) {
      const larger = new Uint32Array(2 * this.length);
      larger.set(this.values);
      this.values = larger;
    }
    this.values[this.length++] = value;
  }

  at(i: number): number {
    return this.values[i]!;
  }

  done(): Uint32Array {
    return this.values.slice(0, this.length);
  }
}

/** Rows of numbers in two arrays: row i is values[starts[i]] up to values[starts[i + 1]]. */
export interface Rows {
  starts: Uint32Array;
  values: Uint32Array;
}

export function row(rows: Rows, i: number): Uint32Array {
  return rows.values.subarray(rows.starts[i]!, rows.starts[i + 1]!);
}

/** The rows of what `list` enters; it is called twice and must enter the same both times. */
export function rowsOf(
  count: number,
  list: (enter: (row: number, value: number) => void) => void,
): Rows {
  const starts = new Uint32Array(count + 1);
  list((at) => ++starts[at + 1]!);
  for (let i = 0; i < count; ++i) starts[i + 1]! += starts[i]!;
  const values = new Uint32Array(starts[count]!);
  const next = starts.slice();
  list((at, value) => (values[next[at]!++] = value));
  return { starts, values };
}

export async function inflate(base64: string): Promise<Uint8Array> {
  const text = atob(base64.trim());
  const packed = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) packed[i] = text.charCodeAt(i);
  const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("deflate"));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}
