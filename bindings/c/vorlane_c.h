#ifndef VORLANE_C_H
#define VORLANE_C_H

/* Vorlane for C, and for whatever can call C: overlapping communities in networks by clique
   percolation, in memory.

     vorlane_network* network;
     vorlane_results* results;
     vorlane_level level;
     if (vorlane_network_read("links.txt", NULL, NULL, &network) ||
         vorlane_find(network, NULL, NULL, &results) || vorlane_results_level(results, 4, &level))
       puts(vorlane_last_failure(NULL));

   What holds for all of it:
   - Networks, results and controls are made by a call that hands out a pointer and given back by
     the one that ends in _free, which takes NULL too. A network may be given back while results of
     it are in use.
   - A call that can fail returns a vorlane_code, 0 if all went well; what it would have handed out
     is untouched otherwise. vorlane_last_failure() tells more.
   - Arrays that are handed out belong to the network or the results asked, never change, and live
     until these are given back. An array of a length of 0 may be NULL.
   - Nodes are numbered from 1, communities, cliques and rows from 0.
   - Texts are UTF-8 and end with a zero, unless a length stands beside them. Paths are as the
     system has them.
   - Networks and results may be used by any number of threads at a time, and given back by any. No
     call starts a thread, prints, or changes the process. */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Grows when a program that was compiled against an older header can no longer go on. */
#define VORLANE_ABI_VERSION 1

#if defined(_WIN32)
#define VORLANE_C_API
#else
#define VORLANE_C_API __attribute__((visibility("default")))
#endif

/* VORLANE_ABI_VERSION of the library that was loaded; compare it before anything else. */
VORLANE_C_API uint32_t vorlane_abi_version(void);
/* "1.0.0" */
VORLANE_C_API const char* vorlane_version(void);

/* ---- Failures ---- */

typedef enum vorlane_code {
  VORLANE_OK = 0,
  VORLANE_PARAMETERS = 1, /* options that don't go together, arguments out of their range */
  VORLANE_INPUT = 2,      /* a file or an array of links that can't be read */
  VORLANE_OUTPUT = 3,     /* results that can't be written */
  VORLANE_MEMORY = 4,     /* it ran out */
  VORLANE_STOPPED = 5,    /* vorlane_control_stop() was called */
  VORLANE_OTHER = 6
} vorlane_code;

typedef struct vorlane_failure {
  vorlane_code code;
  const char* text;   /* for people: sentences that tell the place and the cure */
  const char* source; /* the file that it is about; empty if it is about none */
  size_t line;        /* counted from 1; 0 if it isn't known */
  size_t column;
} vorlane_failure;

/* The text of the last failure in this thread; writes the whole of it to `failure` unless that is
   NULL. The texts live until the thread's next call fails. */
VORLANE_C_API const char* vorlane_last_failure(vorlane_failure* failure);

/* ---- Control: stopping and watching from another thread ---- */

typedef struct vorlane_control vorlane_control;

typedef struct vorlane_progress {
  uint64_t cliques_found;
  uint64_t nodes_left;      /* of the search for cliques */
  uint64_t k_cliques_found; /* of the intensity method, at the k at hand */
  uint64_t work_done;       /* of the stage at hand, in units of its own */
  uint64_t work_total;      /* 0: the stage doesn't tell */
} vorlane_progress;

/* One control serves one call at a time; where a call takes one, it may be NULL. */
VORLANE_C_API vorlane_code vorlane_control_new(vorlane_control** control);
VORLANE_C_API void vorlane_control_free(vorlane_control* control);
/* Ends the call that the control was handed to within some hundredths of a second, by
   VORLANE_STOPPED, and those after it until the reset. From any thread or signal handler. */
VORLANE_C_API void vorlane_control_stop(vorlane_control* control);
VORLANE_C_API void vorlane_control_reset(vorlane_control* control);
VORLANE_C_API void vorlane_control_progress(const vorlane_control* control,
                                            vorlane_progress* progress);
/* What is going on, in words: up to `size` bytes with the zero, cut if there are more. Returns how
   many bytes it takes, as snprintf() does. */
VORLANE_C_API size_t vorlane_control_report(const vorlane_control* control, char* text,
                                            size_t size);

/* ---- Networks ---- */

typedef struct vorlane_network vorlane_network;

/* `size` rows in two arrays: row i is values[starts[i]] up to values[starts[i + 1]]. */
typedef struct vorlane_rows {
  size_t size;
  const size_t* starts; /* size + 1 places */
  const uint32_t* values;
} vorlane_rows;

