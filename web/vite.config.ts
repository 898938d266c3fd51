import { readdirSync, readFileSync } from "node:fs";
import { defineConfig, type Plugin } from "vite";
import { viteSingleFile } from "vite-plugin-singlefile";

interface Lock {
  packages: Record<string, { version?: string; license?: string; dev?: boolean }>;
}

/** The licences of all that goes into the page, by the lock file: no list to be kept by hand. */
function licences(): Plugin {
  const allowed = ["MIT", "ISC", "BSD-2-Clause", "BSD-3-Clause"];
  const name = "virtual:licences";
  return {
    name: "licences",
    resolveId: (id) => (id === name ? `\0${name}` : undefined),
    load(id) {
      if (id !== `\0${name}`) return undefined;
      const lock = JSON.parse(readFileSync("package-lock.json", "utf8")) as Lock;
      const texts = Object.entries(lock.packages)
        .filter(([path, { dev }]) => path !== "" && !dev && !path.includes("/@types/"))
        .filter(([path]) => !/graphology-types|\/@yomguithereal/.test(path))
        .map(([path, { version, license }]) => {
          if (!allowed.includes(license ?? "")) throw new Error(`${path} has the licence ${license}`);
          const file = readdirSync(path).find((entry) => /^licen[cs]e/i.test(entry));
          const text = file ? readFileSync(`${path}/${file}`, "utf8").trim() : `${license} licence`;
          return `${path.replace(/^.*node_modules\//, "")} ${version}\n\n${text}`;
        });
      return `export default ${JSON.stringify(texts.join("\n\n\n"))};`;
    },
  };
}

export default defineConfig({
  plugins: [licences(), viteSingleFile({ removeViteModuleLoader: true })],
  build: { target: "es2022", outDir: "dist", chunkSizeWarningLimit: 1000 },
});
