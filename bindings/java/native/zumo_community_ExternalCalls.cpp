#include "bindings/java/native/zumo_community_ExternalCalls.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "bindings/java/native/Failure_kind.h"
#include "bindings/java/native/Java_class.h"
#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Kept_results.h"
#include "bindings/java/native/Native_method.h"
#include "bindings/java/native/Translate_result.h"
#include "control/Clique_find_ext_cont.h"
#include "control/Run_control.h"
#include "control/Sole_call.h"
#include "engine/Cores_at_hand.h"
#include "engine/Run_message.h"
#include "engine/Run_stages.h"
#include "files/Results_reader.h"
#include "foundation/Errors.h"
#include "foundation/io/File_faults.h"
#include "results/Method.h"

namespace gns {

namespace {

using external_control::JAVA_CPP_TRANSLATE_STATE_REPORT;

/// The arguments of a run as Java gives them, in their order there.
struct Run_arguments {
  jstring input_file;
  jstring output_dir;
  jboolean directed;
  jboolean use_intensity;
  jdouble intensity_threshold;
  jboolean use_lower_threshold;
  jdouble lower_threshold;
  jboolean use_upper_threshold;
  jdouble upper_threshold;
  jboolean use_single_k;
  jint single_k;
  jboolean use_time_limit;
  jdouble time_limit;
};

std::atomic<bool> going_on = false;

/// Of the next run of this thread.
unsigned& Jobs() {
  thread_local unsigned jobs = 1;
  return jobs;
}

/// The same for the methods of which only one at a time may go on in a process.
template <typename Body>
jobject Sole_native_method(JNIEnv* env, Body body) noexcept {
  return Native_method(env, [&] {
    Last_failure_kind() = Failure_kind::busy;
    const external_control::Sole_call sole(going_on);
    Last_failure_kind() = Failure_kind::parameters;
    JAVA_CPP_TRANSLATE_STATE_REPORT = std::string();
    return body();
  });
}

void Print_line(std::ostream& stream, const char* line) { stream << line << std::endl; }

void Print_success(bool approximation_needed) {
  Print_line(std::cout, " process ended succesfully");
  Print_line(std::cout,
             approximation_needed ? " approximation was needed" : " no approximation was needed");
}

Run_parameters Parameters_of(JNIEnv* env, const Run_arguments& a) {
  Run_parameters p;
  p.input_file = Needed_string(env, a.input_file);
  p.output_dir = Needed_string(env, a.output_dir);
  p.use_lower_threshold = a.use_lower_threshold != JNI_FALSE;
  p.lower_threshold = a.lower_threshold;
  p.use_upper_threshold = a.use_upper_threshold != JNI_FALSE;
  p.upper_threshold = a.upper_threshold;
  p.directed = a.directed != JNI_FALSE;
  p.use_intensity = a.use_intensity != JNI_FALSE;
  p.intensity_threshold = a.intensity_threshold;
  p.use_time_limit = a.use_time_limit != JNI_FALSE;
  p.time_limit = a.time_limit;
  p.use_single_k = a.use_single_k != JNI_FALSE;
  p.single_k = static_cast<std::uint32_t>(a.single_k);
  return p;
}

std::string Words_of(const std::vector<File_fault>& faults) {
  std::string words = "ERROR: the results are not whole, as " + std::to_string(faults.size()) +
                      " file(s) could not be written:\n";
  for (const File_fault& fault : faults) words += "  " + fault.path + ": " + fault.reason + "\n";
  return words;
}

/// Does the work of a run or a reload and yields its message; notes why it fails.
std::string Message_of_work(const Run_parameters* run, const std::function<void()>& work) {
  const auto noted_work = [&] {
    Last_failure_kind() = Failure_kind::other;
    try {
      work();
    } catch (...) {
      Note_failure(run);
      throw;
    }
  };
  Last_failure_kind() = Failure_kind::busy;
  return Message_of(std::cref(noted_work));
}

/// Makes the run and yields its message; here a run whose files are not whole has failed.
std::string Message_of_run(const Run_parameters& parameters, const Run_wishes& wishes,
                           bool& approximation_needed) {
  Run_summary summary;
  const unsigned jobs = std::exchange(Jobs(), 1);
  const auto work = [&] {
    external_control::This_control().workers = jobs > 0 ? jobs : Cores_at_hand();
    Run_stages(parameters, wishes, approximation_needed, summary);
  };
  std::string message = Message_of_work(&parameters, std::cref(work));
  const std::vector<File_fault> faults = File_faults();
  if (message != run_finished || faults.empty()) return message;
  Last_failure_kind() = Failure_kind::output;
  return Words_of(faults);
}

jobject Run(JNIEnv* env, const Run_arguments& arguments) {
  Print_line(std::cout, " starting c++");
  const Run_parameters parameters = Parameters_of(env, arguments);
  Print_line(std::cout, " in/out args converted");
  const Java_class out_params(env, "zumo/community/OutParams");
  Local_ref<jobject> result = out_params.New(out_params.Method("<init>", "()V"));

  Print_line(std::cout, " calling Find_coms");
  bool approximation_needed = false;
  const std::string message = Message_of_run(parameters, {}, approximation_needed);
  if (message == run_finished)
    Print_success(approximation_needed);
  else
    Throw_exception(env, message.c_str());
  return result.Release();
}

jobject Run_and_translate(JNIEnv* env, const Run_arguments& arguments) {
  const Run_parameters parameters = Parameters_of(env, arguments);
  bool approximation_needed = false;
  Com_result_tables tables;
  Kept_results kept(env, parameters.directed);
  const bool in_arrays = Result_arrays::Are_known(env);
  Run_wishes wishes;
  if (in_arrays)
    wishes.keeper = &kept;
  else
    wishes.tables = Pointers_to(tables);
  const std::string message = Message_of_run(parameters, wishes, approximation_needed);
  if (message != run_finished) throw Xerror_msg(message);
  Print_success(approximation_needed);
  return in_arrays ? kept.Translate()
                   : translateResultToJava(env, parameters.directed, std::move(tables));
}

jobject Load_and_translate(JNIEnv* env, jstring java_results_dir, bool directed,
                           bool use_intensity) {
  const std::string results_dir = Needed_string(env, java_results_dir);
  Com_result_tables tables;
  std::string errors;
  const std::string kind = Flag_of(Method_of(directed, use_intensity));
  JAVA_CPP_TRANSLATE_STATE_REPORT = " Loading results: from disk";
  Print_line(std::cerr, "calling Load_coms: ");
  const auto work = [&] { Read_coms(results_dir, kind, tables, errors); };
  const std::string message = Message_of_work(nullptr, std::cref(work));
  if (message != run_finished) throw Xerror_msg(message);
  Print_line(std::cout, " process ended succesfully");
  JAVA_CPP_TRANSLATE_STATE_REPORT = " Loading results: read from disk";
  if (!errors.empty()) {
    Last_failure_kind() = Failure_kind::input;
    throw Xerror_msg(errors);
  }
  Print_line(std::cerr, "Load_coms finished.");
  return translateResultToJava(env, directed, std::move(tables));
}

std::string State_report() {
  std::string report = JAVA_CPP_TRANSLATE_STATE_REPORT.Text();
  return report.empty() ? Read_state_report() : report;
}

/// What a native method yields that reads a text.
jstring Text_to_Java(JNIEnv* env, std::string (*read)()) {
  return Native_method(env, [&] {
    Modified_utf8 encoding;
    return Utf_to_String(env, encoding, read());
  });
}

}  // namespace

}  // namespace gns

