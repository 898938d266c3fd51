import type { Level } from "./model";

/** Everybody can tell these apart (M. Okabe, K. Ito, 2008). */
const clear = ["#0072b2", "#e69f00", "#009e73", "#cc79a7", "#56b4e9", "#d55e00", "#f0e442"];

const goldenAngle = Math.PI * (3 - Math.sqrt(5));

/** Of the community of this rank by size; hues of neighbouring ranks are far apart. */
export function colourOfRank(rank: number): string {
  if (rank < clear.length) return clear[rank]!;
  const part = (turn: number) =>
    Math.trunc(150 + 70 * Math.cos(goldenAngle * rank + (turn * 2 * Math.PI) / 3))
      .toString(16)
      .padStart(2, "0");
  return `#${part(0)}${part(1)}${part(2)}`;
}

/** By place less the level's first: its colour. */
export function coloursOf(level: Level): string[] {
  const colours = new Array<string>(level.ranked.length);
  level.ranked.forEach((place, rank) => (colours[place - level.first] = colourOfRank(rank)));
  return colours;
}

/** What the style sheet calls a colour, as it is in the light or the dark. */
export function themed(name: string): string {
  return getComputedStyle(document.documentElement).getPropertyValue(`--${name}`).trim();
}

/** A colour of the form "#rrggbb" with so much of itself, the rest that of the ground. */
export function pale(colour: string, part: number): string {
  const ground = themed("card");
  const mixed = [1, 3, 5].map((at) => {
    const of = (text: string) => parseInt(text.slice(at, at + 2), 16);
    return Math.round(part * of(colour) + (1 - part) * of(ground))
      .toString(16)
      .padStart(2, "0");
  });
  return `#${mixed.join("")}`;
}
