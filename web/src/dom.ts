/** Makes elements. Texts become text nodes, so that no name is ever read as markup. */

type Child = Node | string | number | false | undefined;
type Attributes = Record<string, string | number | boolean | EventListener | undefined>;

export function el<Name extends keyof HTMLElementTagNameMap>(
  name: Name,
  attributes: Attributes = {},
  ...children: Child[]
): HTMLElementTagNameMap[Name] {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) {
    if (typeof value === "function") element.addEventListener(key.slice(2), value);
    else if (value !== undefined && value !== false)
      element.setAttribute(key, value === true ? "" : String(value));
  }
  for (const child of children)
    if (child !== false && child !== undefined)
      element.append(child instanceof Node ? child : String(child));
  return element;
}

export function byId<T extends HTMLElement = HTMLElement>(id: string): T {
  return document.getElementById(id) as T;
}

export const figure = new Intl.NumberFormat("en-US");

export function counted(count: number, one: string, many = `${one}s`): string {
  return `${figure.format(count)} ${count === 1 ? one : many}`;
}

export function percent(part: number, whole: number): string {
  return whole === 0 ? "0 %" : `${Math.round((100 * part) / whole)} %`;
}

/** A name that may be very long, as it fits into a line. */
export function short(name: string, most = 40): string {
  const letters = [...name];
  return letters.length <= most ? name : `${letters.slice(0, most - 1).join("")}…`;
}
