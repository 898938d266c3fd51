import { hierarchy, type HierarchyNode, partition, type HierarchyRectangularNode } from "d3-hierarchy";
import { themed } from "./colours";
import { figure } from "./dom";
import type { Model } from "./model";
import type { Shown } from "./scenes";

/** A community as it is drawn: chains of equal ones are one block over several rows. */
interface Block {
  place: number; // of the lowest k; -1 is the ground, which holds all
  top: number; // the level up to which it is the same
}

export interface Rect {
  place: number;
  x: number;
  y: number;
  width: number;
  height: number;
  level: number;
  top: number;
}

const axis = 56;
const narrow = 0.3;
const mostBlocks = 600;

/** The communities of all k, one standing on another: rows of k, tightest on top. */
export class Tree {
  private readonly blocks: HierarchyRectangularNode<Block>[];
  private rects: Rect[] = [];
  private rows: number[] = []; // lower edge of each level's row, and of the end
  private width = 0;
  private height = 0;

  constructor(private readonly model: Model) {
    const levelOf = new Int32Array(model.sizes.length);
    model.levels.forEach((level, i) => levelOf.fill(i, level.first, level.end));
    const ground: Block = { place: -1, top: -1 };
    const roots = [...model.sizes.keys()].filter((place) => model.parent(place) === undefined);
    const blockAt = (place: number): Block => {
      let top = place;
      for (;;) {
        const children = childrenOf(model, top);
        if (children.length !== 1 || model.sizes[children[0]!] !== model.sizes[place]) break;
        top = children[0]!;
      }
      return { place, top };
    };
    const root = hierarchy<Block>(ground, (block) =>
      (block.place < 0 ? roots : [...childrenOf(model, block.top)]).map(blockAt),
    );
    this.all = root.descendants().length - 1;
    this.isPruned = this.all > mostBlocks;
    if (this.isPruned) prune(root, (block) => model.sizes[block.place]! * (levelOf[block.top]! - levelOf[block.place]! + 1));
    root.eachAfter((node) => {
      const inside = node.children?.reduce((sum, child) => sum + child.value!, 0) ?? 0;
      const own = node.data.place < 0 ? 0 : model.sizes[node.data.place]!;
      (node as { value?: number }).value = Math.max(this.isPruned ? Math.sqrt(own) : own, inside);
    });
    root.sort((a, b) => b.value! - a.value! || a.data.place - b.data.place);
    this.blocks = partition<Block>()(root).descendants().slice(1);
    this.levelOf = levelOf;
  }

  private readonly levelOf: Int32Array;
  private readonly all: number;
  private readonly isPruned: boolean;

  legend(): string {
    const blocks = this.isPruned
      ? `The ${mostBlocks} of ${figure.format(this.all)} blocks that are largest and last longest; the wider, the more nodes.`
      : "Each block is a community, as wide as its number of nodes.";
    return `${blocks} It stands on the community that holds it. Click a row to see that k.`;
  }

  /** Finds room for all blocks; rows of small k are higher, since more happens there. */
  layOut(width: number, height: number): void {
    this.width = width;
    this.height = height;
    const levels = this.model.levels;
    const all = levels.reduce((sum, level) => sum + 1 / level.k, 0);
    const scale = all > 0 ? Math.min((height - 8) / all, 90 * (levels[0]?.k ?? 1)) : 0;
    let edge = height - 4;
    this.rows = [edge, ...levels.map((level) => (edge -= scale / level.k))];
    this.rects = [];
    for (const { data, x0, x1 } of this.blocks) {
      const from = axis + x0 * (width - axis - 4);
      const wide = (x1 - x0) * (width - axis - 4);
      if (wide < narrow) continue;
      const level = this.levelOf[data.place]!;
      const top = this.levelOf[data.top]!;
      const y = this.rows[top + 1]!;
      this.rects.push({
        place: data.place,
        x: from,
        y,
        width: Math.max(wide, 0.7),
        height: this.rows[level]! - y,
        level,
        top,
      });
    }
  }

  /** The level whose row is at this height. */
  levelAt(y: number): number | undefined {
    const level = this.rows.findIndex((edge, i) => y <= edge && y > (this.rows[i + 1] ?? Infinity));
    return level < 0 ? undefined : level;
  }

  /** The community whose block is at a point, at the level of that row. */
  placeAt(x: number, y: number): number | undefined {
    const level = this.levelAt(y);
    if (level === undefined) return undefined;
    const rect = this.rects.find(
      (r) => r.level <= level && level <= r.top && x >= r.x && x < r.x + r.width,
    );
    if (!rect) return undefined;
    let place = rect.place;
    for (let i = rect.level; i < level; ++i) place = childrenOf(this.model, place)[0]!;
    return place;
  }