jobject Java_zumo_community_ExternalCalls_Find_1coms(
    JNIEnv* env, jobject /*receiver*/, jstring input_file, jstring output_dir, jboolean directed,
    jboolean use_intensity, jdouble intensity_threshold, jboolean use_lower_threshold,
    jdouble lower_threshold, jboolean use_upper_threshold, jdouble upper_threshold,
    jboolean use_single_k, jint single_k, jboolean use_time_limit, jdouble time_limit) {
  return gns::Sole_native_method(env, [&] {
    return gns::Run(env, {input_file, output_dir, directed, use_intensity, intensity_threshold,
                          use_lower_threshold, lower_threshold, use_upper_threshold,
                          upper_threshold, use_single_k, single_k, use_time_limit, time_limit});
  });
}

jobject Java_zumo_community_ExternalCalls_findAndLoadComs(
    JNIEnv* env, jobject /*receiver*/, jstring input_file, jstring output_dir, jboolean directed,
    jboolean use_intensity, jdouble intensity_threshold, jboolean use_lower_threshold,
    jdouble lower_threshold, jboolean use_upper_threshold, jdouble upper_threshold,
    jboolean use_single_k, jint single_k, jboolean use_time_limit, jdouble time_limit) {
  return gns::Sole_native_method(env, [&] {
    return gns::Run_and_translate(
        env, {input_file, output_dir, directed, use_intensity, intensity_threshold,
              use_lower_threshold, lower_threshold, use_upper_threshold, upper_threshold,
              use_single_k, single_k, use_time_limit, time_limit});
  });
}

jobject Java_zumo_community_ExternalCalls_loadComs(JNIEnv* env, jobject /*receiver*/,
                                                   jstring results_dir, jboolean directed,
                                                   jboolean use_intensity) {
  return gns::Sole_native_method(env, [&] {
    return gns::Load_and_translate(env, results_dir, directed != JNI_FALSE,
                                   use_intensity != JNI_FALSE);
  });
}

void Java_zumo_community_ExternalCalls_Stop_1process(JNIEnv* /*env*/, jobject /*receiver*/) {
  gns::Stop_process();
}

void Java_zumo_community_ExternalCalls_Stop_1at_1once(JNIEnv* /*env*/, jobject /*receiver*/) {
  gns::Stop_at_once();
}

void Java_zumo_community_ExternalCalls_Reset_1stop_1process(JNIEnv* /*env*/, jobject /*receiver*/) {
  gns::Reset_stop_process();
}

void Java_zumo_community_ExternalCalls_setJobs(JNIEnv* /*env*/, jclass /*type*/, jint cores) {
  gns::Jobs() = static_cast<unsigned>(cores);
}

jstring Java_zumo_community_ExternalCalls_Read_1state_1report(JNIEnv* env, jobject /*receiver*/) {
  return gns::Text_to_Java(env, gns::State_report);
}

jstring Java_zumo_community_ExternalCalls_Read_1error_1message(JNIEnv* env, jobject /*receiver*/) {
  return gns::Text_to_Java(env, gns::Read_error_message);
}

jint Java_zumo_community_ExternalCalls_failureKind(JNIEnv* /*env*/, jclass /*type*/) {
  return static_cast<jint>(gns::Last_failure_kind());
}
