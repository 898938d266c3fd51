import { Controls } from "./controls";
import { showDistributions } from "./distributions";
import { byId, el, figure } from "./dom";
import type { Level, Model } from "./model";
import { levelsTable, Panel } from "./panel";
import { savePng, saveSvg, sceneInSvg, treeInSvg } from "./save";
import type { Dot, Scene } from "./scene";
import { communitiesScene, membersScene, mostMembers, networkScene, Shown } from "./scenes";
import { Stage } from "./stage";
import { fromHash, type State, toHash, type View } from "./state";
import { Tree } from "./tree";
import { TreeBox } from "./tree_box";

const wholeNetwork = 20000; // nodes that are drawn at once
const openingNetwork = 1500; // up to so many it is the first picture

const titles: Record<View, string> = {
  communities: "Communities",
  network: "Network",
  members: "One community",
  distributions: "Distributions",
  levels: "Every k",
};

/** The page: what is chosen, and everything that follows from it. */
export class App {
  state: State = { k: 0, view: "network" };
  shown: Shown | undefined;
  readonly stage = new Stage(byId("stage"), (dot) => this.clicked(dot));
  private readonly panel: Panel;
  private readonly controls: Controls;
  private readonly treeBox: TreeBox;
  private scene: { of: string; scene: Scene } | undefined;

  constructor(readonly model: Model) {
    const actions = {
      chooseCommunity: (place: number | undefined) => this.chooseCommunity(place),
      chooseNode: (node: number | undefined) => this.chooseNode(node),
      chooseK: (k: number, place?: number) => this.chooseK(k, place),
    };
    this.panel = new Panel(byId("panel"), model, actions);
    this.controls = new Controls(model, actions);
    this.treeBox = new TreeBox(new Tree(model), model, actions);
  }

  begin(): void {
    for (const id of ["top", "main", "foot"]) byId(id).hidden = false;
    this.takeHash();
    this.show();
    window.addEventListener("hashchange", () => {
      this.takeHash();
      this.show();
    });
    matchMedia("(prefers-color-scheme: dark)").addEventListener("change", () => {
      this.scene = undefined;
      this.show();
    });
    new ResizeObserver(() => this.treeBox.draw(this.shown, this.chosen())).observe(byId("tree-box"));
    byId("fit").addEventListener("click", () => this.showPicture(true));
    byId("svg").addEventListener("click", () => saveSvg(this.fileName(), this.picture()));
    byId("png").addEventListener("click", () => void savePng(this.fileName(), this.picture()));
    const treeSvg = () => this.treeBox.inSvg((tree, w, h) => treeInSvg(tree, this.shown, w, h));
    byId("tree-svg").addEventListener("click", () => saveSvg(this.fileName("tree"), treeSvg()));
    byId("tree-png").addEventListener("click", () => void savePng(this.fileName("tree"), treeSvg()));
    window.addEventListener("beforeprint", () => this.print(treeSvg()));
    window.addEventListener("afterprint", () =>
      document.querySelectorAll(".print-only").forEach((image) => image.remove()),
    );
  }

  chooseK(k: number, place?: number): void {
    const level = this.levelAt(k);
    if (!level) return;
    this.state.k = k;
    this.state.community = place === undefined ? undefined : place - level.first;
    if (place !== undefined) this.state.node = undefined;
    if (place === undefined && this.state.view === "members") this.state.view = this.firstView();
    this.show();
  }

  chooseView(view: View): void {
    this.state.view = view;
    this.show();
  }

  chooseCommunity(place: number | undefined): void {
    this.state.community = place === undefined ? undefined : place - this.shown!.level.first;
    this.state.node = undefined;
    if (place === undefined && this.state.view === "members") this.state.view = this.firstView();
    if (place !== undefined && this.state.view === "communities") this.state.view = "members";
    this.show();
  }

  chooseNode(node: number | undefined): void {
    this.state.node = node === undefined ? undefined : this.model.names[node];
    this.show();
  }

  /** The place of the chosen community. */
  chosen(): number | undefined {
    if (!this.shown || this.state.community === undefined) return undefined;
    const place = this.shown.level.first + this.state.community;
    return place < this.shown.level.end ? place : undefined;
  }

  private takeHash(): void {
    const { facts } = this.model;
    const wanted = fromHash(location.hash);
    const first = facts.k ?? facts.recommended ?? this.model.levels[0]?.k ?? 0;
    const k = wanted.k !== undefined && this.levelAt(wanted.k) ? wanted.k : first;
    this.state = { ...wanted, k, view: wanted.view ?? this.firstView() };
    if (!this.possible().includes(this.state.view)) this.state.view = this.firstView();
  }

  private firstView(): View {
    if (this.model.levels.length === 0) return "network";
    return this.model.facts.nodes <= openingNetwork ? "network" : "communities";
  }

  private possible(): View[] {
    const views: View[] = [];
    if (this.model.levels.length > 0) views.push("communities");
    if (this.model.facts.nodes <= wholeNetwork) views.push("network");
    if (this.state.community !== undefined) views.push("members");
    if (this.model.levels.length > 0) views.push("distributions", "levels");
    return views;
  }

