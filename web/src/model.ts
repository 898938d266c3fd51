import { Growing, Reader, row, rowsOf, type Rows } from "./block";

export interface LevelFacts {
  k: number;
  communities: number;
  approximate: number;
  largest: number;
  second: number;
  covered: number;
  overlapping: number;
  overlaps: number;
}

export interface Facts {
  version: string;
  title: string;
  method: "undirected" | "directed" | "intensity";
  finished: boolean;
  nodes: number;
  links: number;
  placed: number; // nodes that have places and links
  drawn: number; // communities at a k that have circles, at most
  levels: LevelFacts[]; // k descending
  recommended?: number;
  reason?: string;
  k?: number;
}

/** Value -> how often it occurs. */
export type Distribution = [value: number, times: number][];

export interface Distributions {
  membership: Distribution;
  size: Distribution;
  overlap: Distribution;
  degree: Distribution;
}

export interface Level {
  k: number;
  first: number; // its communities are the places first up to end
  end: number;
  exact: number; // those from first + exact on are approximate
  distributions: Distributions;
  ranked: Uint32Array; // places, the largest first
  circles: { x: Float32Array; y: Float32Array; radius: Float32Array }; // of the first of these
}

const none = 0xffffffff;

/** All that the page knows. A community goes by its place in one list of those of all k. */
export class Model {
  constructor(
    readonly facts: Facts,
    readonly names: string[],
    readonly links: Rows, // by node
    readonly levels: Level[], // k ascending
    readonly sizes: Uint32Array, // by place
    readonly parents: Uint32Array, // by place; `none` is 0xffffffff
    readonly own: Rows, // by place: the nodes that are in no child
    readonly x: Float32Array, // by node that is placed, -1 to 1
    readonly y: Float32Array,
  ) {
    const places = sizes.length;
    this.children = rowsOf(places, (enter) => {
      for (let p = 0; p < places; ++p) if (parents[p] !== none) enter(parents[p]!, p);
    });
    this.homes = rowsOf(facts.nodes, (enter) => {
      for (let p = 0; p < places; ++p) for (const node of row(own, p)) enter(node, p);
    });
    this.seen = new Uint32Array(facts.nodes);
    this.degrees = new Uint32Array(facts.nodes);
    for (let node = 0; node < facts.nodes; ++node)
      for (let i = links.starts[node]!; i < links.starts[node + 1]!; ++i) {
        ++this.degrees[node]!;
        ++this.degrees[links.values[i]!]!;
      }
  }

  readonly degrees: Uint32Array; // by node: its links

  readonly children: Rows;
  private readonly homes: Rows; // by node: the places where it is an own node
  private readonly seen: Uint32Array;
  private mark = 0;

  parent(place: number): number | undefined {
    const parent = this.parents[place]!;
    return parent === none ? undefined : parent;
  }

  levelOf(place: number): Level {
    return this.levels.find((level) => place < level.end)!;
  }

  /** The number of a community at its k. */
  numberOf(place: number): number {
    return place - this.levelOf(place).first;
  }

  isApproximate(place: number): boolean {
    const level = this.levelOf(place);
    return place - level.first >= level.exact;
  }

  /** The nodes of a community. */
  members(place: number): number[] {
    const nodes: number[] = [];
    const mark = ++this.mark;
    const toVisit = [place];
    for (let p = toVisit.pop(); p !== undefined; p = toVisit.pop()) {
      for (const node of row(this.own, p)) {
        if (this.seen[node] === mark) continue;
        this.seen[node] = mark;
        nodes.push(node);
      }
      for (const child of row(this.children, p)) toVisit.push(child);
    }
    return nodes;
  }

  /** By place from this level on: the community of the level around it; `none` for others. */
  around(level: Level): Uint32Array {
    const around = new Uint32Array(this.sizes.length).fill(none);
    for (let p = level.first; p < level.end; ++p) around[p] = p;
    for (let p = level.end; p < around.length; ++p) {
      const parent = this.parents[p]!;
      if (parent !== none) around[p] = around[parent]!;
    }
    return around;
  }

