import { byId, counted } from "./dom";
import type { Model } from "./model";
import type { Actions } from "./panel";
import type { Shown } from "./scenes";
import type { Tree } from "./tree";

/** The tree on the screen: drawn, pointed at, clicked. */
export class TreeBox {
  private readonly box = byId("tree-box");
  private readonly canvas = byId<HTMLCanvasElement>("tree-canvas");
  private readonly tip = byId("tip");

  constructor(
    private readonly tree: Tree,
    private readonly model: Model,
    private readonly actions: Actions,
  ) {
    byId("tree-legend").textContent = tree.legend();
    this.canvas.addEventListener("click", (event) => this.click(event));
    this.canvas.addEventListener("pointermove", (event) => this.point(event));
    this.canvas.addEventListener("pointerleave", () => (this.tip.hidden = true));
  }

  draw(shown: Shown | undefined, selected: number | undefined): void {
    if (this.box.clientWidth === 0) return;
    this.tree.layOut(this.box.clientWidth, this.box.clientHeight);
    this.tree.draw(this.canvas, shown, selected);
    this.canvas.setAttribute(
      "aria-label",
      `Tree of ${counted(this.model.sizes.length, "community", "communities")} at ` +
        `${counted(this.model.levels.length, "k", "different k")}; the table "Every k" and the details of each community hold the same.`,
    );
  }

  inSvg(draw: (tree: Tree, width: number, height: number) => string): string {
    const [width, height] = [900, 600];
    this.tree.layOut(width, height);
    const svg = draw(this.tree, width, height);
    this.tree.layOut(this.box.clientWidth, this.box.clientHeight);
    return svg;
  }

  private click(event: MouseEvent): void {
    const at = this.tree.levelAt(event.offsetY);
    if (at !== undefined)
      this.actions.chooseK(this.model.levels[at]!.k, this.tree.placeAt(event.offsetX, event.offsetY));
  }

  private point(event: PointerEvent): void {
    const { offsetX: x, offsetY: y } = event;
    const place = this.tree.placeAt(x, y);
    const at = this.tree.levelAt(y);
    this.tip.hidden = at === undefined;
    if (at === undefined) return;
    const level = this.model.levels[at]!;
    this.tip.textContent =
      place === undefined
        ? `k = ${level.k}: ${counted(level.end - level.first, "community", "communities")}`
        : `k = ${level.k}, community ${place - level.first}: ${counted(this.model.sizes[place]!, "node")}`;
    const right = x > this.box.clientWidth / 2;
    this.tip.style.left = right ? "" : `${x + 14}px`;
    this.tip.style.right = right ? `${this.box.clientWidth - x + 10}px` : "";
    this.tip.style.top = `${Math.max(0, y - 34)}px`;
  }
}
