import { row, type Rows } from "./block";
import { coloursOf, pale, themed } from "./colours";
import { counted, figure, short } from "./dom";
import type { Level, Model } from "./model";
import type { Dot, Line, Scene } from "./scene";

const mostLines = 1500;
const mostLinks = 60000;
export const mostMembers = 3000;

/** A level with what its pictures and tables need. */
export class Shown {
  readonly colours: string[];
  readonly holders: Rows; // by node: places

  constructor(
    readonly model: Model,
    readonly level: Level,
  ) {
    this.colours = coloursOf(level);
    this.holders = model.holders(level);
  }

  /** Where there are no levels. */
  static ofNothing(model: Model): Shown {
    return new Shown(model, {
      k: 0,
      first: 0,
      end: 0,
      exact: 0,
      distributions: { membership: [], size: [], overlap: [], degree: [] },
      ranked: new Uint32Array(),
      circles: { x: new Float32Array(), y: new Float32Array(), radius: new Float32Array() },
    });
  }

  colourOf(place: number): string {
    return this.colours[place - this.level.first]!;
  }

  coloursOfNode(node: number): string[] {
    return Array.from(row(this.holders, node), (place) => this.colourOf(place));
  }

  /** For pairs of the communities at the front of the ranks that share nodes: how many. */
  overlaps(count: number): { a: number; b: number; shared: number }[] {
    const { level, model } = this;
    const rankOf = new Int32Array(level.end - level.first).fill(-1);
    for (let rank = 0; rank < count; ++rank) rankOf[level.ranked[rank]! - level.first] = rank;
    const pairs = new Map<number, number>();
    const { starts, values } = this.holders;
    for (let node = 0; node < model.facts.nodes; ++node) {
      const end = starts[node + 1]!;
      for (let i = starts[node]!; i + 1 < end; ++i) {
        const a = rankOf[values[i]! - level.first]!;
        if (a < 0) continue;
        for (let j = i + 1; j < end; ++j) {
          const b = rankOf[values[j]! - level.first]!;
          if (b < 0) continue;
          const key = Math.min(a, b) * count + Math.max(a, b);
          pairs.set(key, (pairs.get(key) ?? 0) + 1);
        }
      }
    }
    return Array.from(pairs, ([key, shared]) => ({ a: Math.floor(key / count), b: key % count, shared }));
  }

  /** The names of nodes by which a community is known: those of no other first, and of these the
      ones with most links. */
  heads(place: number, count: number): string[] {
    const { degrees, names, sizes } = this.model;
    if (sizes[place]! > 3000) return [];
    const { starts } = this.holders;
    const alone = 2 ** 32; // outweighs all links
    const weight = (node: number) =>
      degrees[node]! + (starts[node + 1]! - starts[node]! === 1 ? alone : 0);
    const best: number[] = [];
    for (const node of this.model.members(place)) {
      let at = best.length;
      while (at > 0 && isBefore(node, best[at - 1]!)) --at;
      if (at === count) continue;
      best.splice(at, 0, node);
      best.length = Math.min(best.length, count);
    }
    return best.map((node) => names[node]!);

    function isBefore(a: number, b: number): boolean {
      return weight(a) > weight(b) || (weight(a) === weight(b) && a < b);
    }
  }
}

/** The largest communities of a level as circles, with lines between those that share nodes. Those
    at the next lower k, in which they lie, are their ground. */
export function communitiesScene(shown: Shown): Scene {
  const { level, model } = shown;
  const below = model.levels[model.levels.indexOf(level) - 1];
  const dots = below ? grounds(model, below) : [];
  const ground = dots.length;
  const drawn = level.ranked.subarray(0, level.circles.x.length);
  drawn.forEach((place, i) => {
    const size = model.sizes[place]!;
    const head = i < 80 ? short(shown.heads(place, 1)[0] ?? "", 18) : "";
    dots.push({
      x: level.circles.x[i]!,
      y: level.circles.y[i]!,
      radius: level.circles.radius[i]! * 0.9,
      colours: [shown.colourOf(place)],
      label: head === "" ? counted(size, "node") : `${head} +${figure.format(size - 1)}`,
      place,
    });
  });
  const pairs = shown
    .overlaps(drawn.length)
    .sort((p, q) => q.shared - p.shared || p.a - q.a || p.b - q.b)
    .slice(0, mostLines);
  const colour = themed("overlap");
  const lines = pairs.map(({ a, b, shared }) => ({
    from: ground + a,
    to: ground + b,
    width: Math.min(0.01, 0.0012 * Math.sqrt(shared)),
    colour,
  }));
  return { dots, lines, inUnits: true };
}

function grounds(model: Model, level: Level): Dot[] {
  const colour = themed("ground");
  return Array.from(level.circles.x, (x, i) => ({
    x,
    y: level.circles.y[i]!,
    radius: level.circles.radius[i]!,
    colours: [colour],
    label: "",
    ground: true,
  })).filter((_, i) => model.children.starts[level.ranked[i]!]! < model.children.starts[level.ranked[i]! + 1]!);
}

