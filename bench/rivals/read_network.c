/* Reads a network with igraph's C library, and does nothing with it: read_network FORMAT FILE.
 * FORMAT is links (names and weights), graphml or pajek. */
#include <igraph.h>
#include <stdio.h>
#include <string.h>

static igraph_error_t Read(igraph_t* graph, const char* format, FILE* file) {
  if (strcmp(format, "graphml") == 0) return igraph_read_graph_graphml(graph, file, 0);
  if (strcmp(format, "pajek") == 0) return igraph_read_graph_pajek(graph, file);
  return igraph_read_graph_ncol(graph, file, NULL, 1, IGRAPH_ADD_WEIGHTS_YES, IGRAPH_UNDIRECTED);
}

int main(int argc, char** argv) {
  FILE* file = argc == 3 ? fopen(argv[2], "r") : NULL;
  if (!file) {
    fprintf(stderr, "usage: %s links|graphml|pajek FILE (a readable file)\n", argv[0]);
    return 2;
  }
  igraph_t graph;
  igraph_set_attribute_table(&igraph_cattribute_table);
  if (Read(&graph, argv[1], file)) return 1;
  printf("%lld links\n", (long long)igraph_ecount(&graph));
  igraph_destroy(&graph);
  fclose(file);
  return 0;
}
