#pragma once

#include <jni.h>

/// The native methods of the Java class zumo/community/Analysis, all static. A handle stands for an
/// analysis from opening to close(); those that work are called by one thread at a time, and stop,
/// report and readProgress from any other meanwhile. A failure is a
/// zumo/community/VorlaneException.
extern "C" {

/// `numbers` and `texts` as Asked_by() takes them.
JNIEXPORT jlong JNICALL Java_zumo_community_Analysis_open(JNIEnv* env, jclass type,
                                                          jstring link_file, jboolean directed,
                                                          jboolean weighted, jboolean links,
                                                          jdoubleArray numbers, jobjectArray texts);
/// `weights` may be null.
JNIEXPORT jlong JNICALL Java_zumo_community_Analysis_openLinks(JNIEnv* env, jclass type, jint count,
                                                               jintArray from, jintArray to,
                                                               jdoubleArray weights,
                                                               jboolean directed, jboolean links,
                                                               jdoubleArray numbers);

JNIEXPORT jobject JNICALL Java_zumo_community_Analysis_cliques(JNIEnv* env, jclass type,
                                                               jlong handle);
JNIEXPORT jint JNICALL Java_zumo_community_Analysis_exactCliqueCount(JNIEnv* env, jclass type,
                                                                     jlong handle);
/// Null behind the last level.
JNIEXPORT jobject JNICALL Java_zumo_community_Analysis_next(JNIEnv* env, jclass type, jlong handle,
                                                            jobjectArray names);
JNIEXPORT jobjectArray JNICALL Java_zumo_community_Analysis_names(JNIEnv* env, jclass type,
                                                                  jlong handle);

JNIEXPORT void JNICALL Java_zumo_community_Analysis_stop(JNIEnv* env, jclass type, jlong handle);
JNIEXPORT jstring JNICALL Java_zumo_community_Analysis_report(JNIEnv* env, jclass type,
                                                              jlong handle);
JNIEXPORT void JNICALL Java_zumo_community_Analysis_readProgress(JNIEnv* env, jclass type,
                                                                 jlong handle, jlongArray figures);
JNIEXPORT void JNICALL Java_zumo_community_Analysis_close(JNIEnv* env, jclass type, jlong handle);
}
