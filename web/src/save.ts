import { themed } from "./colours";
import { restColour, type Scene, slices } from "./scene";
import type { Shown } from "./scenes";
import type { Tree } from "./tree";

const escaped = (text: string) =>
  text.replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`).replace(/[\u0000-\u0008\u000b\u000c\u000e-\u001f\ufffe\uffff]/g, "\ufffd");
const short = (value: number) => String(Math.round(value * 100) / 100);

function begin(width: number, height: number): string[] {
  return [
    `<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}" ` +
      `viewBox="0 0 ${width} ${height}" font-family="system-ui, sans-serif" font-size="13">`,
    `<rect width="100%" height="100%" fill="${themed("card")}"/>`,
  ];
}

/** A scene as a picture of vectors, whole, whatever part of it the screen shows. */
export function sceneInSvg(scene: Scene, size = 1000): string {
  const low = { x: Infinity, y: Infinity };
  const high = { x: -Infinity, y: -Infinity };
  for (const dot of scene.dots) {
    const room = scene.inUnits ? dot.radius : 0;
    low.x = Math.min(low.x, dot.x - room);
    low.y = Math.min(low.y, dot.y - room);
    high.x = Math.max(high.x, dot.x + room);
    high.y = Math.max(high.y, dot.y + room);
  }
  const margin = 40;
  const scale = (size - 2 * margin) / Math.max(high.x - low.x, high.y - low.y, 1e-9);
  const x = (value: number) => margin + (value - low.x) * scale;
  const y = (value: number) => margin + (high.y - value) * scale; // upwards, as on the screen
  const width = Math.ceil(2 * margin + (high.x - low.x) * scale) || 2 * margin;
  const height = Math.ceil(2 * margin + (high.y - low.y) * scale) || 2 * margin;
  const parts = begin(Math.max(width, 200), Math.max(height, 200));
  for (const dot of scene.dots)
    if (dot.ground)
      parts.push(
        `<circle cx="${short(x(dot.x))}" cy="${short(y(dot.y))}" r="${short(dot.radius * scale)}" fill="${dot.colours[0]}"/>`,
      );
  for (const { from, to, width: thick, colour } of scene.lines) {
    const a = scene.dots[from]!;
    const b = scene.dots[to]!;
    parts.push(
      `<path d="M${short(x(a.x))} ${short(y(a.y))}L${short(x(b.x))} ${short(y(b.y))}" ` +
        `stroke="${colour}" stroke-width="${short(scene.inUnits ? Math.max(1, thick * scale) : thick)}"/>`,
    );
  }
  const text = themed("text");
  const halo = themed("card");
  const labels: string[] = [];
  scene.dots.forEach((dot) => {
    if (dot.ground) return;
    const radius = scene.inUnits ? dot.radius * scale : dot.radius;
    const at = `${short(x(dot.x))} ${short(y(dot.y))}`;
    parts.push(`<g transform="translate(${at})">${pie(dot.colours, radius)}</g>`);
    const hasRoom = scene.inUnits ? radius > 14 && dot.label !== "" : scene.dots.length <= 120;
    if (hasRoom)
      labels.push(
        `<text transform="translate(${at})" x="${scene.inUnits ? 0 : short(radius + 4)}" y="4" ` +
          `text-anchor="${scene.inUnits ? "middle" : "start"}" fill="${text}" stroke="${halo}" ` +
          `stroke-width="3" paint-order="stroke">${escaped(dot.label)}</text>`,
      );
  });
  return [...parts, ...labels, "</svg>"].join("\n");
}

function pie(colours: string[], radius: number): string {
  const shown = colours.length > slices ? [...colours.slice(0, slices), restColour] : colours;
  const r = short(radius);
  if (shown.length === 1) return `<circle r="${r}" fill="${shown[0]}" stroke="#0006" stroke-width=".5"/>`;
  const corner = (i: number) => {
    const turn = (2 * Math.PI * i) / shown.length;
    return `${short(radius * Math.sin(turn))} ${short(-radius * Math.cos(turn))}`;
  };
  return (
    shown
      .map((colour, i) => `<path d="M0 0L${corner(i)}A${r} ${r} 0 0 1 ${corner(i + 1)}Z" fill="${colour}"/>`)
      .join("") + `<circle r="${r}" fill="none" stroke="#000" stroke-width="1"/>`
  );
}

export function treeInSvg(tree: Tree, shown: Shown | undefined, width: number, height: number): string {
  const parts = begin(width, height);
  for (const tick of tree.ticks(shown))
    parts.push(
      `<text x="50" y="${short(tick.y + 4)}" text-anchor="end" fill="${themed("text")}"` +
        `${tick.isShown ? ' font-weight="700"' : ""}>${tick.isShown ? "k = " : ""}${tick.k}</text>`,
    );
  tree.forEachRect(shown, (rect, colour) =>
    parts.push(
      `<rect x="${short(rect.x)}" y="${short(rect.y)}" width="${short(rect.width)}" ` +
        `height="${short(rect.height - 0.8)}" fill="${colour}"/>`,
    ),
  );
  return [...parts, "</svg>"].join("\n");
}

function download(name: string, content: Blob): void {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(content);
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}

export function saveSvg(name: string, svg: string): void {
  download(`${name}.svg`, new Blob([svg], { type: "image/svg+xml" }));
}

/** At twice its size, for slides and print. */
export async function savePng(name: string, svg: string): Promise<void> {
  const image = new Image();
  image.src = `data:image/svg+xml;charset=utf-8,${encodeURIComponent(svg)}`;
  await image.decode();
  const canvas = document.createElement("canvas");
  canvas.width = 2 * image.naturalWidth;
  canvas.height = 2 * image.naturalHeight;
  canvas.getContext("2d")!.drawImage(image, 0, 0, canvas.width, canvas.height);
  canvas.toBlob((blob) => blob && download(`${name}.png`, blob), "image/png");
}
