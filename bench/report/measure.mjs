// Called by ./run: opens pages in Chromium and prints a row of a Markdown table for each network.
//     node measure.mjs PROGRAM CHROMIUM FOLDER LINKS...
import { execFileSync, spawnSync } from "node:child_process";
import { readFileSync, statSync, writeFileSync } from "node:fs";
import { basename, join } from "node:path";
import { buildSync } from "esbuild";
import { chromium } from "playwright-core";

const [program, executablePath, folder, ...networks] = process.argv.slice(2);
const mostForRivals = 20000; // nodes that the other pages are asked to take
const steps = 12;

function bundle(code) {
  return buildSync({
    stdin: { contents: code, resolveDir: process.cwd() },
    bundle: true, minify: true, format: "iife", write: false,
  }).outputFiles[0].text.replace(/<\/script/g, "<\\/script");
}

// All nodes and links in one picture, at random places, as pages of the usual kind have them.
const plainSigma = bundle(`
  import Graph from "graphology";
  import Sigma from "sigma";
  const graph = new Graph({ multi: true });
  for (const [a, b] of links) {
    for (const node of [a, b])
      graph.mergeNode(node, { x: Math.random(), y: Math.random(), size: 3, label: node });
    graph.addEdge(a, b);
  }
  new Sigma(graph, document.getElementById("stage"));
  requestAnimationFrame(() => (window.ready = performance.now()));`);
const visNetwork = bundle(`
  import { DataSet, Network } from "vis-network/standalone";
  const nodes = new DataSet([...new Set(links.flat())].map((id) =>
    ({ id, label: id, x: 3000 * Math.random(), y: 3000 * Math.random() })));
  const edges = new DataSet(links.map(([from, to]) => ({ from, to })));
  const network = new Network(document.getElementById("stage"), { nodes, edges },
    { physics: false, layout: { improvedLayout: false } });
  network.once("afterDrawing", () => (window.ready = performance.now()));`);

function rivalPage(name, script, links) {
  const file = join(folder, `${name}.html`);
  writeFileSync(file, `<!doctype html><meta charset="utf-8"><div id="stage" style="height:100vh"></div>` +
    `<script>const links = ${JSON.stringify(links)};</script><script>${script}</script>`);
  return file;
}

const browser = await chromium.launch({ executablePath, args: ["--no-sandbox", "--use-angle=swiftshader",
  "--enable-unsafe-swiftshader", "--disable-background-networking"] });

const median = (values) => values.sort((a, b) => a - b)[values.length >> 1];

async function look(file, ready, more = async () => ({})) {
  const rounds = [];
  let found = {};
  for (let round = 0; round < 3; ++round) {
    const page = await browser.newPage({ viewport: { width: 1300, height: 900 } });
    await page.goto(`file://${file}`);
    rounds.push(await (await page.waitForFunction(ready, null, { timeout: 120000 })).jsonValue());
    if (round === 2) found = await more(page);
    await page.close();
  }
  return { ready: median(rounds), ...found };
}

async function heapAndSteps(page) {
  const session = await page.context().newCDPSession(page);
  const times = await page.evaluate(async (count) => {
    const taken = [];
    for (let i = 0; i < count; ++i) {
      const begin = performance.now();
      document.getElementById(i < count / 2 ? "more" : "less").click();
      taken.push(performance.now() - begin);
      await new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
    }
    return taken;
  }, steps);
  await session.send("HeapProfiler.collectGarbage");
  const { usedSize, backingStorageSize = 0 } = await session.send("Runtime.getHeapUsage");
  return { heap: usedSize + backingStorageSize, step: median(times) };
}

// Processor time of a call, user and system.
function processorTime(...words) {
  const script = 'TIMEFORMAT="%U %S"; time "$0" "$@" >/dev/null';
  const { stderr } = spawnSync("bash", ["-c", script, program, ...words], { encoding: "utf8" });
  return stderr.trim().split("\n").at(-1).split(" ").reduce((sum, part) => sum + Number(part), 0);
}

console.log(
  "| network | nodes | report, s of processor | page, MB | ready, ms | step of the slider, ms | heap, MB " +
    "| plain sigma: ready, ms | vis-network: ready, ms |");
console.log("|---|---|---|---|---|---|---|---|---|");
for (const network of networks) {
  const name = basename(network).replace(/\.\w+$/, "");
  const results = join(folder, name);
  execFileSync(program, ["-i", network, "-o", results], { stdio: "ignore" });
  const file = join(folder, `${name}.page.html`);
  const cost = processorTime("report", results, "-o", file, "--force");
  const ours = await look(file, () => window.vorlane?.ready, heapAndSteps);
  const links = readFileSync(join(results, "graph"), "utf8").split("\n")
    .filter((line) => line !== "" && !line.startsWith("#")).map((line) => line.split(" ").slice(0, 2));
  const nodes = new Set(links.flat()).size;
  const rivals = [];
  for (const [rival, script] of [["sigma", plainSigma], ["vis", visNetwork]])
    rivals.push(nodes > mostForRivals ? "-"
      : Math.round((await look(rivalPage(`${name}.${rival}`, script, links), () => window.ready)).ready));
  const row = [name, nodes, cost.toFixed(2), (statSync(file).size / 1e6).toFixed(2), Math.round(ours.ready),
    Math.round(ours.step), Math.round(ours.heap / 1e6), ...rivals];
  console.log(`| ${row.join(" | ")} |`);
}
await browser.close();
