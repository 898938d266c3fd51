#!/usr/bin/env bash
# Finds communities by a Slurm cluster of this machine, has one task requeued and kills another one,
# and compares with a run of the program: tests/slurm/slurm_test.sh PROGRAM. Ends with 77 if
# something is missing. Needs no root: the cluster is its user's.
set -euo pipefail
here=$(cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")" && pwd)
# shellcheck source=tests/slurm/cluster.sh
source "$here/cluster.sh"
for command in munged slurmctld slurmd sbatch; do
  if ! type -P "$command" >/dev/null; then
    echo "Skipped: the test needs $command (Debian's slurm-wlm and munge)."
    exit 77
  fi
done

program=$(readlink -f -- "$1")
folder=$(mktemp -d)
work="$folder/it's 100%j of the work"
out="$folder/the results"
trap 'stop_cluster; rm -rf -- "$folder"' EXIT

# fail TEXT: with what the logs tell.
fail() {
  echo "FAILED: $1"
  squeue -r || true
  tail -n 20 "$work"/slurm/*.log "$folder"/cluster/*.log || true
  exit 1
}

# expect TEXT COMMAND...: the command, which may fail, has to say this.
expect() {
  local text=$1 said
  shift
  said=$("$@" 2>&1) || true
  [[ $said == *"$text"* ]] || fail "$* says: $said"
}

# Parts 1 and 2 of the search stop in the middle of their work, as long as the file `held` is there.
hold_two() {
  touch "$folder/held"
  sed -i 's|^exec .*|& \&|; s|^exec ||' "$work/slurm/search.sbatch"
  cat >>"$work/slurm/search.sbatch" <<END
if [ "\$SLURM_ARRAY_TASK_ID" -le 2 ]; then
  kill -STOP \$!
  echo \$! >"$folder/process.\$SLURM_ARRAY_TASK_ID"
  while [ -e "$folder/held" ]; do sleep 0.1; done
  kill -CONT \$!
fi
wait \$!
END
}

are_held() { [[ -s $folder/process.1 && -s $folder/process.2 ]]; }
waits() { [[ $(squeue -h -o %T "--jobs=$1") == PENDING ]]; }
all_ended() { [[ -z $(squeue -h) ]]; }

awk 'BEGIN { srand(7); for (a = 0; a < 150; ++a) for (b = 0; b < a; ++b)
  if (rand() < 0.4) print "n" a, "n" b }' >"$folder/links.txt"
"$program" -i "$folder/links.txt" -o "$folder/single" >/dev/null 2>&1
start_cluster "$folder/cluster" || fail "the cluster doesn't start"
expect "slurm/submit.sh" \
  "$program" parts plan -i "$folder/links.txt" -o "$out" --work "$work" --parts 5 --slurm
hold_two
expect "search: job 1"$'\n'"gather: job 2" sh "$work/slurm/submit.sh" --time=10

expect "scancel 1 2" sh "$work/slurm/submit.sh" --time=10

# One is given to another node, so to speak; the other one is lost.
wait_until 30 are_held || fail "the search doesn't begin"
scontrol requeue 1_1
kill -KILL "$(cat "$folder/process.2")"
rm "$folder/held"
wait_until 30 waits 1_1 || fail "nothing is requeued"
scontrol update JobId=1_1 StartTime=now
wait_until 60 all_ended || fail "the jobs don't end"
expect "vorlane parts search --work '$folder/it'\\''s 100%j of the work' --part 2" \
  "$program" parts status --work "$work"
expect "cliques.2.bin" "$program" parts finish --work "$work"
[[ -e $out/.unfinished ]] || fail "the results look finished"

# The rest is submitted, and no more.
expect "search: job" sh "$work/slurm/submit.sh" --time=10
[[ $(squeue -h -r -n vorlane-search -o %K) == 2 ]] || fail "more than part 2 is searched again"
wait_until 60 all_ended || fail "the jobs don't end"
diff -r "$folder/single" "$out" || fail "the results differ"
expect "Nothing is left to do." sh "$work/slurm/submit.sh"
echo "passed"