  /** Calls for each rectangle with its colour; parts of a block below the shown k are pale. */
  forEachRect(shown: Shown | undefined, draw: (rect: Rect, colour: string) => void): void {
    const pale = themed("pale");
    const shownLevel = shown ? this.model.levels.indexOf(shown.level) : -1;
    const around = shown ? this.model.around(shown.level) : new Uint32Array();
    const colourOf = (place: number) => {
      const at = around[place];
      return shown && at !== undefined && at !== 0xffffffff ? shown.colourOf(at) : pale;
    };
    for (const rect of this.rects) {
      if (rect.level >= shownLevel) {
        draw(rect, colourOf(rect.place));
      } else if (rect.top < shownLevel) {
        draw(rect, pale);
      } else {
        const edge = this.rows[shownLevel]!;
        let place = rect.place;
        for (let i = rect.level; i < shownLevel; ++i) place = childrenOf(this.model, place)[0]!;
        draw({ ...rect, y: edge, height: rect.y + rect.height - edge }, pale);
        draw({ ...rect, place, height: edge - rect.y }, colourOf(place));
      }
    }
  }

  /** Rows that have room for their k beside them, the shown one first. */
  ticks(shown: Shown | undefined): { k: number; y: number; height: number; isShown: boolean }[] {
    const levels = this.model.levels;
    const all = levels.map((level, i) => ({
      k: level.k,
      y: (this.rows[i]! + this.rows[i + 1]!) / 2,
      height: this.rows[i]! - this.rows[i + 1]!,
      isShown: level === shown?.level,
    }));
    const kept: typeof all = [];
    for (const tick of [...all.filter((t) => t.isShown), ...all.filter((t) => !t.isShown)])
      if (kept.every((other) => Math.abs(other.y - tick.y) >= 14)) kept.push(tick);
    return kept;
  }

  draw(canvas: HTMLCanvasElement, shown: Shown | undefined, selected?: number): void {
    const dense = window.devicePixelRatio || 1;
    canvas.width = this.width * dense;
    canvas.height = this.height * dense;
    const context = canvas.getContext("2d")!;
    context.scale(dense, dense);
    for (const tick of this.ticks(shown)) {
      if (tick.isShown) {
        context.fillStyle = themed("band");
        context.fillRect(0, tick.y - tick.height / 2, this.width, Math.max(tick.height, 2));
      }
      context.fillStyle = themed(tick.isShown ? "text" : "muted");
      context.font = `${tick.isShown ? 700 : 400} 12px system-ui, sans-serif`;
      context.textAlign = "right";
      context.fillText(tick.isShown ? `k = ${tick.k}` : String(tick.k), axis - 6, tick.y + 4);
    }
    const edge = themed("card");
    const chosen = selected === undefined ? new Set<number>() : this.chain(selected);
    this.forEachRect(shown, (rect, colour) => {
      context.fillStyle = colour;
      const gap = rect.width > 3 ? 0.8 : 0;
      context.fillRect(rect.x, rect.y, rect.width - gap, rect.height - 0.8);
      if (chosen.has(rect.place)) {
        context.strokeStyle = themed("text");
        context.lineWidth = 2;
        context.strokeRect(rect.x + 1, rect.y + 1, Math.max(rect.width - 2.5, 1), rect.height - 2.5);
      }
      if (rect.width < 26 || rect.height < 14) return;
      context.font = "12px system-ui, sans-serif";
      context.textAlign = "center";
      context.lineWidth = 3;
      context.strokeStyle = edge;
      context.fillStyle = themed("text");
      const text = String(this.model.sizes[rect.place]);
      const y = rect.y + rect.height / 2 + 4;
      context.strokeText(text, rect.x + rect.width / 2, y);
      context.fillText(text, rect.x + rect.width / 2, y);
    });
  }

  /** A community and those of which its block consists, or a part of them. */
  private chain(place: number): Set<number> {
    const chain = new Set([place]);
    for (let at: number | undefined = this.model.parent(place); at !== undefined; ) {
      if (this.model.sizes[at] !== this.model.sizes[place]) break;
      chain.add(at);
      at = this.model.parent(at);
    }
    return chain;
  }
}

/** Keeps the blocks of the highest scores, with those on which they stand. */
function prune(root: HierarchyNode<Block>, score: (block: Block) => number): void {
  const best = new Map<HierarchyNode<Block>, number>();
  root.eachAfter((node) => {
    const own = node.data.place < 0 ? Infinity : score(node.data);
    best.set(node, own);
  });
  root.eachAfter((node) => {
    if (node.parent) best.set(node.parent, Math.max(best.get(node.parent)!, best.get(node)!));
  });
  const least = Float64Array.from(best.values()).sort().at(-mostBlocks - 1)!;
  root.eachBefore((node) => {
    const kept = node.children?.filter((child) => best.get(child)! >= least);
    if (kept && kept.length > 0) node.children = kept;
    else delete node.children;
  });
}

function childrenOf(model: Model, place: number): Uint32Array {
  const { starts, values } = model.children;
  return values.subarray(starts[place]!, starts[place + 1]!);
}