/** Nodes with pies for those of several communities; links inside a community have its colour. */
function nodesScene(shown: Shown, nodes: number[], radius: number, focus?: number): Scene {
  const { model } = shown;
  const position = new Map<number, number>();
  nodes.forEach((node, i) => position.set(node, i));
  const plain = themed("plain-node");
  const dots: Dot[] = nodes.map((node) => {
    const colours = shown.coloursOfNode(node);
    const several = colours.length > 1;
    return {
      x: model.x[node]!,
      y: model.y[node]!,
      radius: colours.length === 0 ? radius * 0.7 : several ? radius * 1.5 : radius,
      colours: colours.length === 0 ? [plain] : colours,
      label: short(model.names[node]!),
      important: nodes.length <= 60,
      faded: focus !== undefined && !row(shown.holders, node).includes(focus),
      node,
    };
  });
  return { dots, lines: linksAmong(shown, nodes, position), inUnits: false };
}

function linksAmong(shown: Shown, nodes: number[], position: Map<number, number>): Line[] {
  const { model } = shown;
  const outside = themed("plain-link");
  const thick = 2;
  const thin = 1.2;
  const strength = 0.6;
  const paleColours = new Map<number, string>();
  const paleOf = (place: number) => {
    let colour = paleColours.get(place);
    if (!colour) paleColours.set(place, (colour = pale(shown.colourOf(place), strength)));
    return colour;
  };
  const arrow = model.facts.method === "directed";
  const lines: Line[] = [];
  for (const node of nodes)
    for (const other of row(model.links, node)) {
      const to = position.get(other);
      if (to === undefined) continue;
      const places = row(shown.holders, node);
      const shared = row(shown.holders, other).find((place) => places.includes(place));
      const colour = shared === undefined ? outside : paleOf(shared);
      lines.push({ from: position.get(node)!, to, width: thick, colour, arrow });
      if (lines.length === mostLinks) break;
    }
  if (lines.length > 500) for (const line of lines) line.width = thin;
  return lines;
}

export function networkScene(shown: Shown, focus?: number): Scene {
  const count = shown.model.facts.nodes;
  const nodes = Array.from({ length: count }, (_, node) => node);
  return nodesScene(shown, nodes, Math.max(1.8, Math.min(9, 85 / Math.sqrt(count))), focus);
}

/** A community by itself, its members drawn apart from each other. */
export function membersScene(shown: Shown, place: number): Scene {
  const nodes = shown.model.members(place).sort((a, b) => a - b);
  const radius = Math.max(3, Math.min(11, 110 / Math.sqrt(nodes.length)));
  const scene = nodesScene(shown, nodes, radius);
  if (nodes.length <= 400) relax(scene);
  return scene;
}

/** A few dozen members have no room in the layout of a large network: forces as there, anew. */
function relax(scene: Scene): void {
  const { dots, lines } = scene;
  const middle = { x: 0, y: 0 };
  for (const dot of dots) {
    middle.x += dot.x / dots.length;
    middle.y += dot.y / dots.length;
  }
  let reach = 1e-9;
  for (const dot of dots) reach = Math.max(reach, Math.hypot(dot.x - middle.x, dot.y - middle.y));
  const side = Math.sqrt(dots.length);
  dots.forEach((dot, i) => {
    const turn = 2.399963 * i; // so that none stand at one place
    dot.x = ((dot.x - middle.x) / reach) * side + 0.05 * Math.cos(turn);
    dot.y = ((dot.y - middle.y) / reach) * side + 0.05 * Math.sin(turn);
  });
  const steps = 150;
  const moves = dots.map(() => ({ x: 0, y: 0 }));
  for (let step = 0; step < steps; ++step) {
    dots.forEach((dot, i) => {
      const move = moves[i]!;
      move.x = -0.1 * dot.x;
      move.y = -0.1 * dot.y;
      for (const other of dots) {
        const dx = dot.x - other.x;
        const dy = dot.y - other.y;
        const squared = Math.max(dx * dx + dy * dy, 0.01);
        move.x += dx / squared;
        move.y += dy / squared;
      }
    });
    for (const { from, to } of lines) {
      const dx = dots[to]!.x - dots[from]!.x;
      const dy = dots[to]!.y - dots[from]!.y;
      const distance = Math.hypot(dx, dy);
      moves[from]!.x += dx * distance;
      moves[from]!.y += dy * distance;
      moves[to]!.x -= dx * distance;
      moves[to]!.y -= dy * distance;
    }
    const longest = 0.5 * (1 - step / steps) + 0.005;
    dots.forEach((dot, i) => {
      const move = moves[i]!;
      const length = Math.hypot(move.x, move.y);
      const part = length > longest ? longest / length : 1;
      dot.x += part * move.x;
      dot.y += part * move.y;
    });
  }
}
