#!/usr/bin/env bash
# Tries scripts/ on a machine that lacks everything: a copy of them in a folder of its own, with a
# PATH of nothing but what every Debian has and stubs that tell how they were called.
set -euo pipefail
source_root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
temp=$(mktemp -d)
trap 'rm -rf "$temp"' EXIT
project="$temp/pro ject"
log=$temp/log
bin=$temp/bin
mkdir -p "$project/cmake" "$project/src" "$project/g++" "$bin"
touch "$project/CMakeLists.txt"
cp -r "$source_root/scripts" "$source_root/examples" "$project"
for tool in basename bash cat chmod cksum cut dirname env find id mkdir mktemp nproc readlink \
  realpath rm sed setpriv sort touch uname; do
  ln -s "$(type -P $tool)" "$bin/$tool"
done
touch "$log"
chmod -R go+rwX "$temp"
chmod go-w "$project"

# stub NAME: a command that leaves its name and arguments in the log; then it does what stands in
# the input.
stub() {
  { printf '#!/bin/bash\necho "%s $*" >>"%s"\n' "$1" "$log" && cat; } >"$bin/$1"
  chmod 755 "$bin/$1"
}
stub apt-get </dev/null
# shellcheck disable=SC2016 # expanded there
printf '#!/bin/bash\nif [[ $1 != -v ]]; then exec "$@"; fi\n' >"$bin/sudo"
chmod 755 "$bin/sudo"

failures=0
# expect CASE PATTERN TEXT: the text has to match.
expect() {
  # shellcheck disable=SC2053 # a pattern it is
  if [[ $3 != $2 ]]; then
    printf '%s\n  expected: %s\n  found:    %s\n' "$1" "$2" "$3"
    failures=1
  fi
}

# bare COMMAND...: with that PATH, in the project's folder; shows its output and empties the log.
bare() {
  : >"$log"
  (cd "$project" && env -i HOME="$temp/home" TMPDIR="$temp" PATH="$bin" "$@") 2>&1 || true
}

# Folders named like programs are no programs, and files are looked for where they belong.
run="cmake g++ ninja-build"
java="cmake default-jdk-headless g++ ninja-build"
python="cmake g++ ninja-build python3 python3-venv"
spark="cmake default-jdk-headless g++ maven ninja-build"
clusters="cmake default-jdk-headless g++ maven ninja-build python3 python3-venv"
ci="ccache chromium clang clang-format clang-tidy cmake default-jdk-headless fish g++ libclang-rt-dev llvm mandoc maven ninja-build nodejs npm python3 python3-venv shellcheck zsh"
while IFS='|' read -r task packages; do
  bare scripts/setup "$task" >/dev/null
  expect "setup $task" "apt-get update apt-get install -y --no-install-recommends $packages" \
    "$(sed 's/ junit4\| munge\| slurm-wlm\| r-cran-igraph\| libgtest-dev\| strace\| lib\(expat1\|zstd\)-dev\| zlib1g-dev//g' "$log" | paste -sd ' ')"
done <<END
--run|$run
--java|$java
--python|$python
--spark|$spark
--test|$java
--clusters|$clusters
--ci|$ci
END

# Who may not install is told what to ask for.
rm "$bin/sudo"
other_user=()
if [[ $EUID -eq 0 ]]; then other_user=(setpriv --reuid 65534 --clear-groups); fi
expect "no sudo" "*Please ask the*administrator*apt-get install $run*" \
  "$(bare "${other_user[@]}" scripts/setup)"
expect "nothing installed without leave" "" "$(cat "$log")"

# From here on everything is there. A configured folder is one with a cache, a build makes the
# program, which tells where it is.
for tool in g++ clang++ ninja make; do stub $tool </dev/null; done
stub cmake <<'END'
if [[ $1 == --build ]]; then
  if [[ -t 1 ]]; then echo "[1/1] linking"; fi
  printf '#!/bin/bash\necho "runs in ${0%%/*}"\n' >"$2/vorlane"
  chmod 755 "$2/vorlane"
  exit
fi
while [[ $# -gt 0 ]]; do
  case $1 in
    -S) source=$2 ;;
    -B) build=$2 ;;
    -G) generator=$2 ;;
  esac
  shift
done
mkdir -p "$build"
cat >"$build/CMakeCache.txt" <<CACHE
CMAKE_CXX_COMPILER:FILEPATH=$(type -P "${CXX:-g++}")
CMAKE_GENERATOR:INTERNAL=$generator
CMAKE_HOME_DIRECTORY:INTERNAL=$source
CACHE
END

expect "first run" "*may take*runs in $project/build" "$(bare scripts/run -h)"
expect "configured with ninja" "*-G Ninja*" "$(cat "$log")"
expect "second run says nothing" "runs in $project/build" "$(bare scripts/run -h)"
expect "no configuration again" "cmake --build $project/build --target vorlane" "$(cat "$log")"
bare CXX=clang++ scripts/run -h >/dev/null
expect "another compiler" "cmake -S*--fresh*" "$(cat "$log")"
bare CXX=clang++ scripts/run -h >/dev/null
expect "the same compiler" "cmake --build*" "$(cat "$log")"
touch "$project/src/newer.cpp"
expect "progress on a terminal" "*may take*\[1/1\] linking*runs in*" \
  "$(bare "$(type -P script)" -qec "scripts/run -h" /dev/null)"
expect "a folder of one's own" "*runs in $temp/own" \
  "$(bare VORLANE_BUILD_DIR="$temp/own" scripts/run -h)"
rm -r "$project/build"
chmod a-w "$project"
expect "a project that can't be written" "*runs in $temp/home/.cache/vorlane/*" \
  "$(bare "${other_user[@]}" scripts/run -h)"
chmod u+w "$project"
mv "$project" "$temp/a&b"
project="$temp/a&b"
bare scripts/run -h >/dev/null
expect "what ninja can't read" "*-G Unix Makefiles*" "$(cat "$log")"
exit "$failures"
