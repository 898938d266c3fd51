/** What a picture of nodes and lines consists of, whoever draws it: the screen, SVG or print. */

export interface Dot {
  x: number;
  y: number;
  radius: number; // in the units of places; with `sized` 0, in pixels
  colours: string[]; // several are slices of a pie
  label: string;
  important?: boolean; // its label is always shown
  faded?: boolean;
  node?: number;
  place?: number;
  ground?: boolean; // drawn beneath all others, and never chosen
}

export interface Line {
  from: number; // positions among the dots
  to: number;
  width: number; // as a radius
  colour: string;
  arrow?: boolean;
}

export interface Scene {
  dots: Dot[];
  lines: Line[];
  inUnits: boolean; // radii are in the units of places
}

/** Slices that a pie can have; what is more is one grey slice. */
export const slices = 8;

export const restColour = "#8a8a8a";
