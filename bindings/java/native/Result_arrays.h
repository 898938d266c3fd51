#pragma once

#include <jni.h>

#include <array>
#include <cstdint>
#include <functional>
#include <set>

#include "bindings/java/native/Int_array.h"
#include "bindings/java/native/Java_class.h"

namespace gns {

/// The names of the distributions in Java, in their order here.
constexpr std::array<const char*, 4> distribution_names = {"sizeDist", "degreeDist", "overlapDist",
                                                           "membershipDist"};

/// The links of a network: names by number, and two numbers for each link.
struct Network_arrays {
  Local_ref<jobjectArray> names;
  Int_array link_ends;
};

/// Rows of numbers, one behind the other: where each ends, and all values.
struct Row_arrays {
  Int_array ends;
  Int_array values;
};

struct Clique_arrays {
  Int_array approximate;  ///< positions, ascending
  Row_arrays nodes;
};

struct Level_arrays {
  std::uint32_t k = 0;
  Int_array approximate;  ///< positions of communities, ascending
  Row_arrays nodes;
  Row_arrays links;    ///< two nodes each; ends count nodes
  Row_arrays cliques;  ///< positions without signs
  Int_array overlaps;  ///< in threes
  std::array<Int_array, distribution_names.size()> distributions;  ///< in pairs
};

/// The zumo/community/ResultArrays of our own Java classes: takes results in arrays and makes a
/// zumo/community/OutParams of them. Reports what it does as the translation of tables does. All
/// operations throw Java_error_pending.
class Result_arrays {
 public:
  /// False where a caller has classes of his own, which take results one by one.
  static bool Are_known(JNIEnv* env);

  Result_arrays(JNIEnv* env, bool directed);

  void Add(const Network_arrays& network);
  void Add(const Clique_arrays& cliques);
  /// Goes through the k as For_each_k() does; `level_at` yields what there is, or null.
  void Add_levels(const std::set<std::uint32_t>& ks, std::uint32_t last,
                  const std::function<const Level_arrays*(std::uint32_t)>& level_at);
  /// The result, once the names of nodes are told too: a new local reference.
  jobject Finish(const Local_ref<jobjectArray>& names);

 private:
  void Add_communities(const Level_arrays& level);
  void Add_distributions(const Level_arrays& level);

  JNIEnv* env_;
  jboolean directed_;
  Java_class class_{env_, "zumo/community/ResultArrays"};
  jmethodID network_ = class_.Method("network", "([Ljava/lang/String;[I)V");
  jmethodID cliques_ = class_.Method("cliques", "([I[I[I)V");
  jmethodID communities_ = class_.Method("communities", "(IZ[I[I[I[I[I[I[I)V");
  jmethodID community_graph_ = class_.Method("communityGraph", "(I[I)V");
  jmethodID distribution_ = class_.Method("distribution", "(ILjava/lang/String;[I)V");
  jmethodID names_ = class_.Method("names", "([Ljava/lang/String;)V");
  jmethodID results_ = class_.Method("results", "()Lzumo/community/OutParams;");
  Local_ref<jobject> object_ = class_.New(class_.Method("<init>", "()V"));
};

}  // namespace gns
