#!/usr/bin/env bash
# documents_test.sh manual|bash|zsh|fish DIRECTORY PROGRAM: tries what was made from the tables of
# options and words in that directory. Ends with 77 where the program is missing that would have to
# read it.
set -euo pipefail
dir=$(cd -- "$2" && pwd)
program=$3
tests=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
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
formats=$({ "$program" export --format none . 2>&1 || true; } |
  sed 's/.* there are //; s/\.$//; s/, /\n/g')
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
options_behind() { if [[ $1 == run ]]; then lines "${options[@]}"; else options_of "$1"; fi; }

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

# completed_by_SHELL WORD...: what the shell offers in place of the last word, names as they are,
# the last of a list alone.
completed_by_bash() {
  COMP_WORDS=(vorlane "$@") COMP_CWORD=$#
  # shellcheck disable=SC2034 # read by the function
  COMPREPLY=()
  "$(complete -p vorlane | sed 's/.* -F \([^ ]*\) .*/\1/')"
  lines "${COMPREPLY[@]}"
}
completed_by_fish() {
  fish --no-config -c "source '$dir/vorlane.fish'; complete -C 'vorlane $*'" |
    cut -f1 | sed 's:/$::'
}
completed_by_zsh() {
  zsh -f "$tests/zsh_completed.zsh" "$dir" "vorlane $*" | sed 's/\\//g'
}

# check_completion SHELL: what all shells offer alike.
check_completion() {
  local completed=completed_by_$1 word
  # "--progress=" is what fish has in mind for its argument.
  offered() { "$completed" "$@" | sed '/=$/d; s/.*,//'; }
  # Directories; some shells have options beside them.
  places() { offered "$@" | sed '/^-/d'; }

  expect "first words" "$(lines "${words[@]}")" "$(places '')"
  expect "options without a word" "$(lines "${options[@]}")" "$(offered -)"
  for word in "${words[@]}"; do
    expect "options of $word" "$(options_behind "$word")" \
      "$(offered "$word" - | sed -n '/^-/p')"
  done
  expect "no word behind options" "" "$(places -D '')"
  expect "words to explain" "$(lines "${words[@]}")" "$(places help '')"
  expect "one is explained" "" "$(places help run '')"
  expect "steps" "$(lines plan search gather levels finish status)" "$(places parts '')"
  expect "one step" "" "$(places parts plan '')"

  expect "files" "$(lines links.txt "link dir" "link file")" "$(offered -i link)"
  expect "directories" "link dir" "$(offered -o '')"
  expect "no file is a number" "" "$(offered -k '')"
  expect "no directory is a k" "" "$(offered export --k '')"
  expect "directories of a run" "link dir" "$(offered run -o '')"
  expect "files of an export" "$(offered -i link)" "$(offered export -o link)"
  expect "formats of input" graphml "$(offered run --format g)"
  expect "formats of export" "$formats" "$(offered export --format '')"
  expect "formats that begin so" "$(grep '^c' <<<"$formats")" "$(offered export --format gexf,c)"
  expect "formats with a run" "$(lines csv csv-wide cx2)" "$(offered --export gexf,c)"

  expect "results" "link dir" "$(places summary '')"
  expect "one directory" "" "$(places summary other '')"
  expect "two directories" "link dir" "$(places diff other '')"
  expect "no third one" "" "$(places diff other other '')"
  expect "many directories" "link dir" "$(places which-k other other '')"
  expect "a node is no directory" "" "$(places query other '')"
  expect "arguments of options don't count" "link dir" "$(places export --k 3 --force -o other '')"
}

check_bash() {
  bash -n "$dir/vorlane.bash"
  # shellcheck disable=SC1091 # made by the build
  source "$dir/vorlane.bash"
  check_completion bash
  expect "a word of an option" "--progress" "$(completed_by_bash --pr)"
  expect "what is left" "$(lines "${options[@]}" | sed '/^-[iD]$/d')" \
    "$(completed_by_bash -i links.txt -D '')"
  expect "words, = apart" "$(lines json none)" "$(completed_by_bash --progress =)"
  expect "a word, = apart" "json" "$(completed_by_bash --progress = j)"
  expect "a word, = inside" "--progress=json" "$(completed_by_bash --progress=j)"
  expect "a list, = inside" "--format=csv,gexf" "$(completed_by_bash export --format=csv,ge)"
  expect "a directory, = apart" "link dir" "$(completed_by_bash export --k = 3 l)"
}

check_fish() {
  type -P fish >/dev/null || exit 77
  fish --no-execute "$dir/vorlane.fish"
  check_completion fish
  expect "words" "$(lines --progress=json --progress=none)" "$(completed_by_fish --progress=)"
  expect "a list behind =" "--format=csv,gexf" "$(completed_by_fish export --format=csv,ge)"
}

check_zsh() {
  type -P zsh >/dev/null || exit 77
  zsh -n "$dir/_vorlane"
  check_completion zsh
  expect "words" "$(lines json none)" "$(completed_by_zsh --progress=)"
}

case $1 in
  manual) check_manual ;;
  bash) check_bash ;;
  zsh) check_zsh ;;
  fish) check_fish ;;
esac
exit "$failures"
