#include "parts/Slurm_scripts.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/paths/Make_dir_aside.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/Shown_text.h"
#include "parts/File_aside.h"
#include "parts/Work_folder.h"

namespace gns::parts {

namespace {

/// Jobs wait for all tasks of an array to end well. What the levels need is known once the cliques
/// are gathered, so that job submits them, by the same script that goes on after a failure. What a
/// part of the search needs for the cliques that it finds is not known before: a gigabyte.
constexpr std::string_view submit_script = R"sh(#!/bin/sh
# Submits what is left to do of a run in parts. Arguments go to each call of sbatch, such as
# --account=NAME or --time=1-0. After a failure call it again.
set -eu
vorlane=@PROGRAM@
work=@WORK@
logs=@LOGS@
cd -- "$work/slurm"

# What earlier calls have submitted must have ended, or the work would be done twice. The job that
# gathers is the one that may submit what comes next. Where nobody tells of the queue, none waits.
touch submitted
queued=$(squeue --noheader --user="$(id -un)" --states=PENDING,RUNNING,SUSPENDED --format=%F \
  2>/dev/null | sort -u | grep -Fxf submitted | grep -vx "${SLURM_JOB_ID:-none}" | paste -s -d ' ' -)
if [ "$queued" ]; then
  echo "Nothing is submitted, as jobs of an earlier call are in the queue. Let them end, or end" \
    "them by: scancel $queued" >&2
  exit 1
fi

# left STEP: the numbers of its parts that are still to be done, as sbatch takes them.
left() { "$vorlane" parts status --work "$work" --left "$1"; }

# memory TABLE MORE: the most that a part in the table needs, and so many megabytes more.
memory() {
  awk -F '\t' -v more="$2" '$6 + 0 > most { most = $6 + 0 }
    END { printf "%dM", most / 1048576 + more }' "$work/$1"
}

# submit STEP OPTIONS...: what is submitted next waits until it has gone well.
after=
submit() {
  step=$1
  shift
  job=$(sbatch --parsable --job-name="vorlane-$step" --kill-on-invalid-dep=yes $after "$@")
  job=${job%%;*}
  echo "$job" >>submitted
  after=--dependency=afterok:$job
  echo "$step: job $job"
}

to_gather=$(left gather)
to_finish=$(left finish)
if [ "$to_gather" ]; then
  memory=$(memory plan.tsv 1024)
  parts=$(left search)
  if [ "$parts" ]; then
    submit search --array="$parts" --mem="$memory" --output="$logs/search-%a.log" "$@" search.sbatch
  fi
  submit gather --mem="$memory" --output="$logs/gather.log" "$@" gather.sbatch "$@"
elif [ "$to_finish" ]; then
  memory=$(memory levels.tsv 256)
  parts=$(left levels)
  if [ "$parts" ]; then
    submit levels --array="$parts" --mem="$memory" --output="$logs/levels-%a.log" "$@" levels.sbatch
  fi
  submit finish --mem="$memory" --output="$logs/finish.log" "$@" finish.sbatch
else
  echo "Nothing is left to do."
fi
)sh";

constexpr std::string_view batch_head = R"sh(#!/bin/sh
#SBATCH --nodes=1 --ntasks=1 --cpus-per-task=1 --requeue --open-mode=append
)sh";

constexpr std::array<std::pair<Step, std::string_view>, 4> batch_scripts = {{
    {Step::search, "exec @PROGRAM@ parts search --work @WORK@ --part \"$SLURM_ARRAY_TASK_ID\"\n"},
    {Step::gather,
     "@PROGRAM@ parts gather --work @WORK@ && exec sh @WORK@/slurm/submit.sh \"$@\"\n"},
    {Step::levels, "exec @PROGRAM@ parts levels --work @WORK@ --part \"$SLURM_ARRAY_TASK_ID\"\n"},
    {Step::finish, "exec @PROGRAM@ parts finish --work @WORK@\n"},
}};

std::string Replaced(std::string text, std::string_view what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
    text.replace(at, what.size(), by);
  return text;
}

/// A backslash in the name of a log would keep Slurm from putting numbers in.
void Refuse_bad_path(const std::string& path) {
  if (path.find_first_of("\\\n") != std::string::npos)
    throw Xerror_msg("ERROR: " + Quoted(path) +
                     " has a backslash or the end of a line in it, which scripts of Slurm can't "
                     "have. Choose another folder for the parts.\n");
}

}  // namespace

std::string Write_slurm_scripts(const std::string& work, const std::string& program) {
  const std::string folder = Get_total_path(work);
  Refuse_bad_path(folder);
  const std::string scripts = folder + "/slurm";
  const auto filled = [&](std::string_view text) {
    std::string script = Replaced(std::string(text), "@PROGRAM@", Shell_word(program));
    script = Replaced(std::move(script), "@WORK@", Shell_word(folder));
    return Replaced(std::move(script), "@LOGS@", Shell_word(Replaced(scripts, "%", "%%")));
  };
  Make_dir_aside(scripts);
  for (const auto& [step, command] : batch_scripts)
    Write_text_aside(scripts + "/" + Name_of(step) + ".sbatch",
                     filled(std::string(batch_head).append(command)));
  std::string submit = scripts + "/submit.sh";
  Write_text_aside(submit, filled(submit_script));
  return submit;
}

}  // namespace gns::parts
