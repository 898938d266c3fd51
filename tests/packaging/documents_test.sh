#!/usr/bin/env bash
# documents_test.sh manual|bash|zsh|fish DIRECTORY PROGRAM: tries what was made from the tables of
# options and words in that directory. Ends with 77 where the program is missing that would have to
# read it.
set -euo pipefail
dir=$(cd -- "$2" && pwd)
program=$3
temp=$(mktemp -d)
trap 'rm -rf "$temp"' EXIT
cd "$temp"
mkdir "link dir"
touch links.txt "link file" other
export HOME=$temp

# shellcheck disable=SC2016 # the marks of the table
mapfile -t options < <(sed -n 's/^| `\(-[^ [`]*\).*/\1/p' "$dir/options.md")
mapfile -t words < <("$program" --help |
  sed -n '/^Words in place/,/^$/s/^  \([a-z][^ ]*\) .*/\1/p')
failures=0

# expect CASE EXPECTED FOUND: lists of lines, in any order.
expect() {
  if [[ $(sort <<<"$2") != "$(sort <<<"$3")" ]]; then
    printf '%s\n  expected: %s\n  found:    %s\n' "$1" "${2//$'\n'/ | }" "${3//$'\n'/ | }"
    failures=1
  fi
}
lines() { printf '%s\n' "$@"; }

usage_of() { "$program" help "$1" | sed -n '1s/^Usage: //p'; }
# Those of the word itself: a run has its own.
options_of() { "$program" help "$1" | sed -n 's/^  \(-[^ ]*\).*/\1/p'; }

# The manual has no fault that its readers know of, and an entry for each option and word.
check_manual() {
  local readers=0
  if type -P mandoc >/dev/null; then
    readers=1
    expect "mandoc" "" "$(mandoc -T lint -W style "$dir/vorlane.1" 2>&1)"
  fi
  if type -P groff preconv >/dev/null; then
    readers=1
    expect "groff" "" "$(groff -Kutf8 -man -ww -z "$dir/vorlane.1" 2>&1)"
  fi
  ((readers)) || exit 77
  expect "options of the manual" "$(lines "${options[@]}")" \
    "$(sed -n '/^\.SH OPTIONS/,/^\.SH WORDS/p' "$dir/vorlane.1" | terms)"
  expect "words of the manual" "$(lines "${words[@]}")" \
    "$(sed -n '/^\.SH WORDS/,/^\.SH ENV/s/^\.SS //p' "$dir/vorlane.1")"
  local word section
  for word in "${words[@]}"; do
    section=$(sed -n "/^\.SS $word\$/,/^\.S[HS]/p" "$dir/vorlane.1")
    expect "options of $word" "$(options_of "$word")" "$(terms <<<"$section")"
    section=$(tr '\n' ' ' <<<"$section" | sed 's/\\f[BRI]//g; s/\\//g')
    [[ $section == *" $(usage_of "$word") .PP "* ]] || expect "usage of $word" "" "$section"
  done
}

# The options that entries of a manual are about.
terms() { sed -n '/^\.TP$/{n; s/\\f[BRI]\|\\//g; s/[ [].*//; /^-/p}'; }

# completed WORD...: what bash offers in place of the last word.
completed() {
  COMP_WORDS=(vorlane "$@") COMP_CWORD=$#
  # shellcheck disable=SC2034 # read by the function
  COMPREPLY=()
  "$(complete -p vorlane | sed 's/.* -F \([^ ]*\) .*/\1/')"
  lines "${COMPREPLY[@]}"
}

check_bash() {
  bash -n "$dir/vorlane.bash"
  # shellcheck disable=SC1091 # made by the build
  source "$dir/vorlane.bash"
  expect "all options" "$(lines "${options[@]}")" "$(completed -)"
  expect "files" "$(lines links.txt "link dir" "link file")" "$(completed -i link)"
  expect "directories" "link dir" "$(completed -i links.txt -o '')"
  expect "no file is a number" "" "$(completed -k '')"
  expect "a word of an option" "--progress" "$(completed --pr)"
  expect "what is left" "$(lines "${options[@]}" | sed '/^-[iD]$/d')" \
    "$(completed -i links.txt -D '')"
  expect "words, = apart" "$(lines json none)" "$(completed --progress =)"
  expect "a word, = apart" "json" "$(completed --progress = j)"
  expect "a word, = inside" "--progress=json" "$(completed --progress=j)"
}

# fish_completed LINE: what fish offers at the end of the line.
fish_completed() {
  fish --no-config -c "source '$dir/vorlane.fish'; complete -C '$1'" | cut -f1
}

check_fish() {
  type -P fish >/dev/null || exit 77
  fish --no-execute "$dir/vorlane.fish"
  expect "all options" "$(lines "${options[@]}" --progress=)" "$(fish_completed 'vorlane -')"
  expect "files" "$(lines links.txt "link file" "link dir/")" "$(fish_completed 'vorlane -i link')"
  expect "directories" "link dir/" "$(fish_completed 'vorlane -o ')"
  expect "no file is a number" "" "$(fish_completed 'vorlane -k ')"
  expect "words" "$(lines --progress=json --progress=none)" \
    "$(fish_completed 'vorlane --progress=')"
}

check_zsh() {
  type -P zsh >/dev/null || exit 77
  zsh -n "$dir/_vorlane"
  # Stands for what would do the work, and shows what it is told.
  expect "all options" "$(lines "${options[@]}")" \
    "$(zsh -fc '_arguments() { print -rl -- $@ }; source $0' "$dir/_vorlane" | sed 's/=*-*\[.*//')"
}

case $1 in
  manual) check_manual ;;
  bash) check_bash ;;
  zsh) check_zsh ;;
  fish) check_fish ;;
esac
exit "$failures"
