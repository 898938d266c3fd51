// Runs of the program and what stands in their files, for the tests of the page.
import { execFileSync } from "node:child_process";
import { cpSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

export const here = dirname(fileURLToPath(import.meta.url));
export const work = mkdtempSync(join(process.env.WORK, "page"));
const program = process.env.VORLANE;

export const vorlane = (...words) => execFileSync(program, words, { encoding: "utf8" });

// The same numbers whenever it is made.
function numbers(seed) {
  let state = seed;
  return (below) => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * below);
  };
}

// Links of random cliques, some nodes in several of them, with weights from 1 to 9.
export function randomLinks(seed, nodes, cliques) {
  const next = numbers(seed);
  const links = new Map();
  for (let i = 0; i < cliques; ++i) {
    const start = next(nodes);
    const members = Array.from({ length: 3 + next(5) }, () => (start + next(25)) % nodes);
    for (const a of members)
      for (const b of members)
        if (a !== b) links.set(`n${Math.min(a, b)} n${Math.max(a, b)}`, 1 + next(9));
  }
  return [...links].map(([pair, weight]) => `${pair} ${weight}`).join("\n") + "\n";
}

// The directory of a run on links.
export function run(name, links, ...options) {
  writeFileSync(join(work, `${name}.txt`), links);
  rmSync(join(work, name), { recursive: true, force: true });
  vorlane("-i", join(work, `${name}.txt`), "-o", join(work, name), ...options);
  const made = readdirSync(work).find((entry) => entry === name || entry.startsWith(`${name}-w-th`));
  return join(work, made);
}

export function report(directory, name, ...options) {
  const page = join(work, `${name}.html`);
  vorlane("report", directory, "-o", page, "--force", ...options);
  return page;
}

export function kinds() {
  const links = randomLinks(1, 150, 130);
  const limited = join(work, "limited");
  cpSync(join(here, "../expected/time_limit/results"), limited, { recursive: true });
  return {
    plain: run("plain", links),
    directed: run("directed", links, "-D"),
    intensity: run("intensity", links, "-I", "3", "-k", "4"),
    limited,
  };
}

const linesOf = (path) =>
  readFileSync(path, "utf8").split("\n").filter((line) => line !== "" && !line.startsWith("#"));

// What the files tell of each k.
export function levelsIn(directory) {
  const levels = new Map();
  for (const entry of readdirSync(directory).filter((name) => name.startsWith("k="))) {
    const files = readdirSync(join(directory, entry));
    const file = (pattern) => join(directory, entry, files.find((name) => pattern.test(name)));
    const rows = linesOf(file(/^((?!graph_of).)*communities$/)).map((line) => line.split(":"));
    const communities = rows.map(([, names]) => names.trim().split(" "));
    const holders = new Map();
    for (const names of communities)
      for (const name of names) holders.set(name, (holders.get(name) ?? 0) + 1);
    const distribution = (word) =>
      linesOf(file(new RegExp(`${word}_distribution(_merged)?$`))).map((line) =>
        line.trim().split(/\s+/).map(Number),
      );
    levels.set(Number(entry.slice(2)), {
      communities,
      approximate: rows.filter(([number]) => number.startsWith("-")).length,
      largest: Math.max(0, ...communities.map((names) => names.length)),
      covered: holders.size,
      overlapping: [...holders.values()].filter((count) => count > 1).length,
      overlaps: linesOf(file(/^.*graph_of.*communities$/)).length,
      sizes: distribution("size"),
      memberships: distribution("membership"),
    });
  }
  return levels;
}

export const linkCount = (directory) =>
  linesOf(join(directory, readdirSync(directory).find((name) => /graph$/.test(name)))).length;