  private levelAt(k: number): Level | undefined {
    return this.model.levels.find((level) => level.k === k);
  }

  private show(): void {
    const level = this.levelAt(this.state.k);
    if (this.shown?.level !== level)
      this.shown = level ? new Shown(this.model, level) : undefined;
    if (this.chosen() === undefined) this.state.community = undefined;
    history.replaceState(null, "", toHash(this.state));
    this.controls.show(this.state.k);
    this.showTabs();
    this.treeBox.draw(this.shown, this.chosen());
    this.showPicture(false);
    this.showPanel();
  }

  private showPanel(): void {
    const node = this.state.node === undefined ? -1 : this.model.names.indexOf(this.state.node);
    const place = this.chosen();
    if (node >= 0) this.panel.showNode(this.shown, node);
    else if (!this.shown) this.panel.showNothing();
    else if (place !== undefined) this.panel.showCommunity(this.shown, place);
    else this.panel.showAll(this.shown);
  }

  private showTabs(): void {
    const views = this.possible();
    byId("tabs").replaceChildren(
      ...views.map((view) =>
        el(
          "button",
          {
            type: "button",
            role: "tab",
            id: `tab-${view}`,
            "aria-controls": "view",
            "aria-selected": String(view === this.state.view),
            onclick: () => {
              this.chooseView(view);
              byId(`tab-${view}`).focus();
            },
          },
          titles[view],
        ),
      ),
    );
    byId("view").setAttribute("aria-labelledby", `tab-${this.state.view}`);
  }

  private showPicture(fit: boolean): void {
    const { view } = this.state;
    const isScene = view !== "distributions" && view !== "levels";
    byId("stage").hidden = !isScene;
    byId("picture-tools").hidden = !isScene;
    byId("distributions").hidden = view !== "distributions";
    byId("levels").hidden = view !== "levels";
    byId("legend").textContent = this.legend();
    if (view === "distributions") showDistributions(byId("distributions"), this.shown!.level);
    if (view === "levels")
      byId("levels").replaceChildren(levelsTable(this.model, this.state.k, this.panelActions()));
    if (!isScene) return;
    const of = view === "members" ? `members ${this.state.k} ${this.state.community}` : view;
    const keep = !fit && this.scene?.of === of;
    const scene = this.sceneOf(view);
    this.scene = { of, scene };
    this.stage.show(scene, keep);
    byId("stage").setAttribute(
      "aria-label",
      `${titles[view]}: ${figure.format(scene.dots.length)} nodes drawn; the details beside it hold the same as tables. Arrow keys move, plus and minus zoom.`,
    );
  }

  private panelActions() {
    return {
      chooseCommunity: (place: number | undefined) => this.chooseCommunity(place),
      chooseNode: (node: number | undefined) => this.chooseNode(node),
      chooseK: (k: number) => this.chooseK(k),
    };
  }

  private sceneOf(view: View): Scene {
    const place = this.chosen();
    if (!this.shown) return networkScene(Shown.ofNothing(this.model));
    if (view === "network") return networkScene(this.shown, place);
    if (view === "members" && place !== undefined && this.canDraw(place))
      return membersScene(this.shown, place);
    return view === "members" ? { dots: [], lines: [], inUnits: false } : communitiesScene(this.shown);
  }

  private canDraw(place: number): boolean {
    return this.model.sizes[place]! <= mostMembers;
  }

  private legend(): string {
    const { view } = this.state;
    const place = this.chosen();
    if (view === "communities") {
      const { level } = this.shown!;
      const left = level.ranked.length - level.circles.x.length;
      const rest = left > 0 ? ` The ${figure.format(level.circles.x.length)} largest are drawn; the table has all.` : "";
      return `Each disc is a community, named after its best linked member that is in no other; lines join those that share nodes.${rest} Click one to see inside.`;
    }
    if (view === "members" && place !== undefined && !this.canDraw(place))
      return `This community has too many nodes to be drawn. A greater k takes it apart.`;
    if (view === "network" || view === "members")
      return "Colours are communities. A node in several of them is a larger pie with a slice for each: that is where communities overlap.";
    return "";
  }

  private clicked(dot: Dot | undefined): void {
    if (dot?.place !== undefined) this.chooseCommunity(dot.place);
    else this.chooseNode(dot?.node);
  }

  private picture(): string {
    return sceneInSvg(this.stage.current());
  }

  private fileName(what: string = this.state.view): string {
    const name = this.model.facts.title.replace(/[^\p{L}\p{N}._-]+/gu, "_").slice(0, 60);
    return `${name}-${what}${this.state.k > 0 ? `-k${this.state.k}` : ""}`;
  }

  private print(treeSvg: string): void {
    const add = (id: string, svg: string) =>
      byId(id).append(
        el("img", {
          class: "print-only",
          alt: "",
          src: `data:image/svg+xml;charset=utf-8,${encodeURIComponent(svg)}`,
        }),
      );
    add("tree-box", treeSvg);
    if (!byId("stage").hidden) add("view", this.picture());
  }
}
