import "uplot/dist/uPlot.min.css";
import "./style.css";
import licences from "virtual:licences";
import { App } from "./app";
import { inflate } from "./block";
import { byId } from "./dom";
import { Model } from "./model";

async function start(): Promise<void> {
  const data = byId("data");
  const model = Model.read(await inflate(data.textContent!));
  data.remove(); // its text is as large as all the rest
  byId("licences").textContent = licences;
  const app = new App(model);
  app.begin();
  (window as { vorlane?: object }).vorlane = { model, app, ready: performance.now() };
}

start().catch((failure: unknown) => {
  const sorry = byId("sorry");
  if (sorry.textContent !== "") return; // the browser is too old, and knows
  sorry.classList.add("told");
  sorry.textContent = `This page can't be shown: ${failure instanceof Error ? failure.message : failure}`;
  console.error(failure);
});
