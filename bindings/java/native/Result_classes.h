#pragma once

#include "bindings/java/native/Java_class.h"

namespace gns {

/// The Java classes of a result; each object of these looks up its class and methods when it is
/// made, and throws Java_error_pending if one is missing.

struct Out_params_class : Java_class {
  explicit Out_params_class(JNIEnv* env) : Java_class(env, "zumo/community/OutParams") {}

  jmethodID init = Method("<init>", "()V");
  jmethodID set_in_params = Method("setInParams", "(Lzumo/community/InParams;)V");
  jmethodID add_clique = Method("addClique", "(Lzumo/community/Clique;I)V");
  jmethodID add_community = Method("addCommunity", "(Lzumo/community/Community;)V");
  jmethodID add_vertex_to_community =
      Method("addVertexToCommunity", "(Lzumo/community/Community;Ljava/lang/String;)V");
  jmethodID add_clique_to_community =
      Method("addCliqueToCommunity", "(Lzumo/community/Community;I)V");
  jmethodID add_community_graf_edge = Method("addCommunityGrafEdge", "(IIII)V");
  jmethodID add_distribution = Method("addDistribution", "(IIILjava/lang/String;)V");
};

struct In_params_class : Java_class {
  explicit In_params_class(JNIEnv* env) : Java_class(env, "zumo/community/InParams") {}

  jmethodID init = Method("<init>", "()V");
  jmethodID add_edge = Method("addEdge", "(Ljava/lang/String;Ljava/lang/String;)V");
};

struct Clique_class : Java_class {
  explicit Clique_class(JNIEnv* env) : Java_class(env, "zumo/community/Clique") {}

  jmethodID init = Method("<init>", "(Z)V");
  jmethodID add_vertex = Method("addVertex", "(Ljava/lang/String;)V");
};

struct Community_class : Java_class {
  explicit Community_class(JNIEnv* env) : Java_class(env, "zumo/community/Community") {}

  jmethodID init = Method("<init>", "(Z)V");
  jmethodID set_size = Method("setSize", "(I)V");
  jmethodID add_edge = Method("addEdge", "(Lzumo/community/Edge;)V");
};

struct Edge_class : Java_class {
  explicit Edge_class(JNIEnv* env) : Java_class(env, "zumo/community/Edge") {}

  jmethodID init = Method("<init>", "(Ljava/lang/String;Ljava/lang/String;Z)V");
};

}  // namespace gns
