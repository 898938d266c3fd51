// The page as people meet it: in a browser, from a file.
import assert from "node:assert/strict";
import { readFileSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import test, { after, before } from "node:test";
import { here, kinds, levelsIn, randomLinks, report, run, vorlane, work } from "./results.mjs";

const require = createRequire(join(process.env.MODULES, "x.js"));
const { chromium } = require("playwright-core");
let browser;
before(async () => {
  browser = await chromium.launch({
    executablePath: process.env.CHROMIUM,
    args: ["--no-sandbox", "--use-angle=swiftshader", "--enable-unsafe-swiftshader",
      "--disable-background-networking", "--disable-component-update", "--disable-sync"],
  });
});
after(() => browser.close());

// Opens a page and has `look` see it; it must ask nothing of the net and complain of nothing.
async function open(file, look, { hash = "", ...options } = {}) {
  const page = await browser.newPage({ viewport: { width: 1300, height: 900 }, ...options });
  const complaints = [];
  page.on("console", (message) => /error|warning/.test(message.type()) && complaints.push(message.text()));
  page.on("pageerror", (failure) => complaints.push(failure.stack));
  page.on("request", (request) => {
    if (!/^(data|blob):/.test(request.url()) && !request.url().startsWith(`file://${file}`))
      complaints.push(`asks for ${request.url()}`);
  });
  try {
    await page.goto(`file://${file}${hash}`);
    await page.waitForFunction(() => window.vorlane, null, { timeout: 20000 });
    await look(page);
    assert.deepEqual(complaints, []);
  } finally {
    await page.close();
  }
}

const choir = () => run("choir", readFileSync(join(here, "../../examples/choir.txt"), "utf8"));
const texts = (page, selector) => page.$$eval(selector, (all) => all.map((one) => one.textContent));
const figures = async (page) =>
  (await texts(page, "#figures dd")).map((text) => Number(text.replace(/[^0-9]/g, "")));

test("shows the figures of the files at every k, for all kinds of runs", async () => {
  for (const [kind, directory] of Object.entries(kinds())) {
    const levels = levelsIn(directory);
    await open(report(directory, kind), async (page) => {
      for (const k of [...levels.keys()].sort((a, b) => a - b)) {
        await page.evaluate((wanted) => (location.hash = `#k=${wanted}&view=network`), k);
        await page.waitForFunction((wanted) => document.getElementById("k-now").textContent === `k = ${wanted}`, k);
        const level = levels.get(k);
        const nodes = await page.evaluate(() => window.vorlane.model.facts.nodes);
        const expected = [level.communities.length, level.largest,
          Math.round((100 * level.covered) / nodes) * 1, level.overlapping, level.overlaps];
        const found = await figures(page);
        assert.equal(await page.textContent("#figures dd:nth-of-type(1)"), String(expected[0]));
        assert.deepEqual(found.slice(0, 5), expected, `${kind}, k = ${k}`);
        assert.equal(found[5] ?? 0, level.approximate, kind);
        assert.match((await texts(page, "#figures dt"))[2], new RegExp(`\\(${level.covered}\\)`));
      }
    });
  }
});

test("is led by keys alone: slider, search, tables", async () => {
  const page_file = report(choir(), "choir");
  await open(page_file, async (page) => {
    await page.focus("#k");
    await page.keyboard.press("ArrowRight");
    assert.equal(await page.textContent("#k-now"), "k = 4");
    assert.match(page.url(), /#k=4&view=network$/);
    await page.keyboard.press("End");
    assert.equal(await page.textContent("#k-now"), "k = 5");
    await page.focus("#search");
    await page.keyboard.type("jonas");
    await page.keyboard.press("Enter");
    assert.equal(await page.textContent("#panel h2"), "Jonas");
    assert.deepEqual((await texts(page, "#panel tbody tr")).map((text) => text.slice(0, 1)), ["5", "4", "3"]);
    await page.focus("#panel tbody tr:nth-child(2) .chip");
    await page.keyboard.press("Enter");
    assert.equal(await page.textContent("#panel h2"), "Community 0 at k = 4");
    assert.deepEqual(await texts(page, "#panel .link"), ["Jonas", "Karla", "Lena", "Milo", "Nora"]);
    await page.focus("#tab-levels");
    await page.keyboard.press("Enter");
    assert.equal((await texts(page, "#levels tbody tr")).length, 3);
  });
  await open(page_file, async (page) => {
    assert.equal(await page.textContent("#panel h2"), "Community 4 at k = 4");
    assert.equal(await page.textContent("[aria-selected=true]"), "One community");
  }, { hash: "#k=4&view=members&community=4" });
});

test("draws a node of two communities as a pie of their colours", async () => {
  await open(report(choir(), "choir"), async (page) => {
    const place = await page.evaluate(() => {
      const { stage } = window.vorlane.app;
      const dots = stage.current().dots;
      const at = dots.findIndex((dot) => dot.label === "Jonas");
      const box = document.getElementById("stage").getBoundingClientRect();
      const { x, y } = stage.placeOnScreen(at);
      return { x: box.x + x, y: box.y + y, colours: dots[at].colours, radius: dots[at].radius };
    });
    assert.equal(place.colours.length, 2);
    const around = { x: place.x - 12, y: place.y - 12, width: 24, height: 24 };
    const shot = (await page.screenshot({ clip: around })).toString("base64");
    const met = await page.evaluate(async (png) => {
      const image = new Image();
      image.src = `data:image/png;base64,${png}`;
      await image.decode();
      const canvas = document.createElement("canvas");
      canvas.width = canvas.height = 24;
      const context = canvas.getContext("2d");
      context.drawImage(image, 0, 0);
      const data = context.getImageData(0, 0, 24, 24).data;
      const colours = {};
      for (let i = 0; i < data.length; i += 4) {
        const hex = [0, 1, 2].map((j) => data[i + j].toString(16).padStart(2, "0")).join("");
        colours[`#${hex}`] = (colours[`#${hex}`] ?? 0) + 1;
      }
      return colours;
    }, shot);
    for (const colour of place.colours)
      assert.ok(met[colour] > 40, `${colour} among ${JSON.stringify(met)}`);
  }, { hash: "#k=4&view=network" });
});

test("has nothing that axe finds, light or dark, wide or narrow", async () => {
  const axe = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");
  const file = report(choir(), "choir");
  for (const [colorScheme, width, hash] of [["light", 1300, "#k=4&view=network"],
    ["dark", 1300, "#k=4&view=levels&community=0"], ["light", 390, "#k=4&view=distributions&node=Emil"]])
    await open(file, async (page) => {
      await page.evaluate(axe);
      const found = await page.evaluate(() => axe.run(document));
      assert.deepEqual(found.violations.map(({ id, nodes }) => [id, nodes.map((n) => n.html)]), []);
      const wide = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
      assert.ok(wide <= 0, `${wide} pixels too wide at ${width}`);
    }, { colorScheme, viewport: { width, height: 800 }, hash });
});

test("takes names as texts, whatever they are", async () => {
  const names = ['<img/src=x/onerror=alert(1)>', "</script><b>", "\u202eright\u05d0", "x".repeat(1024),
    "\"quotes'&amp;", "@data@", "@title@", "100%", "__proto__", "\u{1f3b6}"];
  let links = "";
  for (const a of names) for (const b of names) if (a < b) links += `${a} ${b}\n`;
  const file = report(run("hostile", links), "hostile");
  await open(file, async (page) => {
    page.on("dialog", () => assert.fail("a name was run"));
    await page.click("#panel .chip");
    assert.equal((await texts(page, "#panel .link")).length, names.length);
    assert.equal(await page.evaluate(() => document.querySelectorAll("#panel img, #panel b").length), 0);
    assert.deepEqual(await page.evaluate(() => [...window.vorlane.model.names].sort()), [...names].sort());
    for (const id of ["svg", "tree-svg"]) {
      const [download] = await Promise.all([page.waitForEvent("download"), page.click(`#${id}`)]);
      const svg = readFileSync(await download.path(), "utf8");
      assert.equal(
        await page.evaluate((text) => new DOMParser().parseFromString(text, "image/svg+xml").querySelectorAll("parsererror, img").length, svg), 0);
    }
  }, { hash: "#view=network" });
});

test("shows no community, one community, and a hundred thousand nodes", async () => {
  await open(report(run("none", "a b\nb c\n"), "none"), async (page) => {
    assert.equal(await page.textContent("#panel h2"), "No communities");
    assert.equal(await page.isVisible("#controls"), false);
  });
  await open(report(run("one", "a b\nb c\na c\n"), "one"), async (page) => {
    assert.deepEqual((await figures(page)).slice(0, 3), [1, 3, 100]);
  });
  await open(report(run("many", randomLinks(3, 130000, 90000)), "many"), async (page) => {
    const { ready, nodes } = await page.evaluate(() => ({ ready: window.vorlane.ready, nodes: window.vorlane.model.facts.nodes }));
    assert.ok(nodes >= 100000);
    assert.ok(ready < 10000, `ready after ${ready} ms`);
    const step = await page.evaluate(() => {
      const begin = performance.now();
      document.getElementById("more").click();
      return performance.now() - begin;
    });
    assert.ok(step < 2000, `a step of the slider took ${step} ms`);
  });
});

test("prints its pictures, and saves them", async () => {
  await open(report(choir(), "choir"), async (page) => {
    await page.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
    assert.equal(await page.$$eval("img.print-only", (all) => all.filter((i) => i.naturalWidth > 0).length), 2);
    await page.evaluate(() => window.dispatchEvent(new Event("afterprint")));
    const [download] = await Promise.all([page.waitForEvent("download"), page.click("#png")]);
    assert.equal(download.suggestedFilename(), "choir-network-k4.png");
    assert.equal(readFileSync(await download.path()).subarray(1, 4).toString(), "PNG");
  }, { hash: "#k=4" });
});

test("says so where a browser is too old, or its data are damaged", async () => {
  const file = report(choir(), "choir");
  const page = await browser.newPage();
  await page.addInitScript(() => delete window.DecompressionStream);
  await page.goto(`file://${file}`);
  assert.match(await page.textContent("#sorry"), /too old/);
  await page.close();
  const damaged = join(work, "damaged.html");
  writeFileSync(damaged, readFileSync(file, "utf8").replace(/id="data">(.{40})..../, 'id="data">$1AAAA'));
  const other = await browser.newPage();
  await other.goto(`file://${damaged}`);
  await other.waitForSelector("#sorry.told");
  assert.match(await other.textContent("#sorry"), /can't be shown/);
  await other.close();
});

test("pictures for print are whole documents with every node and community", async () => {
  const directory = choir();
  const page = await browser.newPage();
  for (const [figure, selector, count] of [["graph", "g > circle", 27], ["tree", "rect[stroke]", 12], ["distributions", "g > circle", 8]]) {
    const svg = vorlane("report", directory, "--svg", figure, "--k", "4", "-o", "-");
    const found = await page.evaluate(([text, what]) => {
      const picture = new DOMParser().parseFromString(text, "image/svg+xml");
      return [picture.querySelectorAll("parsererror").length, picture.querySelectorAll(what).length];
    }, [svg, selector]);
    assert.deepEqual(found, [0, count], figure);
  }
  await page.close();
});
