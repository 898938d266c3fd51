# Rscript read_graphml.R FILE: what igraph finds in a GraphML file, as tab-separated lines.
suppressPackageStartupMessages(library(igraph))
graph <- read_graph(commandArgs(trailingOnly = TRUE)[1], format = "graphml")
cat("directed", is_directed(graph), "\n", sep = "\t")
for (name in grep("^communities_k", vertex_attr_names(graph), value = TRUE)) {
  of <- vertex_attr(graph, name)
  for (i in which(of != "")) cat(V(graph)$name[i], name, of[i], "\n", sep = "\t")
}
