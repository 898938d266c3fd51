#pragma once

#include <jni.h>

/// The native methods of the Java class zumo/community/Parts, all static. A handle stands for the
/// control of what one object does, one thing at a time; stop is called from any thread meanwhile.
/// A failure is a zumo/community/VorlaneException.
extern "C" {

JNIEXPORT jlong JNICALL Java_zumo_community_Parts_open(JNIEnv* env, jclass type);
/// `numbers` and `texts` as Asked_by() takes them.
JNIEXPORT void JNICALL Java_zumo_community_Parts_plan(JNIEnv* env, jclass type, jlong handle,
                                                      jstring work, jstring link_file,
                                                      jstring results_dir, jint parts,
                                                      jboolean directed, jdoubleArray numbers,
                                                      jobjectArray texts);
/// The numbers of the parts that are still to be done.
JNIEXPORT jintArray JNICALL Java_zumo_community_Parts_searchLeft(JNIEnv* env, jclass type,
                                                                 jstring work);
JNIEXPORT jboolean JNICALL Java_zumo_community_Parts_isGathered(JNIEnv* env, jclass type,
                                                                jstring work);
JNIEXPORT jintArray JNICALL Java_zumo_community_Parts_levelsLeft(JNIEnv* env, jclass type,
                                                                 jstring work);
/// `elsewhere` is a directory in place of that of the results, or empty.
JNIEXPORT jlong JNICALL Java_zumo_community_Parts_search(JNIEnv* env, jclass type, jlong handle,
                                                         jstring work, jstring elsewhere,
                                                         jint part);
JNIEXPORT jlong JNICALL Java_zumo_community_Parts_gather(JNIEnv* env, jclass type, jlong handle,
                                                         jstring work);
JNIEXPORT jlong JNICALL Java_zumo_community_Parts_levels(JNIEnv* env, jclass type, jlong handle,
                                                         jstring work, jstring elsewhere,
                                                         jint part);
JNIEXPORT void JNICALL Java_zumo_community_Parts_finish(JNIEnv* env, jclass type, jlong handle,
                                                        jstring work);

JNIEXPORT void JNICALL Java_zumo_community_Parts_stop(JNIEnv* env, jclass type, jlong handle);
JNIEXPORT void JNICALL Java_zumo_community_Parts_close(JNIEnv* env, jclass type, jlong handle);
}