/* How links are taken. All zero but for thresholds that are not a number is the default. */
typedef struct vorlane_link_options {
  int directed;
  int weighted;        /* set by either threshold */
  double min_weight;   /* a link at or below it is left out; NaN: none is */
  double max_weight;   /* a link at or above it is left out; NaN: none is */
  const char* format;  /* of a file: "links", "csv", ...; NULL: told by its name */
  const char* columns; /* of csv, tsv: "FROM,TO" or "FROM,TO,WEIGHT", by name or number; or NULL */
} vorlane_link_options;

/* From a file in any format that the program reads; "-" is standard input. */
VORLANE_C_API vorlane_code vorlane_network_read(const char* path,
                                                const vorlane_link_options* options,
                                                vorlane_control* control,
                                                vorlane_network** network);

/* Links between numbers from 1 to node_count. Node i is called by the i-th name, or the decimals of
   numbers[i - 1], or its own decimals: nodes and communities come in the same order as if the
   links had been read from a file with these names. Names may be equal. */
typedef struct vorlane_links {
  uint32_t node_count;
  size_t link_count;
  const uint32_t* from;
  const uint32_t* to;
  const double* weights;     /* NULL without */
  const int64_t* numbers;    /* node_count of them, or NULL */
  const char* names;         /* one behind the other, or NULL */
  const size_t* name_starts; /* name i is names[name_starts[i - 1]] up to names[name_starts[i]] */
} vorlane_links;

/* The arrays are copied. A link of a node to itself is dropped. `weights` and options->weighted go
   together. */
VORLANE_C_API vorlane_code vorlane_network_from_links(const vorlane_links* links,
                                                      const vorlane_link_options* options,
                                                      vorlane_network** network);
VORLANE_C_API void vorlane_network_free(vorlane_network* network);

typedef struct vorlane_network_view {
  uint32_t size; /* nodes with links to others */
  size_t link_count;
  int directed;
  int weighted;
  vorlane_rows links;    /* by node from 0 to size: the second nodes of its links, ascending; in an
                            undirected network a link stands at its smaller node */
  const double* weights; /* in the order of links.values, or NULL */
  const uint32_t* given; /* by node from 0 to size: its number in vorlane_links, or NULL */
  size_t name_bytes;     /* of all names together */
  size_t warning_count;
} vorlane_network_view;

VORLANE_C_API void vorlane_network_look(const vorlane_network* network, vorlane_network_view* view);
/* What in the file can't have been meant as it stands, with the line and the cure: the sentence
   `warning` of warning_count, or NULL. */
VORLANE_C_API const char* vorlane_network_warning(const vorlane_network* network, size_t warning);
/* The names of all nodes: writes name_bytes bytes to `names` and size + 1 places to `starts`. */
VORLANE_C_API void vorlane_network_names(const vorlane_network* network, char* names,
                                         size_t* starts);
/* The links as they were given, in the order of names, those over a threshold left out: link i
   leads from from[i] to to[i]. In an undirected network, two in opposite directions are two. The
   same links with the same names make the same network. `weights` becomes NULL without. */
VORLANE_C_API vorlane_code vorlane_network_given_links(const vorlane_network* network,
                                                       const uint32_t** from, const uint32_t** to,
                                                       const double** weights, size_t* count);
/* The node of a name; 0 if there is none. */
VORLANE_C_API vorlane_code vorlane_network_find(const vorlane_network* network, const char* name,
                                                size_t length, uint32_t* node);

/* ---- Results ---- */

typedef struct vorlane_results vorlane_results;

typedef enum vorlane_method {
  VORLANE_UNDIRECTED = 0,
  VORLANE_DIRECTED = 1,
  VORLANE_INTENSITY = 2
} vorlane_method;

typedef struct vorlane_options {
  double intensity;  /* k-cliques need a geometric mean of weights above it; NaN: not asked for */
  double time_limit; /* seconds of processor time for a node's search; NaN: none */
  uint32_t k;        /* one k only, 3 or more; 0: all */
  const vorlane_rows* cliques; /* all cliques of the network, found before: no search is needed; or
                                  NULL */
  size_t exact_clique_count;
  const char* directory; /* where to write the files of the program as well, or NULL */
  const char* source;    /* what their first lines call the input; NULL: "memory" */
  int32_t jobs; /* cores to work with; 0: one; -1: all at hand. Each more takes about half the
                   memory of the first, fewer work where that is not left. Same results. */
} vorlane_options;