  /** By node: the places of the communities of a level that hold it. */
  holders(level: Level): Rows {
    const around = this.around(level);
    const starts = new Uint32Array(this.facts.nodes + 1);
    const values = new Growing();
    const { starts: from, values: homes } = this.homes;
    for (let node = 0; node < this.facts.nodes; ++node) {
      starts[node + 1] = values.length;
      const first = from[node]!;
      const end = from[node + 1]!;
      if (first === end) continue;
      if (first + 1 === end) {
        const place = around[homes[first]!]!;
        if (place !== none) values.push(place);
        starts[node + 1] = values.length;
        continue;
      }
      const found: number[] = [];
      for (let i = first; i < end; ++i) {
        const place = around[homes[i]!]!;
        if (place !== none && !found.includes(place)) found.push(place);
      }
      found.sort((a, b) => a - b);
      for (const place of found) values.push(place);
      starts[node + 1] = values.length;
    }
    return { starts, values: values.done() };
  }

  /** The communities of a node at all k, k descending. */
  communitiesOf(node: number): { level: Level; places: number[] }[] {
    const all = new Set<number>();
    for (const home of row(this.homes, node))
      for (let p: number | undefined = home; p !== undefined && !all.has(p); p = this.parent(p))
        all.add(p);
    return [...this.levels]
      .reverse()
      .map((level) => ({
        level,
        places: [...all].filter((p) => p >= level.first && p < level.end).sort((a, b) => a - b),
      }))
      .filter(({ places }) => places.length > 0);
  }

  static read(bytes: Uint8Array): Model {
    const reader = new Reader(bytes);
    const facts = JSON.parse(reader.text()) as Facts;
    const names = Array.from({ length: facts.nodes }, () => reader.text());
    const links = readRows(reader, facts.nodes, (node) => node);
    const sizes = new Growing();
    const parents = new Growing();
    const ownStarts = new Growing();
    const own = new Growing();
    ownStarts.push(0);
    const levels: Level[] = [];
    for (let left = reader.number(); left > 0; --left)
      levels.push(readLevel(reader, levels.at(-1), sizes, parents, ownStarts, own));
    const x = unit(reader.sixteen(facts.placed));
    const y = unit(reader.sixteen(facts.placed));
    const allSizes = sizes.done();
    for (const level of levels) {
      const ranked = Uint32Array.from({ length: level.end - level.first }, (_, i) => level.first + i);
      level.ranked = ranked.sort((a, b) => allSizes[b]! - allSizes[a]! || a - b);
      const count = Math.min(ranked.length, facts.drawn);
      level.circles = {
        x: unit(reader.sixteen(count)),
        y: unit(reader.sixteen(count)),
        radius: Float32Array.from(reader.sixteen(count), (r) => r / 65535),
      };
    }
    if (reader.left > 0) throw new RangeError("The data of this page are too long.");
    return new Model(
      facts,
      names,
      links,
      levels,
      allSizes,
      parents.done(),
      { starts: ownStarts.done(), values: own.done() },
      x,
      y,
    );
  }
}

function unit(values: Uint16Array): Float32Array {
  return Float32Array.from(values, (value) => (value / 65535) * 2 - 1);
}

function readRows(reader: Reader, count: number, near: (i: number) => number): Rows {
  const starts = new Uint32Array(count + 1);
  const values = new Growing();
  for (let i = 0; i < count; ++i) {
    reader.ascending(near(i), values);
    starts[i + 1] = values.length;
  }
  return { starts, values: values.done() };
}

function readLevel(
  reader: Reader,
  below: Level | undefined,
  sizes: Growing,
  parents: Growing,
  ownStarts: Growing,
  own: Growing,
): Level {
  const k = reader.number();
  const count = reader.number();
  const exact = reader.number();
  const first = sizes.length;
  let parent = 0;
  let near = 0;
  for (let i = 0; i < count; ++i) {
    sizes.push(reader.number());
    parent += reader.signed();
    parents.push(parent === 0 ? none : below!.first + parent - 1);
    const before = own.length;
    reader.ascending(near, own);
    if (own.length > before) near = own.at(before);
    ownStarts.push(own.length);
  }
  const [membership, size, overlap, degree] = [0, 1, 2, 3].map(() => readDistribution(reader));
  return {
    k,
    first,
    end: first + count,
    exact,
    distributions: { membership: membership!, size: size!, overlap: overlap!, degree: degree! },
    ranked: new Uint32Array(),
    circles: { x: new Float32Array(), y: new Float32Array(), radius: new Float32Array() },
  };
}

function readDistribution(reader: Reader): Distribution {
  let value = 0;
  return Array.from({ length: reader.number() }, () => {
    value += reader.number();
    return [value, reader.number()];
  });
}
