import { row } from "./block";
import { counted, el, figure, percent, short } from "./dom";
import type { Model } from "./model";
import type { Shown } from "./scenes";

const step = 100; // rows that a long table shows at a time

export interface Actions {
  chooseCommunity(place: number | undefined): void;
  chooseNode(node: number | undefined): void;
  chooseK(k: number, place?: number): void;
}

function swatch(colour: string): HTMLElement {
  const mark = el("span", { class: "swatch", "aria-hidden": "true" });
  mark.style.background = colour;
  return mark;
}

/** A table whose rows are made when they are asked for. */
export function longTable(
  caption: string,
  heads: string[],
  count: number,
  rowAt: (i: number) => HTMLTableRowElement,
): HTMLElement {
  const body = el("tbody");
  const more = el("button", { class: "more", type: "button", onclick: () => add() });
  const add = () => {
    const from = body.rows.length;
    for (let i = from; i < Math.min(count, from + step); ++i) body.append(rowAt(i));
    more.hidden = body.rows.length >= count;
    more.textContent = `Show more (${figure.format(count - body.rows.length)} left)`;
  };
  add();
  const table = el(
    "table",
    {},
    el("caption", {}, caption),
    el("thead", {}, el("tr", {}, ...heads.map((head) => el("th", { scope: "col" }, head)))),
    body,
  );
  return el("div", { class: "table" }, table, more);
}

/** What is told of the choice: all communities at k, one of them, or a node. */
export class Panel {
  constructor(
    private readonly root: HTMLElement,
    private readonly model: Model,
    private readonly actions: Actions,
  ) {}

  showAll(shown: Shown): void {
    const { level } = shown;
    const count = level.ranked.length;
    const table = longTable(
      `The ${counted(count, "community", "communities")} at k = ${level.k}`,
      ["Community", "Nodes", "For example"],
      count,
      (i) => {
        const place = level.ranked[i]!;
        return el(
          "tr",
          {},
          el("td", {}, this.communityButton(shown, place)),
          el("td", { class: "figure" }, figure.format(this.model.sizes[place]!)),
          el("td", { class: "names" }, shown.heads(place, 3).map((name) => short(name, 24)).join(", ")),
        );
      },
    );
    this.root.replaceChildren(table);
  }

  showCommunity(shown: Shown, place: number): void {
    const { model } = this;
    const members = model.members(place).sort((a, b) => compare(model.names[a]!, model.names[b]!));
    const overlaps = new Map<number, number>();
    for (const node of members)
      for (const other of row(shown.holders, node))
        if (other !== place) overlaps.set(other, (overlaps.get(other) ?? 0) + 1);
    const ranked = [...overlaps].sort((p, q) => q[1] - p[1] || p[0] - q[0]);
    const several = members.filter((node) => row(shown.holders, node).length > 1).length;
    const parts: (HTMLElement | false)[] = [
      el(
        "h2",
        {},
        swatch(shown.colourOf(place)),
        `Community ${model.numberOf(place)} at k = ${shown.level.k}`,
      ),
      model.isApproximate(place) && this.approximateNote(),
      el(
        "p",
        {},
        `${counted(members.length, "node")}, ${figure.format(several)} of them in other communities too.`,
      ),
      this.family(place),
      ranked.length > 0 &&
        longTable("It shares nodes with", ["Community", "Shared"], ranked.length, (i) =>
          el(
            "tr",
            {},
            el("td", {}, this.communityButton(shown, ranked[i]![0])),
            el("td", { class: "figure" }, figure.format(ranked[i]![1])),
          ),
        ),
      longTable("Its nodes", ["Node", "Also in"], members.length, (i) => {
        const node = members[i]!;
        const others = [...row(shown.holders, node)].filter((other) => other !== place);
        return el(
          "tr",
          {},
          el("td", {}, this.nodeButton(node)),
          el("td", {}, ...others.slice(0, 8).map((other) => this.communityButton(shown, other))),
        );
      }),
    ];
    this.root.replaceChildren(this.back(), ...parts.filter((part) => part !== false));
  }