/* Finds all cliques and communities. Not with `cliques` and a `directory` at once. */
VORLANE_C_API vorlane_code vorlane_find(const vorlane_network* network,
                                        const vorlane_options* options, vorlane_control* control,
                                        vorlane_results** results);
/* Opens a results directory; its parts are read when they are asked for. */
VORLANE_C_API vorlane_code vorlane_results_open(const char* directory, vorlane_results** results);
VORLANE_C_API void vorlane_results_free(vorlane_results* results);

typedef struct vorlane_results_view {
  vorlane_method method;
  int finished;       /* 0 for the directory of a run that goes on, was stopped or failed */
  const uint32_t* ks; /* descending */
  size_t k_count;
} vorlane_results_view;

VORLANE_C_API void vorlane_results_look(const vorlane_results* results, vorlane_results_view* view);
/* A network of its own, to be given back. */
VORLANE_C_API vorlane_code vorlane_results_network(const vorlane_results* results,
                                                   vorlane_network** network);

/* By clique: its nodes, ascending. Those from exact_count on are approximate. With one k asked for,
   smaller cliques may not be among them. */
VORLANE_C_API vorlane_code vorlane_results_cliques(const vorlane_results* results,
                                                   vorlane_rows* members, size_t* exact_count);

typedef struct vorlane_level {
  uint32_t k;
  size_t exact_count;       /* communities behind hold an approximate clique */
  vorlane_rows members;     /* by community: its nodes, ascending */
  vorlane_rows cliques;     /* by community: its cliques; no rows with the intensity method */
  vorlane_rows k_cliques;   /* with the intensity method: by k-clique, its nodes */
  const uint32_t* overlaps; /* by pair of communities: first, second, how many nodes they share */
  size_t overlap_count;
} vorlane_level;

VORLANE_C_API vorlane_code vorlane_results_level(const vorlane_results* results, uint32_t k,
                                                 vorlane_level* level);

typedef enum vorlane_distribution {
  VORLANE_MEMBERSHIP = 0, /* communities of a node -> nodes */
  VORLANE_SIZE = 1,       /* nodes of a community -> communities */
  VORLANE_OVERLAP = 2,    /* nodes that two communities share -> pairs of communities */
  VORLANE_DEGREE = 3      /* communities that one overlaps with -> communities */
} vorlane_distribution;

/* Pairs of a value and how often it occurs, values ascending: 2 * count numbers. */
VORLANE_C_API vorlane_code vorlane_results_distribution(const vorlane_results* results, uint32_t k,
                                                        vorlane_distribution which,
                                                        const uint32_t** pairs, size_t* count);

typedef struct vorlane_summary {
  uint32_t k;
  size_t communities;
  size_t approximate;
  size_t largest; /* nodes */
  size_t second_largest;
  size_t covered;     /* nodes in at least one community */
  size_t overlapping; /* nodes in two or more */
  size_t overlaps;    /* pairs of communities that share nodes */
} vorlane_summary;

/* One for each k, descending. */
VORLANE_C_API vorlane_code vorlane_results_summary(const vorlane_results* results,
                                                   const vorlane_summary** levels, size_t* count);
/* The k to begin with (G. Palla et al., Nature 435, 2005) and a sentence that says why; 0 if there
   are no communities. The text belongs to the results. */
VORLANE_C_API vorlane_code vorlane_results_which_k(const vorlane_results* results, uint32_t* k,
                                                   const char** reason);

/* A community and the one at the next lower k that holds it. */
typedef struct vorlane_tree_node {
  uint32_t k;
  uint32_t community;
  int64_t parent; /* -1 if there is none */
} vorlane_tree_node;

/* All communities of all k, k ascending. */
VORLANE_C_API vorlane_code vorlane_results_tree(const vorlane_results* results,
                                                const vorlane_tree_node** nodes, size_t* count);

/* Writes what vorlane_find() has found as the files of the program; the directory must be missing
   or empty. `source` as in vorlane_options. */
VORLANE_C_API vorlane_code vorlane_results_write(const vorlane_results* results,
                                                 const char* directory, const char* source,
                                                 vorlane_control* control);
/* Writes a file of one of the formats of `vorlane export`, at one k, or at all for 0. A format of
   several files, or of a file for each k, puts their endings behind `path`. */
VORLANE_C_API vorlane_code vorlane_results_export(const vorlane_results* results,
                                                  const char* format, uint32_t k, const char* path,
                                                  int overwrite);

