import { byId, counted, el, figure, percent, short } from "./dom";
import type { Model } from "./model";
import { type Actions, compare } from "./panel";

/** The head of the page: what it is about, the slider of k with what it means, and the search. */
export class Controls {
  private readonly slider = byId<HTMLInputElement>("k");
  private readonly search = byId<HTMLInputElement>("search");

  constructor(
    private readonly model: Model,
    private readonly actions: Actions,
  ) {
    const { facts, levels } = model;
    byId("title").textContent = short(facts.title, 200);
    document.title = `${short(facts.title, 60)} · overlapping communities`;
    byId("lead").textContent = this.lead();
    byId("made").textContent =
      `Made by Vorlane ${facts.version} from ${counted(facts.nodes, "node")} and ` +
      `${counted(facts.links, "link")}; this file needs nothing else and asks nothing of the net.`;
    if (levels.length === 0) {
      byId("controls").hidden = true;
      byId("tree").hidden = true;
    }
    this.slider.min = "0"; // positions among the levels: their k may have gaps
    this.slider.max = String(Math.max(0, levels.length - 1));
    this.slider.addEventListener("input", () => this.step(Number(this.slider.value)));
    byId("less").addEventListener("click", () => this.step(Number(this.slider.value) - 1));
    byId("more").addEventListener("click", () => this.step(Number(this.slider.value) + 1));
    const recommended = byId("recommended");
    recommended.hidden = facts.recommended === undefined;
    recommended.textContent = `★ Start at k = ${facts.recommended}`;
    recommended.title = facts.reason ?? "";
    recommended.addEventListener("click", () => actions.chooseK(facts.recommended!));
    const star = byId("star");
    star.hidden = facts.recommended === undefined || levels.length < 2;
    const at = levels.findIndex((level) => level.k === facts.recommended) / (levels.length - 1);
    star.style.left = `calc(8px + ${at} * (100% - 16px))`; // as the thumb of the slider moves
    this.search.addEventListener("input", () => this.suggest());
    this.search.addEventListener("change", () => this.find());
  }

  show(k: number): void {
    const { facts, levels } = this.model;
    const level = facts.levels.find((l) => l.k === k);
    if (!level) return;
    const at = levels.findIndex((l) => l.k === k);
    this.slider.value = String(at);
    this.slider.setAttribute("aria-valuetext", `k = ${k}`);
    byId("k-now").textContent = `k = ${k}`;
    byId<HTMLButtonElement>("less").disabled = at === 0;
    byId<HTMLButtonElement>("more").disabled = at === levels.length - 1;
    byId("recommended").setAttribute("aria-pressed", String(k === facts.recommended));
    byId("meaning").textContent =
      `Here a community is built of groups of ${k} nodes that are all linked with each other, chained ` +
      `by neighbours that share ${k - 1}.` +
      (k === facts.recommended && facts.reason ? ` Why start at this k? ${facts.reason}` : "");
    const entries: [string, string][] = [
      [figure.format(level.communities), level.communities === 1 ? "community" : "communities"],
      [figure.format(level.largest), "nodes in the largest"],
      [percent(level.covered, facts.nodes), `of nodes in a community (${figure.format(level.covered)})`],
      [figure.format(level.overlapping), level.overlapping === 1 ? "node in several" : "nodes in several"],
      [figure.format(level.overlaps), level.overlaps === 1 ? "overlap of two" : "overlaps of two"],
    ];
    if (level.approximate > 0) entries.push([`≈ ${figure.format(level.approximate)}`, "approximate"]);
    byId("figures").replaceChildren(
      ...entries.map(([value, name]) => el("div", {}, el("dt", {}, name), el("dd", {}, value))),
    );
    byId("told").textContent =
      `k = ${k}: ${counted(level.communities, "community", "communities")}, the largest of ` +
      `${counted(level.largest, "node")}.`;
  }

  private lead(): string {
    const { facts } = this.model;
    const kinds = {
      undirected: "",
      directed: " Links have directions, and communities follow them.",
      intensity: " Only groups whose links are strong together count.",
    };
    return (
      `${counted(facts.nodes, "node")} and ${counted(facts.links, "link")}, grouped into communities ` +
      `that may overlap: a node can belong to several at once.${kinds[facts.method]}` +
      (facts.finished ? "" : " The run had not finished: there may be more.")
    );
  }

  private step(at: number): void {
    const level = this.model.levels[at];
    if (level) this.actions.chooseK(level.k);
  }

  private suggest(): void {
    const wanted = this.search.value.toLowerCase();
    const found: string[] = [];
    if (wanted !== "")
      for (const name of this.model.names) {
        if (name.toLowerCase().includes(wanted)) found.push(name);
        if (found.length === 500) break;
      }
    found.sort(
      (a, b) =>
        Number(b.toLowerCase().startsWith(wanted)) - Number(a.toLowerCase().startsWith(wanted)) ||
        compare(a, b),
    );
    byId("found").replaceChildren(
      ...found.slice(0, 20).map((name) => el("option", { value: name })),
    );
    if (this.model.names.includes(this.search.value)) this.find();
  }

  private find(): void {
    const wanted = this.search.value;
    let node = this.model.names.indexOf(wanted);
    if (node < 0) {
      const only = this.model.names.filter((name) => name.toLowerCase() === wanted.toLowerCase());
      if (only.length === 1) node = this.model.names.indexOf(only[0]!);
    }
    this.search.setCustomValidity(node < 0 && wanted !== "" ? "No node has this name." : "");
    if (node >= 0) this.actions.chooseNode(node);
    else this.search.reportValidity();
  }
}
