/** What is shown: kept in the part of the address behind "#", so that a link leads to it. */

export const views = ["communities", "network", "members", "distributions", "levels"] as const;
export type View = (typeof views)[number];

export interface State {
  k: number; // 0 if there are no levels
  view: View;
  community?: number; // its number at k
  node?: string;
}

export function fromHash(hash: string): Partial<State> {
  const words = new URLSearchParams(hash.replace(/^#/, ""));
  const state: Partial<State> = {};
  const number = (name: string) => {
    const word = words.get(name);
    return word !== null && /^\d+$/.test(word) ? Number(word) : undefined;
  };
  const k = number("k");
  if (k !== undefined) state.k = k;
  const view = views.find((v) => v === words.get("view"));
  if (view) state.view = view;
  const community = number("community");
  if (community !== undefined) state.community = community;
  const node = words.get("node");
  if (node !== null) state.node = node;
  return state;
}

export function toHash(state: State): string {
  const words = new URLSearchParams();
  if (state.k > 0) words.set("k", String(state.k));
  words.set("view", state.view);
  if (state.community !== undefined) words.set("community", String(state.community));
  if (state.node !== undefined) words.set("node", state.node);
  return `#${words}`;
}