  showNode(shown: Shown | undefined, node: number): void {
    const { model } = this;
    const all = model.communitiesOf(node);
    const now = shown ? [...row(shown.holders, node)] : [];
    const parts: HTMLElement[] = [el("h2", {}, short(model.names[node]!, 200))];
    if (shown)
      parts.push(
        el(
          "p",
          {},
          now.length === 0
            ? `In no community at k = ${shown.level.k}.`
            : `In ${counted(now.length, "community", "communities")} at k = ${shown.level.k}: `,
          ...now.map((place) => this.communityButton(shown, place)),
        ),
      );
    parts.push(
      longTable("Its communities at every k", ["k", "Communities (nodes)"], all.length, (i) => {
        const { level, places } = all[i]!;
        const chips = places.slice(0, 12).map((place) =>
          el(
            "button",
            {
              type: "button",
              class: "chip",
              "aria-label": `Community ${place - level.first} at k = ${level.k}`,
              onclick: () => this.actions.chooseK(level.k, place),
            },
            `${place - level.first} (${figure.format(model.sizes[place]!)})`,
          ),
        );
        const rest = places.length - chips.length;
        return el(
          "tr",
          {},
          el("td", { class: "figure" }, level.k),
          el("td", {}, ...chips, rest > 0 && ` and ${rest} more`),
        );
      }),
    );
    this.root.replaceChildren(this.back(), ...parts);
  }

  showNothing(): void {
    this.root.replaceChildren(
      el("h2", {}, "No communities"),
      el(
        "p",
        {},
        this.model.facts.nodes === 0
          ? "The network has no links."
          : "Nowhere in this network are three nodes all linked with each other, which is the least " +
              "that a community needs.",
      ),
    );
  }

  private back(): HTMLElement {
    return el(
      "button",
      { type: "button", class: "back", onclick: () => this.actions.chooseCommunity(undefined) },
      "← All communities",
    );
  }

  private approximateNote(): HTMLElement {
    return el(
      "p",
      { class: "note" },
      "≈ Approximate: a time limit cut the search short, so it may be incomplete.",
    );
  }

  /** Where it lies at the next lower k, and what lies in it at the next greater one. */
  private family(place: number): HTMLElement {
    const { model } = this;
    const parent = model.parent(place);
    const children = [...row(model.children, place)].sort((a, b) => model.sizes[b]! - model.sizes[a]!);
    const link = (to: number) => {
      const level = model.levelOf(to);
      return el(
        "button",
        { type: "button", class: "chip", onclick: () => this.actions.chooseK(level.k, to) },
        `${to - level.first} at k = ${level.k} (${figure.format(model.sizes[to]!)})`,
      );
    };
    return el(
      "p",
      { class: "family" },
      parent !== undefined && "Lies in ",
      parent !== undefined && link(parent),
      children.length > 0 && " Holds ",
      ...children.slice(0, 6).map(link),
      children.length > 6 && ` and ${figure.format(children.length - 6)} more`,
    );
  }

  private communityButton(shown: Shown, place: number): HTMLElement {
    const { model } = this;
    const number = place - shown.level.first;
    return el(
      "button",
      {
        type: "button",
        class: "chip",
        "aria-label": `Community ${number}${model.isApproximate(place) ? ", approximate" : ""}`,
        onclick: () => this.actions.chooseCommunity(place),
      },
      swatch(shown.colourOf(place)),
      `${model.isApproximate(place) ? "≈" : ""}${number}`,
    );
  }

  private nodeButton(node: number): HTMLElement {
    return el(
      "button",
      { type: "button", class: "link", onclick: () => this.actions.chooseNode(node) },
      short(this.model.names[node]!, 60),
    );
  }
}

const collator = new Intl.Collator("en", { numeric: true });
export const compare = (a: string, b: string) => collator.compare(a, b);

/** The figures of every k, the shown one and the recommended one marked. */
export function levelsTable(model: Model, shownK: number, actions: Actions): HTMLElement {
  const { levels, nodes, recommended } = model.facts;
  const hasApproximate = levels.some((level) => level.approximate > 0);
  const heads = ["k", "Communities", "Largest", "Second", "Nodes covered", "In several", "Overlaps"];
  if (hasApproximate) heads.splice(2, 0, "Approximate");
  return longTable("Figures of every k", heads, levels.length, (i) => {
    const level = levels[i]!;
    const cell = (value: string | number) =>
      el("td", { class: "figure" }, typeof value === "number" ? figure.format(value) : value);
    const isShown = level.k === shownK;
    return el(
      "tr",
      { class: isShown ? "shown" : undefined, "aria-current": isShown ? "true" : undefined },
      el(
        "td",
        {},
        el(
          "button",
          { type: "button", class: "chip", onclick: () => actions.chooseK(level.k) },
          `k = ${level.k}`,
        ),
        level.k === recommended && el("span", { class: "star" }, " ★ start here"),
      ),
      cell(level.communities),
      hasApproximate && cell(level.approximate),
      cell(level.largest),
      cell(level.second),
      cell(`${figure.format(level.covered)} (${percent(level.covered, nodes)})`),
      cell(level.overlapping),
      cell(level.overlaps),
    );
  });
}
