import { createNodePiechartProgram } from "@sigma/node-piechart";
import Graph from "graphology";
import Sigma from "sigma";
import { themed } from "./colours";
import { restColour, type Dot, type Scene, slices } from "./scene";

type Programs = Record<string, NonNullable<ReturnType<typeof createNodePiechartProgram>>>;

/** Of this many equal slices; the last of more than `slices` stands for the rest. Programs of a
    graphics card take few values for each node, so that there is one for each number of slices. */
function pieProgram(count: number): Programs[string] {
  const all = Array.from({ length: count }, (_, i) => ({
    color: i < slices ? { attribute: `c${i}` } : { value: restColour },
    value: i < slices ? { value: 1 } : { attribute: "rest" },
  }));
  return createNodePiechartProgram({ defaultColor: restColour, slices: all as never });
}

const slicesOf = (colours: string[]) => Math.min(colours.length, slices + 1);
const typeOf = (colours: string[]) => (colours.length < 2 ? "circle" : `pie${slicesOf(colours)}`);

/** The colours of a pie, as its program takes them. */
function pieOf(colours: string[]): Record<string, string | number> {
  const pie: Record<string, string | number> = { rest: colours.length - slices };
  if (colours.length > 1)
    for (let i = 0; i < Math.min(colours.length, slices); ++i) pie[`c${i}`] = colours[i]!;
  return pie;
}

/** Shows a scene, which can be moved, zoomed and clicked. */
export class Stage {
  private sigma: Sigma | undefined;
  private scene: Scene = { dots: [], lines: [], inUnits: false };
  private programs: Programs = {};

  constructor(
    private readonly container: HTMLElement,
    private readonly onClick: (dot: Dot | undefined) => void,
  ) {
    container.addEventListener("keydown", (event) => this.key(event));
  }

  show(scene: Scene, keepCamera: boolean): void {
    const camera = keepCamera && this.sigma ? this.sigma.getCamera().getState() : undefined;
    this.scene = scene;
    const graph = this.graphOf(scene);
    const fits = this.sigma?.getSetting("itemSizesReference") === reference(scene);
    if (!this.addPrograms(scene) && this.sigma && fits) {
      this.sigma.setGraph(graph);
      this.restyle();
    } else {
      this.sigma?.kill();
      this.sigma = this.begin(graph, scene);
    }
    if (camera) this.sigma.getCamera().setState(camera);
    else this.sigma.getCamera().setState({ x: 0.5, y: 0.5, ratio: 1, angle: 0 });
  }

  current(): Scene {
    return this.scene;
  }

  /** Where a dot stands on the screen, in pixels from the corner of the container. */
  placeOnScreen(position: number): { x: number; y: number } {
    const dot = this.scene.dots[position]!;
    return this.sigma!.graphToViewport({ x: dot.x, y: dot.y });
  }

  restyle(): void {
    this.sigma?.setSetting("labelColor", { color: themed("text") });
  }

  /** Makes those that the scene needs; true if some were missing. */
  private addPrograms(scene: Scene): boolean {
    const before = Object.keys(this.programs).length;
    for (const { colours } of scene.dots)
      if (colours.length > 1) this.programs[typeOf(colours)] ??= pieProgram(slicesOf(colours));
    return Object.keys(this.programs).length > before;
  }

  private graphOf(scene: Scene): Graph {
    const graph = new Graph({ type: "directed", multi: true });
    const faded = themed("faded");
    scene.dots.forEach((dot, i) =>
      graph.addNode(i, {
        x: dot.x,
        y: dot.y,
        size: dot.radius,
        label: dot.label,
        forceLabel: dot.important === true && scene.dots.length <= 250,
        type: dot.faded ? "circle" : typeOf(dot.colours),
        color: dot.faded ? faded : dot.colours[0],
        zIndex: dot.ground ? 0 : dot.colours.length > 1 ? 2 : 1,
        ...pieOf(dot.colours),
      }),
    );
    for (const line of scene.lines)
      graph.addEdge(line.from, line.to, {
        size: line.width,
        color: line.colour,
        type: line.arrow ? "arrow" : "line",
      });
    return graph;
  }