/* Writes one html page that needs nothing else: communities at every k as pictures and tables. `k`
   is shown first; 0: the recommended one. `title` may be NULL. */
VORLANE_C_API vorlane_code vorlane_results_report(const vorlane_results* results, const char* path,
                                                  const char* title, uint32_t k, int overwrite,
                                                  vorlane_control* control);

typedef enum vorlane_figure {
  VORLANE_TREE = 0,         /* the communities at all k, one inside another */
  VORLANE_GRAPH = 1,        /* the network at a k, or its communities if it has many nodes */
  VORLANE_DISTRIBUTIONS = 2 /* of a k: sizes, memberships, overlaps, degrees */
} vorlane_figure;

/* A picture as an SVG document, which lives until the same results are asked for another one. */
VORLANE_C_API vorlane_code vorlane_results_figure(const vorlane_results* results,
                                                  vorlane_figure which, uint32_t k,
                                                  vorlane_control* control, const char** svg);

/* ---- Parts ---- */

/* A run from a file to a results directory in parts that any number of processes do; all see the
   folder `work`. First the plan; then the search of each part, counted from 1, in any order and at
   the same time; then gather; then the levels of each part, in the same way; then finish. A step
   that is done is not done again. Counts may be NULL. */

/* Of `options`, cliques, directory and source aren't looked at, and a time limit is refused. */
VORLANE_C_API vorlane_code vorlane_parts_plan(const char* input, const vorlane_link_options* how,
                                              const vorlane_options* options, const char* out,
                                              const char* work, uint64_t parts,
                                              vorlane_control* control);
VORLANE_C_API vorlane_code vorlane_parts_search(const char* work, uint64_t part,
                                                vorlane_control* control, uint64_t* cliques);
VORLANE_C_API vorlane_code vorlane_parts_gather(const char* work, vorlane_control* control,
                                                uint64_t* cliques);
VORLANE_C_API vorlane_code vorlane_parts_levels(const char* work, uint64_t part,
                                                vorlane_control* control, uint64_t* levels);
VORLANE_C_API vorlane_code vorlane_parts_finish(const char* work, vorlane_control* control);

/* ---- Comparing ---- */

typedef struct vorlane_comparison vorlane_comparison;

typedef enum vorlane_fate {
  VORLANE_KEPT = 0,    /* the same nodes */
  VORLANE_GROWN = 1,   /* more nodes */
  VORLANE_SHRUNK = 2,  /* fewer nodes */
  VORLANE_CHANGED = 3, /* as many nodes, others */
  VORLANE_MERGED = 4,  /* most of it lies in one that another community has become */
  VORLANE_SPLIT = 5,   /* it is most of a part of one that has become another community */
  VORLANE_DIED = 6,
  VORLANE_BORN = 7
} vorlane_fate;

typedef struct vorlane_change {
  vorlane_fate fate;
  int64_t before; /* the community in the first cover, -1 if there is none */
  int64_t after;  /* in the second */
  double jaccard; /* nodes in both over nodes in either */
} vorlane_change;

/* Figures are 1 for equal covers and about 0 for unrelated ones. */
typedef struct vorlane_comparison_view {
  double omega; /* omega index (L. M. Collins, C. W. Dent, 1988) */
  double nmi;   /* of overlapping communities (A. F. McDaid, D. Greene, N. Hurley, 2011) */
  const vorlane_change* changes; /* of all of the first cover, then new ones of the second */
  size_t change_count;
} vorlane_comparison_view;

/* Compares two covers of the nodes 1 to node_count; each row holds nodes in ascending order. */
VORLANE_C_API vorlane_code vorlane_compare(uint32_t node_count, const vorlane_rows* first,
                                           const vorlane_rows* second,
                                           vorlane_comparison** comparison);
VORLANE_C_API void vorlane_comparison_look(const vorlane_comparison* comparison,
                                           vorlane_comparison_view* view);
VORLANE_C_API void vorlane_comparison_free(vorlane_comparison* comparison);

/* ---- Arrow ---- */

struct ArrowArrayStream;

/* The communities at a k for Arrow's C stream interface: one batch with a row for each, of
   `community` (uint32), `exact` (bool) and `members` (large list of uint32, nodes). Members aren't
   copied; what is handed out keeps them alive and is to be released as Arrow tells. */
VORLANE_C_API vorlane_code vorlane_results_arrow(const vorlane_results* results, uint32_t k,
                                                 struct ArrowArrayStream* stream);

#ifdef __cplusplus
}
#endif

#endif
