#pragma once

#include <jni.h>

/// The native methods of the Java class zumo/community/ExternalCalls, for runs that write a
/// directory.
///
/// A failure is a java/lang/Exception with the message of the run. Find_coms, findAndLoadComs and
/// loadComs are refused while one of them is going on; the others return at once and are made for
/// other threads.
extern "C" {

/// Runs and yields an empty zumo/community/OutParams; the results are on disk only.
JNIEXPORT jobject JNICALL Java_zumo_community_ExternalCalls_Find_1coms(
    JNIEnv* env, jobject receiver, jstring input_file, jstring output_dir, jboolean directed,
    jboolean use_intensity, jdouble intensity_threshold, jboolean use_lower_threshold,
    jdouble lower_threshold, jboolean use_upper_threshold, jdouble upper_threshold,
    jboolean use_single_k, jint single_k, jboolean use_time_limit, jdouble time_limit);

/// Runs and yields a zumo/community/OutParams with the results.
JNIEXPORT jobject JNICALL Java_zumo_community_ExternalCalls_findAndLoadComs(
    JNIEnv* env, jobject receiver, jstring input_file, jstring output_dir, jboolean directed,
    jboolean use_intensity, jdouble intensity_threshold, jboolean use_lower_threshold,
    jdouble lower_threshold, jboolean use_upper_threshold, jdouble upper_threshold,
    jboolean use_single_k, jint single_k, jboolean use_time_limit, jdouble time_limit);

/// Yields a zumo/community/OutParams with the results of an earlier run of the kind told.
JNIEXPORT jobject JNICALL Java_zumo_community_ExternalCalls_loadComs(JNIEnv* env, jobject receiver,
                                                                     jstring results_dir,
                                                                     jboolean directed,
                                                                     jboolean use_intensity);

/// Asks the run that is going on to end.
JNIEXPORT void JNICALL Java_zumo_community_ExternalCalls_Stop_1process(JNIEnv* env,
                                                                       jobject receiver);

/// The same, inside long stages too.
JNIEXPORT void JNICALL Java_zumo_community_ExternalCalls_Stop_1at_1once(JNIEnv* env,
                                                                        jobject receiver);

/// Takes a stop request back; nothing else does.
JNIEXPORT void JNICALL Java_zumo_community_ExternalCalls_Reset_1stop_1process(JNIEnv* env,
                                                                              jobject receiver);

/// The next run of this thread works with so many cores, 0 for those at hand; every other run with
/// one.
JNIEXPORT void JNICALL Java_zumo_community_ExternalCalls_setJobs(JNIEnv* env, jclass type,
                                                                 jint cores);

/// The latest state report: of the translation, or, while that has none, of the run.
JNIEXPORT jstring JNICALL Java_zumo_community_ExternalCalls_Read_1state_1report(JNIEnv* env,
                                                                                jobject receiver);

/// Always empty.
JNIEXPORT jstring JNICALL Java_zumo_community_ExternalCalls_Read_1error_1message(JNIEnv* env,
                                                                                 jobject receiver);

/// Why the last call of this thread has failed: the place of a
/// zumo/community/VorlaneException.Kind.
JNIEXPORT jint JNICALL Java_zumo_community_ExternalCalls_failureKind(JNIEnv* env, jclass type);
}