  private begin(graph: Graph, scene: Scene): Sigma {
    const sigma = new Sigma(graph, this.container, {
      nodeProgramClasses: { ...this.programs },
      itemSizesReference: reference(scene),
      zoomToSizeRatioFunction: scene.inUnits ? (ratio) => ratio : Math.sqrt,
      labelColor: { color: themed("text") },
      labelFont: "system-ui, sans-serif",
      minEdgeThickness: 1.4,
      defaultDrawNodeLabel: scene.inUnits ? drawInside : drawBeside,
      labelSize: 13,
      labelRenderedSizeThreshold: scene.inUnits ? 17 : 4,
      labelDensity: scene.inUnits ? 3 : 0.6,
      labelGridCellSize: 90,
      hideEdgesOnMove: scene.lines.length > 20000,
      minCameraRatio: 0.005,
      maxCameraRatio: 4,
      stagePadding: 30,
      zIndex: true,
      allowInvalidContainer: true,
      defaultDrawNodeHover: drawHover,
    });
    const dotOf = (node: string) => this.scene.dots[Number(node)];
    sigma.on("clickNode", ({ node }) => {
      const dot = dotOf(node);
      this.onClick(dot?.ground ? undefined : dot);
    });
    sigma.on("clickStage", () => this.onClick(undefined));
    sigma.on("enterNode", () => (this.container.style.cursor = "pointer"));
    sigma.on("leaveNode", () => (this.container.style.cursor = ""));
    return sigma;
  }

  private key(event: KeyboardEvent): void {
    const camera = this.sigma?.getCamera();
    if (!camera || event.ctrlKey || event.metaKey || event.altKey) return;
    const { x, y, ratio } = camera.getState();
    const step = 0.1 * ratio;
    const moves: Record<string, object> = {
      ArrowLeft: { x: x - step },
      ArrowRight: { x: x + step },
      ArrowUp: { y: y + step },
      ArrowDown: { y: y - step },
      "+": { ratio: ratio / 1.3 },
      "=": { ratio: ratio / 1.3 },
      "-": { ratio: ratio * 1.3 },
      "0": { x: 0.5, y: 0.5, ratio: 1 },
    };
    const move = moves[event.key];
    if (!move) return;
    event.preventDefault();
    camera.setState(move);
  }
}

function reference(scene: Scene): "positions" | "screen" {
  return scene.inUnits ? "positions" : "screen";
}

interface Drawn {
  x: number;
  y: number;
  size: number;
  label?: string | null;
}

function drawText(context: CanvasRenderingContext2D, text: string, x: number, y: number): void {
  context.font = "13px system-ui, sans-serif";
  context.lineJoin = "round";
  context.lineWidth = 3;
  context.strokeStyle = themed("card");
  context.strokeText(text, x, y);
  context.fillStyle = themed("text");
  context.fillText(text, x, y);
}

function drawBeside(context: CanvasRenderingContext2D, data: Drawn): void {
  if (data.label) drawText(context, data.label, data.x + data.size + 3, data.y + 4);
}

function drawInside(context: CanvasRenderingContext2D, data: Drawn): void {
  if (!data.label) return;
  context.font = "13px system-ui, sans-serif";
  const { width } = context.measureText(data.label);
  if (width < 2.5 * data.size) drawText(context, data.label, data.x - width / 2, data.y + 4);
}

/** A plate with the name beside the dot, in the colours of the page. */
function drawHover(
  context: CanvasRenderingContext2D,
  data: Drawn,
): void {
  const radius = data.size + 3;
  context.strokeStyle = themed("text");
  context.lineWidth = 2;
  context.beginPath();
  context.arc(data.x, data.y, radius, 0, 2 * Math.PI);
  context.stroke();
  if (!data.label) return;
  context.font = "600 13px system-ui, sans-serif";
  const width = context.measureText(data.label).width + 14;
  context.fillStyle = themed("card");
  context.fillRect(data.x + radius + 3, data.y - 12, width, 24);
  context.lineWidth = 1;
  context.strokeStyle = themed("line");
  context.strokeRect(data.x + radius + 3, data.y - 12, width, 24);
  context.fillStyle = themed("text");
  context.fillText(data.label, data.x + radius + 10, data.y + 5);
}
