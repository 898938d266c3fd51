# shellcheck shell=bash
# Sourced by the scripts that build, behind quietly.sh; `root` is the folder of the project. Sets
# `build`, the folder that is built into: VORLANE_BUILD_DIR, or `build` in the project, or, where
# that can't be written, a folder in the user's cache. CXX names the compiler; without it the one
# that was used last holds.

build_folder() {
  # shellcheck disable=SC2154 # root is set by whoever sources this
  local beside=$root/build cache=${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}
  if [[ -n ${VORLANE_BUILD_DIR:-} ]]; then
    realpath -m -- "$VORLANE_BUILD_DIR"
  elif [[ -w $beside || (! -e $beside && -w $root) ]]; then
    echo "$beside"
  else
    echo "$cache/vorlane/${root##*/}-$(cksum <<<"$root" | cut -d ' ' -f 1)"
  fi
}

build=$(build_folder)

# ninja before 1.12 takes such a character in the name of a header for the end of the name, and
# would compile everything again at every call; make doesn't.
generator=Ninja
if [[ $root == *[\&\'\"?]* ]]; then generator="Unix Makefiles"; fi

cached() { sed -n "s|^$1:[^=]*=||p" "$build/CMakeCache.txt"; }

# configured: whether the folder is one of this project, for this compiler and tool.
configured() {
  [[ -f $build/CMakeCache.txt && $(cached CMAKE_HOME_DIRECTORY) -ef $root &&
    $(cached CMAKE_GENERATOR) == "$generator" ]] || return 1
  [[ -z ${CXX:-} || $(cached CMAKE_CXX_COMPILER) == "$(type -P "${CXX%% *}")" ]]
}

# configure OPTIONS...: from the start, if the folder was configured for something else.
configure() {
  local fresh=()
  if ! configured; then fresh=(--fresh); fi
  quietly cmake -S "$root" --preset release -G "$generator" -B "$build" "${fresh[@]}" "$@"
}

# build_all MINUTES [ARGUMENTS OF cmake --build]: tells how long it may take, which is the minutes of
# a single processor divided among those at hand, and on a terminal shows how far it is.
build_all() {
  local minutes=$((($1 + $(nproc) - 1) / $(nproc)))
  shift
  echo "Building Vorlane, which may take $minutes min ..." >&2
  if [[ -t 2 ]]; then
    cmake --build "$build" -j "$(nproc)" "$@" >&2
  else
    quietly cmake --build "$build" -j "$(nproc)" "$@"
  fi
}
