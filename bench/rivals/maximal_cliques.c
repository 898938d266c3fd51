/* Counts the maximal cliques of three nodes or more with igraph's C library. Writes no cliques.
 *
 *   maximal_cliques edgelist|ncol FILE
 *
 * FILE holds two columns and no comments. "edgelist" is igraph's reader for names that are whole
 * numbers, "ncol" the one for any names (which are not kept here, to spare igraph the work). */
#include <igraph.h>
#include <stdio.h>
#include <string.h>

static igraph_error_t Read(igraph_t* graph, const char* format, FILE* file) {
  if (strcmp(format, "edgelist") == 0) {
    return igraph_read_graph_edgelist(graph, file, 0, IGRAPH_UNDIRECTED);
  }
  return igraph_read_graph_ncol(graph, file, NULL, 0, IGRAPH_ADD_WEIGHTS_NO, IGRAPH_UNDIRECTED);
}

int main(int argc, char** argv) {
  FILE* file = argc == 3 ? fopen(argv[2], "r") : NULL;
  if (!file) {
    fprintf(stderr, "usage: %s edgelist|ncol FILE (a readable file)\n", argv[0]);
    return 2;
  }
  igraph_t graph;
  igraph_integer_t cliques;
  if (Read(&graph, argv[1], file) || igraph_simplify(&graph, 1, 1, NULL) ||
      igraph_maximal_cliques_count(&graph, &cliques, 3, 0)) {
    return 1;
  }
  printf("%lld nodes, %lld links, %lld maximal cliques\n", (long long)igraph_vcount(&graph),
         (long long)igraph_ecount(&graph), (long long)cliques);
  igraph_destroy(&graph);
  fclose(file);
  return 0;
}
