// What the page reads of its data block is what the program has put there.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import test from "node:test";
import { here, kinds, levelsIn, linkCount, report, run } from "./results.mjs";

const require = createRequire(join(process.env.MODULES, "x.js"));
const { buildSync } = require("esbuild");
const built = buildSync({
  stdin: {
    contents: 'export { inflate, Reader, row } from "./block"; export { Model } from "./model";',
    resolveDir: join(here, "../../web/src"),
  },
  bundle: true,
  format: "esm",
  write: false,
}).outputFiles[0].text;
const { inflate, Model, Reader, row } = await import(
  `data:text/javascript;base64,${Buffer.from(built).toString("base64")}`
);

const blockOf = (page) => /id="data">([^<]*)</.exec(readFileSync(page, "utf8"))[1];
const modelOf = async (page) => Model.read(await inflate(blockOf(page)));

test("the members, overlaps and figures of all k are those of the files", async () => {
  for (const [kind, directory] of Object.entries(kinds())) {
    const model = await modelOf(report(directory, kind));
    const levels = levelsIn(directory);
    assert.equal(model.facts.links, linkCount(directory), kind);
    assert.equal(model.links.values.length, model.facts.links, kind);
    assert.deepEqual(model.levels.map(({ k }) => k), [...levels.keys()].sort((a, b) => a - b), kind);
    for (const level of model.levels) {
      const expected = levels.get(level.k);
      const found = [];
      for (let place = level.first; place < level.end; ++place)
        found.push(model.members(place).map((node) => model.names[node]).sort());
      assert.deepEqual(found, expected.communities.map((names) => [...names].sort()), `${kind} ${level.k}`);
      assert.equal(level.end - level.first - level.exact, expected.approximate, kind);
      const holders = model.holders(level);
      const counts = model.names.map((_, node) => row(holders, node).length);
      assert.equal(counts.filter((count) => count > 1).length, expected.overlapping, kind);
      assert.deepEqual(level.distributions.size.filter(([, times]) => times > 0), expected.sizes.filter(([, times]) => times > 0), kind);
      assert.deepEqual(level.distributions.membership.filter(([, times]) => times > 0), expected.memberships.filter(([, times]) => times > 0), kind);
    }
  }
});

test("circles lie inside those of their parents, and places are kept", async () => {
  const model = await modelOf(report(run("nested", "a b\na c\nb c\nb d\nc d\na d\nd e\nd f\ne f\n"), "nested"));
  const circleOf = (place) => {
    const level = model.levelOf(place);
    const rank = level.ranked.indexOf(place);
    return [level.circles.x[rank], level.circles.y[rank], level.circles.radius[rank]];
  };
  for (let place = 0; place < model.sizes.length; ++place) {
    const parent = model.parent(place);
    if (parent === undefined) continue;
    const [x, y, radius] = circleOf(place);
    const [px, py, around] = circleOf(parent);
    assert.ok(Math.hypot(x - px, y - py) + radius <= around + 0.001);
  }
  assert.equal(new Set(model.names.map((_, node) => `${model.x[node]} ${model.y[node]}`)).size, 6);
});

test("what is cut short or too long is refused", async () => {
  const bytes = await inflate(blockOf(report(run("short", "a b\na c\nb c\n"), "short")));
  for (let length = 0; length < bytes.length; ++length)
    assert.throws(() => Model.read(bytes.subarray(0, length)), `${length} of ${bytes.length} bytes`);
  assert.throws(() => Model.read(Uint8Array.from([...bytes, 0])), /too long/);
  const reader = new Reader(Uint8Array.from([0x80, 0x80, 0x80, 0x80, 0x10, 0x05]));
  assert.equal(reader.number(), 2 ** 32);
  assert.equal(reader.signed(), -3);
});
