import uPlot from "uplot";
import { themed } from "./colours";
import { el } from "./dom";
import type { Distribution, Level } from "./model";
import { longTable } from "./panel";

const kinds = [
  ["size", "How large are communities?", "nodes of a community", "communities"],
  ["membership", "In how many is a node?", "communities of a node", "nodes"],
  ["overlap", "How many nodes do two share?", "shared nodes", "pairs of communities"],
  ["degree", "With how many does one overlap?", "overlapping communities", "communities"],
] as const;

/** The four distributions of a level, as points on scales of powers of ten and as tables. */
export function showDistributions(root: HTMLElement, level: Level): void {
  root.replaceChildren();
  const draws: (() => void)[] = []; // when all have their places, and so their widths
  for (const [name, question, across, upwards] of kinds) {
    const distribution = level.distributions[name];
    const zero = distribution.find(([value]) => value === 0)?.[1] ?? 0;
    const plot = el("div", { class: "plot", role: "img", "aria-label": `${question} A table follows.` });
    const section = el(
      "section",
      { class: "distribution" },
      el("h3", {}, question),
      plot,
      zero > 0 && el("p", { class: "muted" }, `${zero} ${upwards} at 0, which has no place on this scale.`),
      el(
        "details",
        {},
        el("summary", {}, "As a table"),
        longTable(question, [across, upwards], distribution.length, (i) =>
          el(
            "tr",
            {},
            el("td", { class: "figure" }, distribution[i]![0]),
            el("td", { class: "figure" }, distribution[i]![1]),
          ),
        ),
      ),
    );
    root.append(section);
    draws.push(() => draw(plot, distribution, across, upwards));
  }
  draws.forEach((start) => start());
}

function draw(plot: HTMLElement, distribution: Distribution, across: string, upwards: string): void {
  const points = distribution.filter(([value, times]) => value > 0 && times > 0);
  if (points.length === 0) {
    plot.append(el("p", { class: "muted" }, "None at this k."));
    return;
  }
  const decade = (values: number[]) => 10 ** Math.max(1, Math.ceil(Math.log10(Math.max(...values) * 1.05)));
  const xs = points.map(([value]) => value);
  const ys = points.map(([, times]) => times);
  const axis = {
    stroke: themed("muted"),
    grid: { stroke: themed("grid"), width: 1 },
    font: "12px system-ui, sans-serif",
    labelFont: "12px system-ui, sans-serif",
    labelSize: 18,
    values: (_: uPlot, splits: (number | null)[]) =>
      splits.map((v) => (v !== null && Number.isInteger(Math.log10(v)) ? String(v) : "")),
  };
  new uPlot(
    {
      width: Math.max(220, plot.clientWidth || 320),
      height: 210,
      scales: {
        x: { time: false, distr: 3, log: 10, range: [0.8, decade(xs)] },
        y: { distr: 3, log: 10, range: [0.8, decade(ys)] },
      },
      axes: [
        { ...axis, label: across },
        { ...axis, label: upwards, size: 56 },
      ],
      series: [
        {},
        { paths: () => null, points: { show: true, size: 7, fill: themed("accent"), stroke: themed("card") } },
      ],
      legend: { show: false },
      cursor: { show: false },
    },
    [xs, ys],
    plot,
  );
}
