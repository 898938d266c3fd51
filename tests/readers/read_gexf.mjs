// node read_gexf.mjs FILE...: what graphology finds in GEXF files, as lines of JSON.
import { readFileSync } from 'node:fs';
import Graph from 'graphology';
import { parse } from 'graphology-gexf';

for (const file of process.argv.slice(2)) {
  const graph = parse(Graph, readFileSync(file, 'utf8'));
  const nodes = graph.mapNodes((_, attributes) => attributes);
  const edges = graph.mapEdges((edge, attributes, source, target) => [
    graph.getNodeAttribute(source, 'label'),
    graph.getNodeAttribute(target, 'label'),
    attributes.weight ?? 1,
    graph.isDirected(edge),
  ]);
  console.log(JSON.stringify({ nodes, edges }));
}
